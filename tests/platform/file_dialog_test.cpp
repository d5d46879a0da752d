#include <gtest/gtest.h>

#include <cstdio>

#include "resources/resource.h"
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

TEST_F(FileDialogs, SaveGivesTheFullPath) {
  User user;
  user.ChooseFile("Save As", folder_ + "new.png");
  EXPECT_TRUE(GetSaveFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "new.png");
  EXPECT_EQ(request_.nFileOffset, folder_.size());
  EXPECT_EQ(request_.nFileExtension, folder_.size() + 4);
}

TEST_F(FileDialogs, SaveAddsTheExtensionOfTheFileTypeOrTheDefault) {
  User user;
  user.ChooseFile("Save As", folder_ + "new");
  EXPECT_TRUE(GetSaveFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "new.png");
  request_.lpstrFilter = "All\0*.*\0";
  request_.lpstrDefExt = "shp";
  user.ChooseFile("Save As", folder_ + "other");
  EXPECT_TRUE(GetSaveFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "other.shp");
}

TEST_F(FileDialogs, SaveReplacesWithoutAsking) {
  User user;
  user.ChooseFile("Save As", folder_ + "there.bmp");
  EXPECT_TRUE(GetSaveFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "there.bmp");
}

TEST_F(FileDialogs, ProposeTheNameInTheBuffer) {
  std::snprintf(path_, MAX_PATH, "%s", (folder_ + "there.bmp").c_str());
  User user;
  user.When("Save As", [](HWND dialog) {
    EXPECT_EQ(Text(dialog, cmb13), "there.bmp");
    Press(dialog, IDOK);
  });
  EXPECT_TRUE(GetSaveFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "there.bmp");
}

TEST_F(FileDialogs, CancelLeavesTheBuffer) {
  std::snprintf(path_, MAX_PATH, "%s", (folder_ + "there.bmp").c_str());
  User user;
  user.When("Save As", [](HWND dialog) { Press(dialog, IDCANCEL); });
  EXPECT_FALSE(GetSaveFileNameA(&request_));
  EXPECT_EQ(CommDlgExtendedError(), 0u);
  EXPECT_EQ(path_, folder_ + "there.bmp");
}

TEST_F(FileDialogs, OpenLooksInTheFolderItIsGiven) {
  request_.lpstrInitialDir = folder_.c_str();
  request_.lpstrTitle = "Choose file to open";
  User user;
  user.ChooseFile("Choose file to open", "there.bmp");
  EXPECT_TRUE(GetOpenFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "there.bmp");
  EXPECT_EQ(CurrentFolder(), folder_);
}

// Presses the only button of a message box over the file dialog, whatever its caption.
void CALLBACK PressBox(HWND, UINT, UINT_PTR, DWORD) {
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM) -> BOOL {
        const bool box = IsWindowVisible(window) && IsWindowEnabled(window) &&
                         !GetDlgItem(window, cmb13) &&
                         (GetDlgItem(window, IDOK) || GetDlgItem(window, IDCANCEL));
        if (box) Press(window, GetDlgItem(window, IDOK) ? IDOK : IDCANCEL);
        return !box;
      },
      0);
}

TEST_F(FileDialogs, OpenRefusesAMissingFileAndGoesOn) {
  request_.lpstrInitialDir = folder_.c_str();
  User user;
  user.When("Open", [&](HWND dialog) {
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, PressBox);
    SendMessageA(dialog, CDM_SETCONTROLTEXT, cmb13, reinterpret_cast<LPARAM>("missing.bmp"));
    Press(dialog, IDOK);
    KillTimer(nullptr, timer);
    EXPECT_TRUE(IsWindowVisible(dialog));
    // Only now: the box may have had the dialog's caption.
    user.ChooseFile("Open", "there.bmp");
  });
  EXPECT_TRUE(GetOpenFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "there.bmp");
}

TEST_F(FileDialogs, TooSmallABufferIsAnError) {
  request_.nMaxFile = 4;
  User user;
  user.ChooseFile("Save As", folder_ + "new.bmp");
  EXPECT_FALSE(GetSaveFileNameA(&request_));
  EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(FNERR_BUFFERTOOSMALL));
}

TEST_F(FileDialogs, AStructureOfAnotherSizeIsAnError) {
  request_.lStructSize = 10;
  EXPECT_FALSE(GetSaveFileNameA(&request_));
  EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(CDERR_STRUCTSIZE));
  User user;
  request_.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
  user.ChooseFile("Save As", folder_ + "new.bmp");
  EXPECT_TRUE(GetSaveFileNameA(&request_));
}

// What the extension of an Open dialog hears.
std::vector<std::string> heard;

UINT_PTR CALLBACK Hook(HWND child, UINT message, WPARAM, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      heard.push_back(GetDlgItem(child, IDC_OPEN_PREVIEW) ? "INIT" : "INIT without controls");
      heard.push_back(reinterpret_cast<OPENFILENAMEA*>(lParam)->lpstrDefExt);
      return 1;
    case WM_SIZE:
      if (heard.back() != "SIZE") heard.push_back("SIZE");
      return 1;
    case WM_NOTIFY: {
      const auto code = static_cast<int>(reinterpret_cast<NMHDR*>(lParam)->code);
      if (code == static_cast<int>(CDN_SELCHANGE)) {
        char path[MAX_PATH] = "";
        SendMessageA(GetParent(child), CDM_GETFILEPATH, MAX_PATH, reinterpret_cast<LPARAM>(path));
        heard.push_back(path);
      }
      return 1;
    }
    case WM_DESTROY:
      heard.push_back("DESTROY");
      return 1;
    default:
      return 0;
  }
}

TEST_F(FileDialogs, OpenHasAnExtensionWithItsOwnControls) {
  heard = {""};
  WNDCLASSEXA preview{};
  preview.cbSize = sizeof preview;
  preview.lpfnWndProc = DefWindowProcA;
  preview.hInstance = GetModuleHandleA(nullptr);
  preview.lpszClassName = "ImagePreview";
  const bool registered = RegisterClassExA(&preview) != 0;
  request_.lpstrInitialDir = folder_.c_str();
  request_.hInstance = GetModuleHandleA(nullptr);
  request_.lpTemplateName = MAKEINTRESOURCEA(IDD_OPEN_PREVIEW);
  request_.lpfnHook = Hook;
  request_.Flags |= OFN_ENABLEHOOK | OFN_ENABLETEMPLATE;
  User user;
  user.When("Open", [&](HWND dialog) {
    heard.resize(4);
    EXPECT_EQ(heard, (std::vector<std::string>{"", "INIT", "bmp", "SIZE"}));
    char path[MAX_PATH] = "";
    SendMessageA(dialog, CDM_GETFILEPATH, MAX_PATH, reinterpret_cast<LPARAM>(path));
    EXPECT_EQ(path + std::string("\\"), folder_) << "without a name it is the folder";
    heard.clear();
    SelectFile(dialog, "there.bmp");
    EXPECT_EQ(heard, (std::vector<std::string>{folder_ + "there.bmp"}));
    heard.clear();
    Press(dialog, IDOK);
  });
  EXPECT_TRUE(GetOpenFileNameA(&request_));
  EXPECT_EQ(path_, folder_ + "there.bmp");
  EXPECT_EQ(heard.back(), "DESTROY");
  if (registered) UnregisterClassA("ImagePreview", preview.hInstance);
}

}  // namespace
