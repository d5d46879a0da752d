// The shipped program where the system fails it, and under anything a user can do.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <random>

#include "e2e/editor.h"
#include "resources/resource.h"
#include "support/file_content.h"
#include "support/temp_folder.h"
#include "support/user.h"

namespace fs = std::filesystem;

namespace {

// The editor in an application folder that the test may spoil.
class FailingSystemTest : public testing::Test {
 protected:
  FailingSystemTest() {
    const fs::path from = fs::u8path(EditorPath()).parent_path(), to = fs::u8path(folder.Path());
    for (const char* file : {"Corvanta.exe", "ImageLib.dll", "Settings.ini", "Templates"}) {
      fs::copy(from / file, to / file, fs::copy_options::recursive);
    }
  }
  void Lose(const std::string& file) { fs::remove(fs::u8path(folder.Path(file))); }

  const TempFolder folder;
  const std::string executable = folder.Path("Corvanta.exe");
};

TEST_F(FailingSystemTest, FilesThatCannotBeWrittenAreTold) {
  Editor editor(executable);
  editor.WaitForPicture();
  const std::string good = folder.Path("good.shp"), lent = folder.Path("lent.shp");
  WriteContent(lent, "another program has it");
  const HANDLE held =
      CreateFileA(lent.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  for (const std::string& bad : {lent, folder.Path("con")}) {
    for (const bool isSprite : {true, false}) {
      const HWND options = editor.BeginExport(isSprite ? bad : good, folder.Path("good.pal"));
      if (!isSprite) Paste(GetDlgItem(options, IDC_SHP_NAME), bad);
      editor.Click(options, IDOK);
      editor.Answer("Error", isSprite ? "SHP file open error!" : "Palette file create error!",
                    IDOK);
      WaitUntil("the options to close", [options] { return !IsWindow(options); });
      EXPECT_EQ(ReadContent(good).size(), isSprite ? 0 : 416032);
      Lose("good.shp");
    }
  }
  CloseHandle(held);
  EXPECT_EQ(ReadContent(lent), "another program has it");
  EXPECT_FALSE(fs::exists(fs::u8path(folder.Path("good.pal"))));
}

TEST_F(FailingSystemTest, WhatHasGoneSinceTheStartIsTold) {
  Editor editor(executable);
  editor.WaitForPicture();
  ASSERT_TRUE(OpenClipboard(nullptr));
  const HWND owner = GetClipboardOwner();
  editor.Command(IDM_COPY);
  editor.Command(IDM_ADD_ITEM);
  editor.Close(editor.Dialog("Add new item"), IDCANCEL);
  EXPECT_EQ(owner, GetClipboardOwner()) << "what this program has open is not the editor's";
  CloseClipboard();
  Lose("Settings.ini");
  editor.Command(IDM_ADD_ITEM);
  editor.Answer("Error", "Error: Can't find Settings.ini file in application directory!", IDOK);
  editor.Close(editor.Dialog("Add new item"), IDCANCEL);
  Lose("Templates/sov_worldmap.png");
  fs::copy(fs::u8path(EditorPath()).parent_path() / "Settings.ini", fs::u8path(folder.Path()));
  editor.Command(IDM_LOAD_SCREEN_SETTINGS);
  editor.Click(editor.Dialog("Load screen settings"), IDC_SETTINGS_SOVIET);
  editor.Answer("Error", "Can't find file!", IDOK);
  EXPECT_EQ(editor.WaitForExit(), 0u);
}

TEST_F(FailingSystemTest, MissingTemplateIsToldAndEndsTheEditor) {
  const struct {
    const char *file, *caption, *text;
  } cases[] = {
      {"all_2icomain.png", "Error", "Can't find file!"},
      {"all_worldmap.png", "Error", "Can't find file!"},
      {"com_worldmap2x.png", "Corvanta", "Error: Can't find com_worldmap2x.PNG file."},
      {"com_smalltargetbox.png", "Corvanta", "Error: Can't find com_smalltargetbox.png file."},
      {"com_largetargetbox.png", "Corvanta", "Error: Can't find com_largetargetbox.png file."},
  };
  for (const auto& missing : cases) {
    Lose(std::string("Templates/") + missing.file);
    const Editor editor(executable);
    editor.Answer(missing.caption, missing.text, IDOK);
    EXPECT_EQ(editor.WaitForExit(), 0u);
  }
}

// Anything a user can do, in whatever window stands. The script so far is told with a failure.
class RandomUse {
 public:
  RandomUse(const Editor& editor, unsigned seed) : editor_(editor), random_(seed) {}

  void Act() {
    std::vector<HWND> windows;
    WaitUntil("one window to take input. Script:\n" + script_, [&] {
      if (!editor_.IsRunning()) GiveUp("The editor has ended. Script:\n" + script_);
      windows = editor_.Windows();
      std::erase_if(windows, [](HWND window) { return ClassOf(window) == "ComboLBox"; });
      return windows.size() == 1;
    });
    windows[0] == editor_.Main() ? WorkMainWindow() : WorkDialog(windows[0]);
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  void Send(HWND window, UINT message, int wParam, LPARAM lParam = 0) {
    script_ += ClassOf(window) + " " + std::to_string(GetDlgCtrlID(window)) + ": " +
               std::to_string(message) + " " + std::to_string(wParam) + " " +
               std::to_string(lParam) + "\n";
    // What opens a window does not return before that is closed.
    SendMessageTimeoutA(window, message, static_cast<WPARAM>(wParam), lParam, SMTO_NORMAL, 100,
                        nullptr);
  }
  void WorkMainWindow() {
    constexpr UINT kCommands[] = {
        IDM_ADD_ITEM,       IDM_LOAD_SCREEN_SETTINGS, IDM_SCREENSHOT_SETTINGS, IDM_SAVE_AS_IMAGE,
        IDM_SAVE_AS_SHP,    IDM_SELECT_ITEM,          IDM_DELETE_ITEM,         IDM_UNSELECT_ITEM,
        IDM_COPY,           IDM_VIEW_TOP_LAYER,       IDM_VIEW_BOTTOM_LAYER,   IDM_STATUS_BAR,
        IDM_MOVE_SMALL_MAP, IDM_MOVE_LARGE_MAP,       IDM_MOVE_TARGET_BOX,     IDM_ABOUT};
    const int kind = Below(4);
    if (kind == 0) return Send(editor_.Main(), WM_COMMAND, kCommands[Below(std::size(kCommands))]);
    if (kind == 1) return Send(editor_.Main(), WM_KEYDOWN, VK_LEFT + Below(4));
    Send(FindChild(editor_.Main(), "ViewClass"), WM_MOUSEMOVE + Below(3), MK_LBUTTON,
         MAKELPARAM(Below(900), Below(600)));
  }
  void WorkDialog(HWND dialog) {
    const std::vector<HWND> controls = ChildWindows(dialog);
    if (controls.empty()) return;  // it is closing
    const HWND control = controls[static_cast<size_t>(Below(static_cast<int>(controls.size())))];
    const std::string kind = ClassOf(control);
    // The system's dialogs might write anywhere.
    if (Below(8) == 0 || FindChild(dialog, "ToolbarWindow32")) return Send(dialog, WM_CLOSE, 0);
    if (kind == "Button") return Send(control, BM_CLICK, 0);
    if (kind == "Edit") return Send(control, WM_CHAR, "0a.\\9"[Below(5)]);
    if (kind != "Static") Send(control, WM_KEYDOWN, VK_PRIOR + Below(8));
  }

  const Editor& editor_;
  std::mt19937 random_;
  std::string script_;
};

TEST_F(FailingSystemTest, RandomUseEndsOnlyOnYes) {
  Editor editor(executable);
  editor.WaitForPicture();
  const char* const seed = std::getenv("CORVANTA_SEED");
  RandomUse user(editor, seed ? static_cast<unsigned>(std::atoi(seed)) : 1);
  for (int left = std::getenv("CORVANTA_LONG") ? 2000 : 100; left > 0; --left) user.Act();
  WaitUntil("every dialog to close", [&] {
    for (const HWND window : editor.Windows()) {
      if (window != editor.Main()) PostMessageA(window, WM_CLOSE, 0, 0);
    }
    return IsWindowEnabled(editor.Main()) != 0;
  });
  editor.Command(IDM_EXIT);
  editor.Answer("Corvanta", "Do you want to close Corvanta now?\nAll data won't be saved!", IDYES);
  EXPECT_EQ(editor.WaitForExit(), 0u);
}

}  // namespace
