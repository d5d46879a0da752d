#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "resources/resource.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

Lines* heard = nullptr;

// Writes down what a dialog hears.
INT_PTR CALLBACK WritingProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      heard->push_back("INIT " + std::to_string(lParam) + " focus " +
                       std::to_string(GetDlgCtrlID(reinterpret_cast<HWND>(wParam))) +
                       (IsWindowVisible(dialog) ? " visible" : " hidden"));
      return TRUE;
    case WM_COMMAND:
      heard->push_back("COMMAND " + std::to_string(LOWORD(wParam)) + " code " +
                       std::to_string(HIWORD(wParam)));
      if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, 5);
        heard->push_back(IsWindow(dialog) ? "still a window" : "no window");
        heard->push_back(IsWindowVisible(dialog) ? "visible" : "hidden");
      }
      return TRUE;
    case WM_SIZE:
      heard->push_back("SIZE");
      return FALSE;
    case WM_DESTROY:
      heard->push_back("DESTROY");
      return FALSE;
    default:
      return FALSE;
  }
}

class Dialogs : public testing::Test {
 protected:
  Dialogs() : log_({WM_ENABLE}) {
    owner_ = log_.Create("1", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 400, 300);
    Settle();
    log_.Take();
    heard = &heard_;
  }
  INT_PTR Run(int id, LPARAM param = 0) {
    return DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), owner_, WritingProc,
                           param);
  }

  MessageLog log_;
  HWND owner_ = nullptr;
  Lines heard_;
};

TEST_F(Dialogs, RunUntilTheyAreEnded) {
  User user;
  user.When("Select item", [&](HWND dialog) {
    EXPECT_FALSE(IsWindowEnabled(owner_));
    EXPECT_EQ(GetParent(dialog), owner_);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_SELECT_LIST));
    Press(dialog, IDCANCEL);
    EXPECT_TRUE(IsWindowEnabled(owner_));
    EXPECT_TRUE(IsWindow(dialog));
  });
  EXPECT_EQ(Run(IDD_SELECT_ITEM, 77), 5);
  EXPECT_EQ(heard_,
            (Lines{"INIT 77 focus 1008 hidden", "COMMAND 1008 code 4", "COMMAND 1008 code 5",
                   "COMMAND 2 code 0", "still a window", "hidden", "DESTROY"}));
  EXPECT_EQ(log_.Take(), (Lines{"1 DISABLE", "1 ENABLE"}));
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(Dialogs, KeysMoveTheFocusAndPressButtons) {
  User user;
  user.When("Add new item", [&](HWND dialog) {
    CheckRadioButton(dialog, IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_SOVIET);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_LIST);
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_SOVIET);
    heard_.clear();
    PressKey(GetFocus(), VK_DOWN);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_YURI);
    EXPECT_TRUE(IsChecked(dialog, IDC_ADD_YURI));
    EXPECT_FALSE(IsChecked(dialog, IDC_ADD_SOVIET));
    EXPECT_EQ(heard_, (Lines{"COMMAND 1012 code 0"}));
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDOK);
    PressKey(GetFocus(), VK_TAB);
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_LIST);
    heard_.clear();
    // Enter in the list presses the default button.
    PressKey(GetFocus(), VK_RETURN);
    EXPECT_EQ(heard_, (Lines{"COMMAND 1 code 0"}));
    heard_.clear();
    PressKey(GetFocus(), VK_ESCAPE);
    EXPECT_EQ(heard_.front(), "COMMAND 2 code 0");
  });
  EXPECT_EQ(Run(IDD_ADD_ITEM), 5);
}

TEST_F(Dialogs, GiveTheFocusBackToItsControlAfterABox) {
  User user;
  user.When("Add new item", [&](HWND dialog) {
    SetFocus(GetDlgItem(dialog, IDCANCEL));
    MessageBoxA(dialog, "text", "Box", MB_OK | MB_ICONHAND);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDCANCEL);
    // Tab skips what is disabled.
    EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
    CheckRadioButton(dialog, IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_YURI);
    SetFocus(GetDlgItem(dialog, IDC_ADD_YURI));
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDCANCEL);
    PressKey(GetFocus(), VK_RETURN);
  });
  user.When("Box", [](HWND box) { PressKey(box, VK_ESCAPE); });
  EXPECT_EQ(Run(IDD_ADD_ITEM), 5);
}

}  // namespace
