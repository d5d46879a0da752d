#include "shell/main_window.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "document/item_operations.h"
#include "shell/startup.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCloseQuestion[] = "Do you want to close Corvanta now?\nAll data won't be saved!";

class MainWindowTest : public EditorFixture {
 protected:
  // Chooses a command by what the menu says.
  void Choose(const std::string& wanted) {
    for (int popup = 0; popup < GetMenuItemCount(GetMenu(doc.mainWindow)); ++popup) {
      const HMENU menu = GetSubMenu(GetMenu(doc.mainWindow), popup);
      for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        char text[64] = "";
        GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
        if (text == wanted) return Command(GetMenuItemID(menu, i));
      }
    }
    ADD_FAILURE() << "The menu does not say " << wanted;
  }

  // The view fills what a status bar below leaves.
  static void ExpectLaidOut() {
    RECT view{}, bar{};
    GetWindowRect(doc.viewWindow, &view);
    GetWindowRect(doc.statusBar, &bar);
    const LONG height = IsWindowVisible(doc.statusBar) ? bar.bottom - bar.top : 0;
    const SIZE client = ClientSize(doc.mainWindow);
    EXPECT_EQ(client.cx, view.right - view.left);
    EXPECT_EQ(client.cy - height, view.bottom - view.top);
    if (height > 0) {
      EXPECT_EQ(view.bottom, bar.top);
    }
  }
};

TEST_F(MainWindowTest, MenuOpensEveryDialog) {
  doc.animateAboutBox = 0;
  doc.screenshot = PlainPicture(234, 232, 1);
  WriteSettings("[SymbolsList]\n[CameosList]\n");
  for (const auto& [command, dialog] : {std::pair("Save as SHP...", "Save As"),
                                        {"Save as...", "Save As"},
                                        {"Add new item...", "Add new item"},
                                        {"Select item...", "Select item"},
                                        {"Load screen settings...", "Load screen settings"},
                                        {"Screenshot settings...", "Screen shot settings"},
                                        {"About", "About Corvanta"}}) {
    WithDialog(
        dialog, [this, command = command] { Choose(command); },
        [this](HWND) {
          // What another program sends meanwhile would open a second dialog, and end the editor.
          Command(IDM_ADD_ITEM);
          SendMessageA(doc.mainWindow, WM_CLOSE, 0, 0);
        });
  }
}

TEST_F(MainWindowTest, ModesAndLayersAreChosenOnTheirOwn) {
  const std::pair<UINT, const char*> modes[] = {{IDM_MOVE_LARGE_MAP, "Move large map"},
                                                {IDM_MOVE_TARGET_BOX, "Move target box"},
                                                {IDM_MOVE_SMALL_MAP, "Move small map"}};
  for (const auto& [chosen, text] : modes) {
    Choose(text);
    EXPECT_EQ(std::string("Current mode: ") + text, StatusText(1));
    for (const auto& mode : modes) EXPECT_EQ(mode.first == chosen, IsCommandChecked(mode.first));
  }
  for (const UINT layer : {IDM_VIEW_BOTTOM_LAYER, IDM_VIEW_TOP_LAYER}) Command(layer);
  EXPECT_FALSE(IsCommandChecked(IDM_VIEW_BOTTOM_LAYER) || IsCommandChecked(IDM_VIEW_TOP_LAYER));
  EXPECT_EQ(0U, CanvasPixel(400, 200)) << "neither layer is shown";
}

TEST_F(MainWindowTest, ViewFillsWhatTheStatusBarLeavesAtEverySize) {
  for (const bool bar : {true, false, true}) {
    if (bar != IsCommandChecked(IDM_STATUS_BAR)) Choose("Status bar");
    EXPECT_EQ(bar, IsCommandChecked(IDM_STATUS_BAR));
    EXPECT_EQ(bar, IsWindowVisible(doc.statusBar) != 0);
    ExpectLaidOut();
    for (const SIZE size : {SIZE{1100, 700}, SIZE{500, 300}}) {
      SetWindowPos(doc.mainWindow, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
      ExpectLaidOut();
    }
  }
}

TEST_F(MainWindowTest, EditorEndsOnlyOnYes) {
  AddItem(PlainPicture(4, 4, 1), 10, 400, 0);
  const auto closeBox = [] { SendMessageA(doc.mainWindow, WM_CLOSE, 0, 0); };
  const auto exit = [this] { Choose("Exit"); };
  for (const std::function<void()>& close : {std::function<void()>(closeBox), {exit}}) {
    user.Answer("Corvanta", kCloseQuestion, MB_ICONQUESTION, IDNO);
    close();
    EXPECT_TRUE(IsWindow(doc.mainWindow));
    EXPECT_EQ(1, doc.items.Count());
  }
  user.Answer("Corvanta", kCloseQuestion, MB_ICONQUESTION, IDYES);
  exit();
  EXPECT_FALSE(IsWindow(doc.mainWindow));
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
  EXPECT_EQ(0U, message.wParam);
}

}  // namespace
