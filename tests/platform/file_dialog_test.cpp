#include <gtest/gtest.h>

#include "dialogs/file_dialogs.h"
#include "support/file_content.h"
#include "support/temp_folder.h"
#include "support/user.h"

namespace {

// What another program's dialog would ask for in the folder with the one file "there.bmp".
class FileDialogs : public testing::Test {
 protected:
  FileDialogs() {
    WriteContent(folder_.Path("there.bmp"), "x");
    GetCurrentDirectoryA(MAX_PATH, before_);
  }
  ~FileDialogs() override { SetCurrentDirectoryA(before_); }

  TempFolder folder_;
  char before_[MAX_PATH] = "", path_[MAX_PATH] = "";
  OPENFILENAMEA request_ = FileDialog(nullptr, path_, "Pictures\0*.png;*.bmp\0", "bmp");
  User user_;
};

TEST_F(FileDialogs, ChangeTheCurrentDirectoryToTheChosenFiles) {
  user_.ChooseFile("Open", folder_.Path() + "\\there.bmp");
  EXPECT_TRUE(GetOpenFileNameA(&request_));
  EXPECT_EQ(path_, folder_.Path() + "\\there.bmp");
#ifndef _WIN32  // Wine's dialogs do so only at times
  EXPECT_EQ("x", ReadContent("there.bmp"));
#endif
}

TEST_F(FileDialogs, TooSmallABufferIsAnError) {
  request_.nMaxFile = 4;
  user_.ChooseFile("Save As", folder_.Path() + "\\new.bmp");
  EXPECT_FALSE(GetSaveFileNameA(&request_));
  EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(FNERR_BUFFERTOOSMALL));
#ifndef _WIN32  // Wine's dialog does not take such a name
  user_.ChooseFile("Save As", folder_.Path() + "\\" + std::string(250, 'n') + ".bmp");
  EXPECT_FALSE(AskSaveName(nullptr, path_, "Pictures\0*.bmp\0", "bmp"));
  EXPECT_STREQ("", path_);
#endif
}

}  // namespace
