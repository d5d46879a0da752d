#include "files/file_class.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/file_content.h"
#include "support/temp_folder.h"

namespace {

class FileClassTest : public testing::Test {
 protected:
  std::string Make(const std::string& content) {
    WriteContent(path_, content);
    return path_;
  }
  // What a read of the rest of the file gives.
  static std::string Rest(FileClass& file, uint32_t count) {
    std::string text(count, '?');
    return file.Read(text.data(), count) ? text : "failed";
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("file.dat");
};

TEST_F(FileClassTest, WithoutANameNothingOpens) {
  FileClass file;
  EXPECT_FALSE(file.Open(0));
  EXPECT_FALSE(file.Open(1));
  EXPECT_EQ(INVALID_HANDLE_VALUE, file.GetHandle());
  EXPECT_STREQ("Not-open", file.GetName());
}

TEST_F(FileClassTest, ModeZeroReadsAnExistingFileOnly) {
  FileClass file(path_.c_str());
  EXPECT_FALSE(file.Open(0));
  EXPECT_FALSE(std::filesystem::exists(path_));
  Make("abcd");
  ASSERT_TRUE(file.Open(0));
  EXPECT_NE(INVALID_HANDLE_VALUE, file.GetHandle());
  EXPECT_EQ(4U, file.GetSize());
  EXPECT_EQ("abcd", Rest(file, 4));
  EXPECT_FALSE(file.Write("x", 1));
}

TEST_F(FileClassTest, ModeOneEmptiesAnExistingFileAndWritesOnly) {
  FileClass file(Make("abcd").c_str());
  ASSERT_TRUE(file.Open(1));
  EXPECT_EQ(0U, file.GetSize());
  EXPECT_TRUE(file.Write("xyz", 3));
  char byte = 0;
  file.Seek(0, 0);
  EXPECT_FALSE(file.Read(&byte, 1));
  file.Close();
  EXPECT_EQ("xyz", ReadContent(path_));
}

TEST_F(FileClassTest, OtherModesReadAndWriteAnEmptiedFile) {
  for (const int mode : {2, -1}) {
    FileClass file(Make("abcd").c_str());
    ASSERT_TRUE(file.Open(mode));
    EXPECT_EQ(0U, file.GetSize());
    EXPECT_TRUE(file.Write("xyz", 3));
    file.Seek(0, 0);
    EXPECT_EQ("xyz", Rest(file, 3));
  }
}

TEST_F(FileClassTest, TransfersAreAllOrNothing) {
  FileClass file(Make("abcd").c_str());
  char bytes[8] = {};
  EXPECT_FALSE(file.Read(bytes, 1)) << "not open";
  EXPECT_FALSE(file.Write(bytes, 1)) << "not open";
  ASSERT_TRUE(file.Open(0));
  EXPECT_FALSE(file.Read(bytes, 0));
  EXPECT_FALSE(file.Read(nullptr, 1));
  EXPECT_FALSE(file.Read(bytes, 5)) << "one byte too many";
  EXPECT_FALSE(file.Read(bytes, 1)) << "the short read has moved the position to the end";
  file.Seek(0, 0);
  EXPECT_EQ("abcd", Rest(file, 4));
  ASSERT_TRUE(file.Open(1));
  EXPECT_FALSE(file.Write(bytes, 0));
  EXPECT_FALSE(file.Write(nullptr, 1));
}

struct SeekCase {
  const char* name;
  int32_t offset;
  int origin;
  std::string next;  // the byte there, after "ab" has been read of "abcdef"
};

TEST_F(FileClassTest, SeekCountsFromItsOrigin) {
  for (const SeekCase& seek : {SeekCase{"Beginning", 1, 0, "b"}, SeekCase{"End", -1, 1, "f"},
                               SeekCase{"AtTheEnd", 0, 1, "failed"}, SeekCase{"Current", 1, 2, "d"},
                               SeekCase{"Stay", 0, 2, "c"}, SeekCase{"Back", -1, 7, "b"},
                               SeekCase{"BeforeTheBeginning", -9, 0, "c"}}) {
    FileClass file(Make("abcdef").c_str());
    ASSERT_TRUE(file.Open(0));
    Rest(file, 2);
    EXPECT_TRUE(file.Seek(seek.offset, seek.origin));
    EXPECT_EQ(seek.next, Rest(file, 1)) << seek.name;
  }
}

TEST_F(FileClassTest, SizeAndSeekOfAClosedFileThrow) {
  FileClass file(path_.c_str());
  EXPECT_THROW(file.GetSize(), int);
  EXPECT_THROW(file.Seek(0, 0), int);
}

TEST_F(FileClassTest, NameIsShownWhileTheFileIsOpen) {
  FileClass file(Make("abcd").c_str());
  EXPECT_STREQ("Not-open", file.GetName());
  ASSERT_TRUE(file.Open(0));
  EXPECT_EQ(path_, file.GetName());
  file.SetName("another");
  EXPECT_STREQ("another", file.GetName());
  EXPECT_EQ("abcd", Rest(file, 4)) << "the open file stays open";
  EXPECT_TRUE(file.Close());
  EXPECT_TRUE(file.Close());
  EXPECT_STREQ("Not-open", file.GetName());
}

TEST_F(FileClassTest, FailedOpenClosesTheFileBefore) {
  FileClass file(Make("abcd").c_str());
  ASSERT_TRUE(file.Open(0));
  file.SetName(folder_.Path("missing").c_str());
  EXPECT_FALSE(file.Open(0));
  EXPECT_EQ(INVALID_HANDLE_VALUE, file.GetHandle());
  EXPECT_STREQ("Not-open", file.GetName());
}

TEST_F(FileClassTest, OpenFileIsNotShared) {
  FileClass first(Make("abcd").c_str());
  FileClass second(path_.c_str());
  ASSERT_TRUE(first.Open(0));
  EXPECT_FALSE(second.Open(0));
  first.Close();
  EXPECT_TRUE(second.Open(0));
}

TEST_F(FileClassTest, NameThatDoesNotFitOpensNothing) {
  // Cut at 259 characters it would name a file that exists.
  std::string longName = path_;
  while (longName.size() < 259) longName.insert(longName.size() - 8, "\\.");
  longName.resize(259);
  FileClass file((longName + "x").c_str());
  EXPECT_FALSE(file.Open(1));
  EXPECT_FALSE(file.Open(0));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
}

}  // namespace
