#include "settings/ini_class.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/win32.h"
#include "support/case_name.h"
#include "support/file_content.h"
#include "support/temp_folder.h"

namespace {

using namespace std::string_literals;

// A reader of a file of the test's own.
class IniFile {
 public:
  explicit IniFile(const std::string& text) { Write(text); }

  void Write(const std::string& text) {
    WriteContent(Path(), text);
    loaded = reader.SetFileName(Path().c_str()) && reader.Load();
  }
  std::string Path() const { return folder_.Path("Settings.ini"); }

  IniClass reader;
  bool loaded = false;

 private:
  TempFolder folder_;
};

// Everything that was read, as "[section]key=value|key=value|". The value is that of the first key
// of the name.
std::string Content(const IniClass& reader) {
  std::string text;
  for (int s = 0; s < reader.GetSectionCount(); ++s) {
    const std::string section = reader.GetSectionName(s);
    text += "[" + section + "]";
    for (int k = 0; k < reader.GetKeyCount(section); ++k) {
      const std::string key = reader.GetKeyName(section, k);
      std::string value(8000, '?');
      EXPECT_TRUE(reader.GetString(section, key, value.data(), 7999)) << key;
      text += key + "=" + value.c_str() + "|";
    }
  }
  return text;
}

struct ParseCase {
  const char* name;
  std::string file;
  std::string content;
};

class IniParseTest : public testing::TestWithParam<ParseCase> {};

TEST_P(IniParseTest, ReadsSectionsAndPairs) {
  const IniFile file(GetParam().file);
  EXPECT_TRUE(file.loaded);
  EXPECT_EQ(GetParam().content, Content(file.reader));
}

const std::string kLong(5000, 'v');

INSTANTIATE_TEST_SUITE_P(
    Files, IniParseTest,
    testing::Values(
        ParseCase{"Empty", "", ""}, ParseCase{"NoSection", "a=b\n\n;x\n", ""},
        ParseCase{"Catalogue",
                  "[SymbolsList]\n1=Flag,flag.png\n2=Tower,tower.png   ; second item\n"
                  "[CameosList]\na=First icon, icon1.png\n",
                  "[SymbolsList]1=Flag,flag.png|2=Tower,tower.png|"
                  "[CameosList]a=First icon, icon1.png|"},
        ParseCase{"SpacesAroundHeader", "  [ SymbolsList ]  \n", "[SymbolsList]"},
        ParseCase{"SpacesAroundEqualsStay", "[s]\n  Key=Value ; note\nA = B  \n",
                  "[s]Key=Value|A = B|"},
        ParseCase{"TabsAreNoSpaces", "[s]\n\ta=b\t\n\t[t]\n", "[s]\ta=b\t|"},
        ParseCase{"OnlyOneInnerEquals", "[s]\nA=B=C\n=B\nA=\n=\nA\na=b\n", "[s]a=b|"},
        ParseCase{"HeaderThatIsAKeyToo", "[s]\n[A=B]\nc=d\n", "[s][A=B][A=B]|c=d|"},
        ParseCase{"BracketsInPairs", "[]\n[\n]\n[x\ny]\n[a]=b\n", "[][a]=b|"},
        ParseCase{"CommentsEndALine", "[s];[t]\n;[u]\na;=b\nc=;\nd=e;f=g\n", "[s]d=e|"},
        ParseCase{"KeysBeforeTheFirstHeader", "a=b\n[s]\nc=d\n", "[s]c=d|"},
        ParseCase{"RepeatedKeysShowTheFirstValue", "[s]\na=1\na=2\nb=3\n", "[s]a=1|a=1|b=3|"},
        ParseCase{"WindowsLineEnds", "[s]\r\na=b\r\n", "[s]a=b|"},
        ParseCase{"LoneReturnsStay", "[s]\na=b\rc\r\r\n", "[s]a=b\rc\r|"},
        ParseCase{"NoLineEndAtTheEnd", "[s]\na=b", "[s]a=b|"},
        ParseCase{"ReturnAtTheEnd", "[s]\na=b\r", "[s]a=b\r|"},
        ParseCase{"NulHidesTheRestOfItsLine", "[s]\0x\na=b\0c\nd\0=e\nf=g\n"s, "[s]a=b|f=g|"},
        ParseCase{"CtrlZEndsTheText", "[s]\na=b\x1A\nc=d\n[t]\n", "[s]a=b|"},
        ParseCase{"HighBytes", "[s]\n\xC3\xA4=\xFF,\x80\n", "[s]\xC3\xA4=\xFF,\x80|"},
        ParseCase{"LongKey", "[s]\n" + std::string(64, 'k') + "123456=v\n",
                  "[s]" + std::string(64, 'k') + "=v|"},
        ParseCase{"LongSectionName", "[" + std::string(63, 'n') + "12]\n",
                  "[" + std::string(63, 'n') + "]"},
        ParseCase{"LongLineIsTwo", "[s]\n" + kLong.substr(0, 4094) + "a=b\n", "[s]a=b|"},
        ParseCase{"LongValueIsCutWithItsLine", "[s]\na=" + kLong + "\n",
                  "[s]a=" + kLong.substr(0, 4092) + "|"},
        ParseCase{"LongestLine", "[s]\na=" + kLong.substr(0, 4091) + "\nb=c\n",
                  "[s]a=" + kLong.substr(0, 4091) + "|b=c|"},
        ParseCase{"LineEndInAPieceOfItsOwn", "[s]\na=" + kLong.substr(0, 4092) + "\nb=c\n",
                  "[s]a=" + kLong.substr(0, 4092) + "|b=c|"}),
    CaseName());

TEST(IniClassTest, HugeLineLoads) {
  const IniFile file("[s]\nkey=" + std::string(10'000'000, 'x') + "\nlast=1\n");
  EXPECT_TRUE(file.loaded);
  EXPECT_EQ(2, file.reader.GetKeyCount("s"));
  EXPECT_EQ(1, file.reader.GetInt("s", "last", 0));
}

TEST(IniClassTest, AnyDamagedFileLoads) {
  const std::string whole = "[ SymbolsList ]\r\n1=Flag,flag.png ; x\r\n[CameosList]\na=b\n";
  IniFile file(whole);
  const auto check = [&file] {
    EXPECT_TRUE(file.loaded);
    for (int s = 0; s < file.reader.GetSectionCount(); ++s) {
      const std::string section = file.reader.GetSectionName(s);
      for (int k = 0; k < file.reader.GetKeyCount(section); ++k) {
        char value[256];
        const char* const key = file.reader.GetKeyName(section, k);
        EXPECT_TRUE(file.reader.GetString(section, key, value, 255));
        EXPECT_NE("", std::string(value));
        EXPECT_EQ(nullptr, std::strpbrk(value, "=;\n"));
      }
    }
  };
  for (size_t length = 0; length <= whole.size(); ++length) {
    file.Write(whole.substr(0, length));
    check();
  }
  for (size_t i = 0; i < whole.size(); ++i) {
    for (const char byte : {'\0', '\n', '=', ';', '[', ']', ' ', '\x1A', '\xFF'}) {
      std::string damaged = whole;
      damaged[i] = byte;
      file.Write(damaged);
      check();
    }
  }
}

TEST(IniClassTest, NamesMatchByCaseAndTheFirstWins) {
  const IniFile file("[s]\na=1\nA=2\n[s]\na=3\nb=4\n");
  EXPECT_TRUE(file.reader.SectionExists("s"));
  EXPECT_FALSE(file.reader.SectionExists("S"));
  EXPECT_EQ(1, file.reader.GetInt("s", "a", 0));
  EXPECT_EQ(2, file.reader.GetInt("s", "A", 0));
  EXPECT_EQ(-7, file.reader.GetInt("s", "b", -7));
  EXPECT_EQ(2, file.reader.GetKeyCount("s"));
  EXPECT_EQ(2, file.reader.GetSectionCount());
}

TEST(IniClassTest, IndicesOutsideGiveNull) {
  const IniFile file("[s]\na=1\n");
  EXPECT_EQ(nullptr, file.reader.GetKeyName("s", 1));
  EXPECT_EQ(nullptr, file.reader.GetKeyName("s", -1));
  EXPECT_EQ(nullptr, file.reader.GetKeyName("t", 0));
  EXPECT_EQ(nullptr, file.reader.GetSectionName(1));
  EXPECT_EQ(nullptr, file.reader.GetSectionName(-1));
  EXPECT_EQ(0, file.reader.GetKeyCount("t"));
}

struct CopyCase {
  const char* name;
  const char* key;
  int n;
  bool found;
  std::string buffer;  // of ten characters, '.' before
};

class IniStringTest : public testing::TestWithParam<CopyCase> {};

TEST_P(IniStringTest, CopiesAtMostNCharacters) {
  const IniFile file("[s]\na=value\n[empty]\n");
  std::string buffer(10, '.');
  EXPECT_EQ(GetParam().found,
            file.reader.GetString("s", GetParam().key, buffer.data(), GetParam().n));
  EXPECT_EQ(GetParam().buffer, buffer);
}

INSTANTIATE_TEST_SUITE_P(Buffers, IniStringTest,
                         testing::Values(CopyCase{"Shorter", "a", 3, true, "val\0......"s},
                                         CopyCase{"Exact", "a", 5, true, "value\0...."s},
                                         CopyCase{"Longer", "a", 8, true, "value\0\0\0\0."s},
                                         CopyCase{"Nothing", "a", 0, true, "\0........."s},
                                         CopyCase{"Negative", "a", -1, false, ".........."},
                                         CopyCase{"UnknownKey", "b", 5, false, ".........."}),
                         CaseName());

struct WordCase {
  const char* value;
  bool yes;
  int number;
};

TEST(IniClassTest, ReadsWordsAsBoolAndInt) {
  for (const WordCase& word :
       {WordCase{"yes", true, 0}, WordCase{"YES", true, 0}, WordCase{"tRuE", true, 0},
        WordCase{"1", false, 1}, WordCase{"on", false, 0}, WordCase{"yes ,", false, 0},
        WordCase{"-12x", false, -12}, WordCase{" 7", false, 7}, WordCase{"x7", false, 0},
        WordCase{"2147483647", false, 2147483647}, WordCase{"99999999999", false, 2147483647}}) {
    const IniFile file("[s]\nk="s + word.value + "\n");
    EXPECT_EQ(word.yes, file.reader.GetBool("s", "k", !word.yes)) << word.value;
    EXPECT_EQ(word.number, file.reader.GetInt("s", "k", 99)) << word.value;
  }
}

TEST(IniClassTest, MissingWordsGiveTheDefault) {
  const IniFile file("[s]\n");
  for (const bool whenMissing : {false, true}) {
    EXPECT_EQ(whenMissing, file.reader.GetBool("s", "k", whenMissing));
    EXPECT_EQ(whenMissing, file.reader.GetBool("t", "k", whenMissing));
  }
}

TEST(IniClassTest, MissingFileFailsAndLeavesNothing) {
  IniFile file("[s]\na=1\n");
  EXPECT_TRUE(file.reader.SetFileName((file.Path() + "x").c_str()));
  EXPECT_TRUE(file.reader.SectionExists("s")) << "naming a file loads nothing";
  EXPECT_FALSE(file.reader.Load());
  EXPECT_EQ(0, file.reader.GetSectionCount());
}

TEST(IniClassTest, FileThatIsOpenElsewhereLoads) {
  IniFile file("[s]\n");
  const HANDLE other =
      CreateFileA(file.Path().c_str(), GENERIC_READ | GENERIC_WRITE,
                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, other);
  EXPECT_TRUE(file.reader.Load());
  CloseHandle(other);
}

TEST(IniClassTest, LongestPathsAreRefused) {
  IniClass reader;
  EXPECT_TRUE(reader.SetFileName(std::string(MAX_PATH - 1, 'a').c_str()));
  EXPECT_FALSE(reader.SetFileName(std::string(MAX_PATH, 'a').c_str()));
  EXPECT_FALSE(reader.Load());
}

TEST(IniClassTest, LoadStartsAfreshAndResetForgetsTheName) {
  IniFile file("[s]\na=1\n");
  ASSERT_TRUE(file.reader.Load());
  EXPECT_EQ("[s]a=1|", Content(file.reader));
  file.reader.Clear();
  EXPECT_EQ("", Content(file.reader));
  ASSERT_TRUE(file.reader.Load());
  file.reader.Reset();
  EXPECT_EQ(0, file.reader.GetSectionCount());
  EXPECT_FALSE(file.reader.Load());
}

}  // namespace
