#include "settings/ini_class.h"

#include <gtest/gtest.h>

#include <cstring>

#include "files/file_class.h"
#include "platform/win32.h"
#include "support/file_content.h"
#include "support/temp_folder.h"

namespace {

using namespace std::string_literals;

class IniClassTest : public testing::Test {
 protected:
  void Load(const std::string& text) {
    WriteContent(path_, text);
    ASSERT_TRUE(reader_.SetFileName(path_.c_str()));
    ASSERT_TRUE(reader_.Load());
  }
  // Everything that was read, as "[section]key=value|key=value|". The value is that of the first
  // key of the name.
  std::string Content() const {
    std::string text;
    for (int s = 0; s < reader_.GetSectionCount(); ++s) {
      const std::string section = reader_.GetSectionName(s);
      text += "[" + section + "]";
      for (int k = 0; k < reader_.GetKeyCount(section); ++k) {
        char value[8000];
        const std::string key = reader_.GetKeyName(section, k);
        EXPECT_TRUE(reader_.GetString(section, key, value, sizeof value - 1)) << key;
        text += key + "=" + value + "|";
      }
    }
    return text;
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("Settings.ini");
  IniClass reader_;
};

const std::string kLong(5000, 'v'), kKey(64, 'k'), kName(63, 'n');

const struct {
  const char* name;
  std::string file, content;
} kFiles[] = {
    {"NoSection", "a=b\n\n;x\n", ""},
    {"Catalogue",
     "  [ Symbols ]  \n1=Flag,flag.png\n2=Tower,tower.png   ; second\n[Cameos]\na=b, c.png\n",
     "[Symbols]1=Flag,flag.png|2=Tower,tower.png|[Cameos]a=b, c.png|"},
    {"SpacesAroundEqualsStay", "[s]\n  Key=Value ; note\nA = B  \n", "[s]Key=Value|A = B|"},
    {"TabsAreNoSpaces", "[s]\n\ta=b\t\n\t[t]\n", "[s]\ta=b\t|"},
    {"OnlyOneInnerEquals", "[s]\nA=B=C\n=B\nA=\n=\nA\na=b\n", "[s]a=b|"},
    {"HeaderThatIsAKeyToo", "[s]\n[A=B]\nc=d\n", "[s][A=B][A=B]|c=d|"},
    {"CommentsEndALine", "[s];[t]\n;[u]\na;=b\nc=;\nd=e;f=g\n", "[s]d=e|"},
    {"FirstOfANameWins", "[s]\na=1\na=2\nA=3\n[s]\na=4\n", "[s]a=1|a=1|A=3|[s]a=1|a=1|A=3|"},
    {"WindowsLineEnds", "[s]\r\na=b\r\n", "[s]a=b|"},
    {"LoneReturnsStay", "[s]\na=b\rc\r\r\n", "[s]a=b\rc\r|"},
    {"NulHidesTheRestOfItsLine", "[s]\0x\na=b\0c\nd\0=e\nf=g\n"s, "[s]a=b|f=g|"},
    {"CtrlZEndsTheText", "[s]\na=b\x1A\nc=d\n[t]\n", "[s]a=b|"},
    {"HighBytes", "[s]\n\xC3\xA4=\xFF,\x80\n", "[s]\xC3\xA4=\xFF,\x80|"},
    {"LongKey", "[s]\n" + kKey + "123456=v\n", "[s]" + kKey + "=v|"},
    {"LongSectionName", "[" + kName + "12]\n", "[" + kName + "]"},
    {"LongLineIsTwo", "[s]\n" + kLong.substr(0, 4094) + "a=b\n", "[s]a=b|"},
    {"LongValueIsCut", "[s]\na=" + kLong + "\n", "[s]a=" + kLong.substr(0, 4092) + "|"},
    {"LineEndInAPieceOfItsOwn", "[s]\na=" + kLong.substr(0, 4092) + "\nb=c\n",
     "[s]a=" + kLong.substr(0, 4092) + "|b=c|"},
};

TEST_F(IniClassTest, ReadsSectionsAndPairs) {
  for (const auto& row : kFiles) {
    Load(row.file);
    EXPECT_EQ(row.content, Content()) << row.name;
  }
}

TEST_F(IniClassTest, UpToNCharactersOfAValueAreCopied) {
  Load("[s]\na=value\n");
  const auto copied = [this](const char* key, int n) {
    std::string buffer(10, '.');
    return reader_.GetString("s", key, buffer.data(), n) ? buffer : "failed, " + buffer;
  };
  EXPECT_EQ("val\0......"s, copied("a", 3));
  EXPECT_EQ("value\0...."s, copied("a", 5));
  EXPECT_EQ("value\0\0\0\0."s, copied("a", 8));
  EXPECT_EQ("\0........."s, copied("a", 0));
  EXPECT_EQ("failed, ..........", copied("a", -1));
  EXPECT_EQ("failed, ..........", copied("b", 5));
}

TEST_F(IniClassTest, NamesAndIndicesOutsideGiveNothing) {
  Load("[s]\na=YES\nb=-12x\n");
  EXPECT_TRUE(reader_.SectionExists("s"));
  EXPECT_FALSE(reader_.SectionExists("S"));
  EXPECT_EQ(nullptr, reader_.GetKeyName("S", 0));
  for (const int outside : {-1, 2}) EXPECT_EQ(nullptr, reader_.GetKeyName("s", outside));
  for (const int outside : {-1, 1}) EXPECT_EQ(nullptr, reader_.GetSectionName(outside));
  EXPECT_TRUE(reader_.GetBool("s", "a", false) && reader_.GetBool("s", "c", true));
  EXPECT_EQ(-12, reader_.GetInt("s", "b", 7));
  EXPECT_EQ(7, reader_.GetInt("s", "c", 7));
}

TEST_F(IniClassTest, EachLoadStartsAfresh) {
  Load("[s]\na=1\n");
  const HANDLE other = CreateFileA(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  EXPECT_TRUE(reader_.Load()) << "while another writes the file";
  EXPECT_FALSE(FileClass(path_.c_str()).Open(0)) << "which wants it for itself";
  CloseHandle(other);
  EXPECT_TRUE(reader_.SetFileName(std::string(MAX_PATH - 1, 'x').c_str()));
  EXPECT_EQ("[s]a=1|", Content()) << "naming a file loads nothing";
  EXPECT_FALSE(reader_.Load());
  EXPECT_EQ("", Content());
  Load("[s]\n");
  EXPECT_FALSE(reader_.SetFileName(std::string(MAX_PATH, 'x').c_str()));
  EXPECT_FALSE(reader_.Load());
  Load("[s]\n");
  reader_.Reset();
  EXPECT_FALSE(reader_.Load()) << "the name is forgotten too";
}

}  // namespace
