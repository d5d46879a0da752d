#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "platform/win32.h"

namespace {

// A folder of the test's own, which is the current one while the test runs.
class Files : public testing::Test {
 protected:
  void SetUp() override {
    GetCurrentDirectoryA(MAX_PATH, before_);
    folder_ = testing::TempDir();
    for (char& letter : folder_) {
      if (letter == '/') letter = '\\';
    }
    ASSERT_TRUE(SetCurrentDirectoryA(folder_.c_str()));
  }
  void TearDown() override {
    std::remove("standin.dat");
    SetCurrentDirectoryA(before_);
  }

  static HANDLE Create(const char* path, DWORD access = GENERIC_WRITE) {
    return CreateFileA(path, access, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  }
  static HANDLE Open(const char* path, DWORD share = 0) {
    return CreateFileA(path, GENERIC_READ, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
  }
  static DWORD Write(HANDLE file, const std::string& text) {
    DWORD count = 99;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &count, nullptr);
    return count;
  }

  std::string folder_;

 private:
  char before_[MAX_PATH]{};
};

TEST_F(Files, GiveBackWhatWasWritten) {
  const HANDLE out = Create("standin.dat");
  ASSERT_NE(out, INVALID_HANDLE_VALUE);
  EXPECT_EQ(Write(out, "hello"), 5u);
  EXPECT_TRUE(CloseHandle(out));
  const HANDLE in = Open("standin.dat");
  ASSERT_NE(in, INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetFileSize(in, nullptr), 5u);
  char text[8] = "";
  DWORD count = 0;
  EXPECT_TRUE(ReadFile(in, text, 8, &count, nullptr));
  EXPECT_EQ(std::string(text, count), "hello");
  EXPECT_TRUE(ReadFile(in, text, 8, &count, nullptr));
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(SetFilePointer(in, -2, nullptr, FILE_END), 3u);
  EXPECT_EQ(SetFilePointer(in, 1, nullptr, FILE_CURRENT), 4u);
  EXPECT_EQ(SetFilePointer(in, -1, nullptr, FILE_BEGIN), INVALID_SET_FILE_POINTER);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NEGATIVE_SEEK));
  EXPECT_FALSE(WriteFile(in, text, 1, &count, nullptr));
  EXPECT_EQ(count, 0u);
  CloseHandle(in);
}

TEST_F(Files, CreatingEmptiesAnExistingFile) {
  const HANDLE first = Create("standin.dat");
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SUCCESS));
  Write(first, "long text");
  CloseHandle(first);
  const HANDLE second = Create("standin.dat", GENERIC_READ | GENERIC_WRITE);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ALREADY_EXISTS));
  EXPECT_EQ(GetFileSize(second, nullptr), 0u);
  CloseHandle(second);
}

TEST_F(Files, AreNotSharedWhileOpen) {
  const HANDLE out = Create("standin.dat");
  Write(out, "x");
  EXPECT_EQ(Open("standin.dat"), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
  EXPECT_EQ(Open((folder_ + "standin.dat").c_str()), INVALID_HANDLE_VALUE);
  EXPECT_EQ(Create("standin.dat"), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetFileSize(out, nullptr), 1u);
  CloseHandle(out);
  const HANDLE reader = Open("standin.dat", FILE_SHARE_READ);
  EXPECT_EQ(Open("standin.dat"), INVALID_HANDLE_VALUE);
  const HANDLE second = Open("standin.dat", FILE_SHARE_READ);
  EXPECT_NE(second, INVALID_HANDLE_VALUE);
  CloseHandle(second);
  CloseHandle(reader);
}

TEST_F(Files, TellMissingFilesFromMissingFolders) {
  const struct {
    const char* path;
    DWORD error;
  } cases[] = {{"missing.dat", ERROR_FILE_NOT_FOUND},
               {"missing\\missing.dat", ERROR_PATH_NOT_FOUND},
               {"", ERROR_PATH_NOT_FOUND},
               {"what?.dat", ERROR_INVALID_NAME}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(GetFileAttributesA(row.path), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetLastError(), row.error);
    EXPECT_EQ(Open(row.path), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), row.error);
  }
  EXPECT_EQ(Create("missing\\x.dat"), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
  EXPECT_EQ(Open("."), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
}

TEST_F(Files, AttributesTellFoldersApart) {
  CloseHandle(Create("standin.dat"));
  const DWORD file = GetFileAttributesA("standin.dat");
  EXPECT_NE(file, INVALID_FILE_ATTRIBUTES);
  EXPECT_FALSE(file & FILE_ATTRIBUTE_DIRECTORY);
  EXPECT_TRUE(GetFileAttributesA(".") & FILE_ATTRIBUTE_DIRECTORY);
  EXPECT_TRUE(GetFileAttributesA(folder_.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
}

TEST_F(Files, ClosedAndInvalidHandlesFail) {
  const HANDLE file = Create("standin.dat");
  EXPECT_TRUE(CloseHandle(file));
  DWORD count = 7;
  char byte = 0;
  EXPECT_FALSE(ReadFile(file, &byte, 1, &count, nullptr));
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
  EXPECT_FALSE(ReadFile(INVALID_HANDLE_VALUE, &byte, 1, &count, nullptr));
  EXPECT_EQ(GetFileSize(INVALID_HANDLE_VALUE, nullptr), INVALID_FILE_SIZE);
}

TEST_F(Files, TheCurrentFolderIsGivenWithBackslashes) {
  char path[MAX_PATH];
  const DWORD length = GetCurrentDirectoryA(MAX_PATH, path);
  EXPECT_EQ(length, std::string(path).size());
  EXPECT_EQ(std::string(path).find('/'), std::string::npos);
  EXPECT_NE(std::string(path).find('\\'), std::string::npos);
  EXPECT_EQ(GetCurrentDirectoryA(2, path), length + 1);
  EXPECT_FALSE(SetCurrentDirectoryA("missing"));
  char module[MAX_PATH];
  EXPECT_GT(GetModuleFileNameA(nullptr, module, MAX_PATH), 0u);
  EXPECT_NE(std::string(module).find('\\'), std::string::npos);
  EXPECT_EQ(std::string(module).find('/'), std::string::npos);
}

TEST(Process, EndsWithItsExitCode) { EXPECT_EXIT(ExitProcess(7), testing::ExitedWithCode(7), ""); }

TEST(Clipboard, TakesABitmapAndIsHeldByOneWindow) {
  EXPECT_EQ(SetClipboardData(CF_BITMAP, nullptr), nullptr);
  const HWND one =
      CreateWindowExA(0, "Static", "1", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  const HWND two =
      CreateWindowExA(0, "Static", "2", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(OpenClipboard(one));
  EXPECT_FALSE(OpenClipboard(two));
  EXPECT_TRUE(EmptyClipboard());
  EXPECT_EQ(GetClipboardData(CF_BITMAP), nullptr);
  const HDC screen = GetDC(nullptr);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, 3, 2);
  EXPECT_EQ(SetClipboardData(CF_BITMAP, bitmap), static_cast<HANDLE>(bitmap));
  EXPECT_TRUE(CloseClipboard());
  EXPECT_FALSE(CloseClipboard());
  ASSERT_TRUE(OpenClipboard(two));
  BITMAP description{};
  GetObjectA(GetClipboardData(CF_BITMAP), sizeof description, &description);
  EXPECT_EQ(description.bmWidth, 3);
  EXPECT_EQ(description.bmHeight, 2);
  EXPECT_TRUE(EmptyClipboard());
  EXPECT_EQ(GetClipboardData(CF_BITMAP), nullptr);
  CloseClipboard();
  ReleaseDC(nullptr, screen);
  DestroyWindow(one);
  DestroyWindow(two);
}

}  // namespace
