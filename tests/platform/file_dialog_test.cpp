#include <gtest/gtest.h>

#include <cstdio>

#include "support/user.h"

namespace {

std::string WithBackslashes(std::string path) {
  for (char& letter : path) {
    if (letter == '/') letter = '\\';
  }
  return path;
}

std::string CurrentFolder() {
  char path[MAX_PATH];
  GetCurrentDirectoryA(MAX_PATH, path);
  return std::string(path) + "\\";
}

// A folder with one file, "there.bmp", beside the folder that is the current one.
class FileDialogs : public testing::Test {
 protected:
  void SetUp() override {
    GetCurrentDirectoryA(MAX_PATH, before_);
    ASSERT_TRUE(SetCurrentDirectoryA(WithBackslashes(testing::TempDir()).c_str()));
    folder_ = CurrentFolder();
    std::fclose(std::fopen("there.bmp", "wb"));
    SetCurrentDirectoryA(before_);
    request_.lStructSize = sizeof request_;
    request_.lpstrFilter = "Pictures\0*.png;*.bmp\0All\0*.*\0";
    request_.lpstrFile = path_;
    request_.nMaxFile = MAX_PATH;
    request_.lpstrDefExt = "bmp";
    request_.Flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_EXPLORER | OFN_ENABLESIZING;
  }
  void TearDown() override {
    std::remove((testing::TempDir() + "there.bmp").c_str());
    SetCurrentDirectoryA(before_);
  }

  OPENFILENAMEA request_{};
  char path_[MAX_PATH] = "";
  std::string folder_;

 private:
  char before_[MAX_PATH]{};
};

TEST_F(FileDialogs, ChangeTheCurrentDirectoryToTheChosenFiles) {
  User user;
  user.ChooseFile("Open", folder_ + "there.bmp");
  EXPECT_TRUE(GetOpenFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "there.bmp");
  EXPECT_EQ(CurrentFolder(), folder_);
}

TEST_F(FileDialogs, TooSmallABufferIsAnError) {
  request_.nMaxFile = 4;
  User user;
  user.ChooseFile("Save As", folder_ + "new.bmp");
  EXPECT_FALSE(GetSaveFileNameA(&request_));
  EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(FNERR_BUFFERTOOSMALL));
}

TEST_F(FileDialogs, FilesAreSharedOnlyWhenBothSidesAllowIt) {
  const auto open = [&](DWORD access, DWORD share) {
    return CreateFileA((folder_ + "there.bmp").c_str(), access, share, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
  };
  const HANDLE writer = open(GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_EQ(open(GENERIC_READ, FILE_SHARE_READ), INVALID_HANDLE_VALUE);
  EXPECT_TRUE(CloseHandle(writer));
}

}  // namespace
