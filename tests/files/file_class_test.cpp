#include "files/file_class.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "files/template_path.h"
#include "support/file_content.h"
#include "support/temp_folder.h"

namespace {

class FileClassTest : public testing::Test {
 protected:
  FileClassTest() { WriteContent(path_, "abcdef"); }
  // The next bytes of the file, or "failed".
  std::string Read(uint32_t count) {
    std::string bytes(count, '?');
    return file_.Read(bytes.data(), count) ? bytes : "failed";
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("file.dat");
  FileClass file_{path_.c_str()};
};

TEST_F(FileClassTest, ModeZeroReadsWholeBlocksOfAnExistingFile) {
  EXPECT_EQ("failed", Read(1)) << "not open";
  EXPECT_THROW(file_.GetSize(), int);
  EXPECT_THROW(file_.Seek(0, 0), int);
  ASSERT_TRUE(file_.Open(0));
  EXPECT_EQ(path_, file_.GetName());
  EXPECT_EQ(6U, file_.GetSize());
  EXPECT_FALSE(FileClass(path_.c_str()).Open(0)) << "nobody else may";
  EXPECT_EQ("abcd", Read(4));
  EXPECT_EQ("failed", Read(3)) << "one byte too many";
  EXPECT_TRUE(file_.Seek(-2, 1) && Read(1) == "e" && file_.Seek(-4, 2) && Read(1) == "b");
  EXPECT_TRUE(file_.Seek(2, 0) && Read(1) == "c");
  EXPECT_FALSE(file_.Read(nullptr, 1) || file_.Write("x", 1));
  file_.SetName(folder_.Path("missing").c_str());
  EXPECT_EQ("d", Read(1)) << "the open file stays open";
  EXPECT_FALSE(file_.Open(0));
  EXPECT_STREQ("Not-open", file_.GetName()) << "but for another Open";
  EXPECT_EQ(INVALID_HANDLE_VALUE, file_.GetHandle());
}

TEST_F(FileClassTest, OtherModesEmptyTheFileAndWrite) {
  for (const int mode : {1, 2}) {
    ASSERT_TRUE(file_.Open(mode));
    EXPECT_EQ(0U, file_.GetSize());
    EXPECT_FALSE(file_.Write("xyz", 0) || file_.Write(nullptr, 1));
    EXPECT_TRUE(file_.Write("xyz", 3) && file_.Seek(0, 0));
    EXPECT_EQ(mode == 1 ? "failed" : "xyz", Read(3)) << mode;
  }
  EXPECT_TRUE(file_.Close() && file_.Close());
  EXPECT_EQ("xyz", ReadContent(path_));
}

TEST_F(FileClassTest, NameThatDoesNotFitOpensNothing) {
  EXPECT_FALSE(FileClass().Open(1));
  // Cut at 259 characters it would name a file that can be made.
  std::string longName = path_;
  while (longName.size() < 259) longName.insert(longName.size() - 8, "\\.");
  longName.resize(259);
  EXPECT_FALSE(FileClass((longName + "x").c_str()).Open(1));
  EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder_.Path()), {}));
}

TEST(TemplatePathTest, PathThatDoesNotFitIsEmpty) {
  const std::string longest(MAX_PATH - 1 - 10, 'n');
  EXPECT_EQ("C:\\x\\Templates\\a.png", TemplatePath("C:\\x\\", "a.png"));
  EXPECT_EQ("Templates\\" + longest, TemplatePath("", longest));
  EXPECT_EQ("", TemplatePath("", longest + "n"));
}

}  // namespace
