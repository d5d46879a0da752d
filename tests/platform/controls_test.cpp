#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "support/user.h"

namespace {

// A window with one control of the class under test, number 100, and a log of what it tells its
// parent.
class Controls : public testing::Test {
 protected:
  Controls() : log_({WM_COMMAND, WM_HSCROLL}) {
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

TEST_F(Controls, RadioButtonsOfAGroupAreCheckedOneAtATime) {
  Add("Button", BS_AUTORADIOBUTTON | WS_GROUP, 100);
  Add("Button", BS_AUTORADIOBUTTON, 101);
  Add("Button", BS_AUTORADIOBUTTON | WS_GROUP, 102);
  for (const int id : {100, 102, 101}) Press(parent_, id);
  EXPECT_FALSE(IsChecked(parent_, 100));
  EXPECT_TRUE(IsChecked(parent_, 101));
  EXPECT_TRUE(IsChecked(parent_, 102));
}

TEST_F(Controls, AButtonReleasedOutsideIsNotPressed) {
  const HWND button = Add("Button", 0);
  SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(500, 5));
  EXPECT_EQ(Told(BN_CLICKED), 0);
  Click(button, 5, 5);
  EXPECT_EQ(Told(BN_CLICKED), 1);
}

TEST_F(Controls, ThatAreDisabledLoseTheFocus) {
  const HWND edit = Add("Edit", 0);
  SetFocus(edit);
  EnableWindow(edit, FALSE);
  EXPECT_NE(GetFocus(), edit);
  EXPECT_EQ(Told(EN_KILLFOCUS), 1);
}

TEST_F(Controls, EditsDeleteAtTheCaretAndInTheSelection) {
  const HWND edit = Add("Edit", 0, 100, "abcdef");
  SendMessageA(edit, EM_SETSEL, 2, 4);
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

TEST_F(Controls, EditsOfSeveralLinesDoNotTellThatTheirTextWasSet) {
  SetWindowTextA(Add("Edit", ES_MULTILINE), "text");
  EXPECT_EQ(Told(EN_CHANGE, 100), 0);
  SetWindowTextA(Add("Edit", 0, 101), "text");
  EXPECT_EQ(Told(EN_CHANGE, 101), 1);
}

TEST_F(Controls, EditsThatAreReadOnlyTakeNoKeys) {
  const HWND edit = Add("Edit", ES_READONLY, 100, "fixed");
  Type(parent_, 100, "abc");
  PressKey(edit, VK_DELETE);
  EXPECT_EQ(Text(edit), "fixed");
}

TEST_F(Controls, ListsSortWithoutCaseAndTellAClickWhenTheButtonComesUp) {
  const HWND list = Add("ListBox", LBS_NOTIFY | LBS_SORT);
  for (const char* text : {"b", "C", "A"})
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  EXPECT_EQ(Items(parent_, 100), (std::vector<std::string>{"A", "b", "C"}));
  Click(list, 5, 3);
  EXPECT_EQ(Selected(parent_, 100), 0);
  EXPECT_EQ(Told(LBN_SELCHANGE), 1);
  // The selection stays with its entry when another one is put above it.
  SendMessageA(list, LB_INSERTSTRING, 0, reinterpret_cast<LPARAM>("first"));
  EXPECT_EQ(Selected(parent_, 100), 1);
}

TEST_F(Controls, AProgressBarStartsOverPastItsEnd) {
  const HWND bar = Add(PROGRESS_CLASSA, 0);
  SendMessageA(bar, PBM_SETRANGE, 0, MAKELPARAM(0, 3));
  SendMessageA(bar, PBM_SETSTEP, 1, 0);
  for (const int position : {1, 2, 3, 1}) {
    SendMessageA(bar, PBM_STEPIT, 0, 0);
    EXPECT_EQ(SendMessageA(bar, PBM_GETPOS, 0, 0), position);
  }
}

TEST_F(Controls, ATrackbarAtItsEndTellsNothing) {
  const HWND bar = Add(TRACKBAR_CLASSA, 0);
  SendMessageA(bar, TBM_SETRANGE, TRUE, MAKELPARAM(0, 1));
  const auto scrolls = [&] {
    SendMessageA(bar, WM_KEYDOWN, VK_RIGHT, 1);
    return log_.Take().size();
  };
  EXPECT_EQ(scrolls(), 1u);
  EXPECT_EQ(scrolls(), 0u);
}

}  // namespace
