#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

// A window with one control of the class under test, number 100, and a log of what it tells its
// parent.
class Controls : public testing::Test {
 protected:
  Controls() : log_({WM_COMMAND}) {
    parent_ = log_.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 300, 200);
    Settle();
  }

  HWND Add(const char* className, DWORD style, int id = 100, const char* text = "") {
    const HWND control = CreateWindowExA(
        0, className, text, style | WS_CHILD | WS_VISIBLE, 0, 0, 100, 60, parent_,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
    log_.Take();
    return control;
  }

  // How often the control has told its parent the code.
  int Told(int code, int id = 100) {
    const std::string line = "1 COMMAND " + std::to_string(id) + " code " + std::to_string(code);
    int count = 0;
    for (const std::string& taken : log_.Take()) count += taken == line ? 1 : 0;
    return count;
  }

  MessageLog log_;
  HWND parent_ = nullptr;
};

using Buttons = Controls;

TEST_F(Buttons, RadioButtonsOfAGroupAreCheckedOneAtATime) {
  Add("Button", BS_AUTORADIOBUTTON | WS_GROUP, 100);
  Add("Button", BS_AUTORADIOBUTTON, 101);
  Add("Button", BS_AUTORADIOBUTTON | WS_GROUP, 102);
  Press(parent_, 100);
  EXPECT_EQ(Told(BN_CLICKED, 100), 1);
  Press(parent_, 102);
  Press(parent_, 101);
  EXPECT_FALSE(IsChecked(parent_, 100));
  EXPECT_TRUE(IsChecked(parent_, 101));
  EXPECT_TRUE(IsChecked(parent_, 102));
  CheckRadioButton(parent_, 100, 101, 100);
  EXPECT_TRUE(IsChecked(parent_, 100));
  EXPECT_FALSE(IsChecked(parent_, 101));
}

using Edits = Controls;

TEST_F(Edits, TellEveryChangeOfASingleLine) {
  const HWND edit = Add("Edit", ES_AUTOHSCROLL);
  SetWindowTextA(edit, "abc");
  EXPECT_EQ(log_.Take(), (Lines{"1 COMMAND 100 code 1024", "1 COMMAND 100 code 768"}));
  SetWindowTextA(edit, "abc");
  EXPECT_EQ(Told(EN_CHANGE), 1);
  Type(parent_, 100, "xy");
  EXPECT_EQ(Text(edit), "xy");
  EXPECT_EQ(Told(EN_CHANGE), 2);
}

TEST_F(Edits, ThatAreReadOnlyTakeNoKeys) {
  const HWND edit = Add("Edit", ES_READONLY, 100, "fixed");
  Type(parent_, 100, "abc");
  SendMessageA(edit, WM_CHAR, VK_BACK, 1);
  PressKey(edit, VK_DELETE);
  EXPECT_EQ(Text(edit), "fixed");
  EXPECT_EQ(Told(EN_CHANGE), 0);
  SetWindowTextA(edit, "new");
  EXPECT_EQ(Told(EN_CHANGE), 1);
}

TEST_F(Edits, DeleteAtTheCaretAndInTheSelection) {
  const HWND edit = Add("Edit", 0, 100, "abcdef");
  SendMessageA(edit, EM_SETSEL, 2, 4);
  DWORD start = 0, end = 0;
  SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(start, 2u);
  EXPECT_EQ(end, 4u);
  SendMessageA(edit, WM_CLEAR, 0, 0);
  EXPECT_EQ(Text(edit), "abef");
  SendMessageA(edit, WM_CHAR, VK_BACK, 1);
  EXPECT_EQ(Text(edit), "aef");
  PressKey(edit, VK_DELETE);
  EXPECT_EQ(Text(edit), "af");
  EXPECT_EQ(Told(EN_CHANGE), 3);
  SendMessageA(edit, EM_SETSEL, 0, 0);
  SendMessageA(edit, WM_CHAR, VK_BACK, 1);
  EXPECT_EQ(Told(EN_CHANGE), 0);
}

TEST_F(Edits, TellWhenTheFocusComesAndGoes) {
  const HWND edit = Add("Edit", 0);
  SetFocus(parent_);
  log_.Take();
  SetFocus(edit);
  EXPECT_EQ(Told(EN_SETFOCUS), 1);
  SetFocus(parent_);
  EXPECT_EQ(Told(EN_KILLFOCUS), 1);
}

using Lists = Controls;

TEST_F(Lists, AListBoxTellsAClickWhenTheButtonComesUp) {
  const HWND list = Add("ListBox", LBS_NOTIFY);
  for (const char* text : {"x", "y", "z"})
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  Click(list, 5, 3);
  EXPECT_EQ(Selected(parent_, 100), 0);
  EXPECT_EQ(Told(LBN_SELCHANGE), 1);
}

using CommonControls = Controls;

TEST_F(CommonControls, AProgressBarStartsOverPastItsEnd) {
  const HWND bar = Add(PROGRESS_CLASSA, 0);
  SendMessageA(bar, PBM_SETRANGE, 0, MAKELPARAM(0, 13));
  EXPECT_EQ(SendMessageA(bar, PBM_SETSTEP, 1, 0), 10);
  for (int step = 1; step <= 13; ++step) {
    EXPECT_EQ(SendMessageA(bar, PBM_STEPIT, 0, 0), step - 1);
    EXPECT_EQ(SendMessageA(bar, PBM_GETPOS, 0, 0), step);
  }
  SendMessageA(bar, PBM_STEPIT, 0, 0);
  EXPECT_EQ(SendMessageA(bar, PBM_GETPOS, 0, 0), 1);
}

TEST_F(CommonControls, ArrowsStartFromWhatTheirBuddyShows) {
  const HWND edit = Add("Edit", ES_NUMBER | WS_TABSTOP, 100);
  const HWND arrows =
      Add(UPDOWN_CLASSA, UDS_SETBUDDYINT | UDS_AUTOBUDDY | UDS_ARROWKEYS | UDS_NOTHOUSANDS, 101);
  SendMessageA(arrows, UDM_SETRANGE, 0, MAKELPARAM(300, 0));
  SetWindowTextA(edit, "41");
  PressKey(edit, VK_UP);
  EXPECT_EQ(Text(edit), "42");
  // Beyond the range the last position counts; an empty text is 0.
  SetWindowTextA(edit, "900");
  PressKey(edit, VK_UP);
  EXPECT_EQ(Text(edit), "43");
  SetWindowTextA(edit, "abc");
  PressKey(edit, VK_DOWN);
  EXPECT_EQ(Text(edit), "42");
  SetWindowTextA(edit, "");
  PressKey(edit, VK_UP);
  EXPECT_EQ(Text(edit), "1");
}

}  // namespace
