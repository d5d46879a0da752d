#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

// A window with one control of the class under test, number 100, and a log of what it tells its
// parent.
class Controls : public testing::Test {
 protected:
  explicit Controls(std::vector<UINT> wanted = {WM_COMMAND, WM_HSCROLL, WM_VSCROLL})
      : log_(std::move(wanted)) {
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

TEST_F(Buttons, TellOneClick) {
  Add("Button", BS_PUSHBUTTON);
  Press(parent_, 100);
  EXPECT_EQ(Told(BN_CLICKED), 1);
  EXPECT_FALSE(IsChecked(parent_, 100));
}

TEST_F(Buttons, CheckBoxesTurnOverWithEveryClick) {
  Add("Button", BS_AUTOCHECKBOX);
  Press(parent_, 100);
  EXPECT_TRUE(IsChecked(parent_, 100));
  Press(parent_, 100);
  EXPECT_FALSE(IsChecked(parent_, 100));
  EXPECT_EQ(Told(BN_CLICKED), 2);
  CheckDlgButton(parent_, 100, BST_CHECKED);
  EXPECT_TRUE(IsChecked(parent_, 100));
  EXPECT_EQ(Told(BN_CLICKED), 0);
}

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

TEST_F(Buttons, ACheckedRadioButtonIsATabStopAndAnUncheckedOneIsNot) {
  const HWND radio = Add("Button", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP);
  SendMessageA(radio, BM_SETCHECK, BST_UNCHECKED, 0);
  EXPECT_FALSE(GetWindowLongPtrA(radio, GWL_STYLE) & WS_TABSTOP);
  SendMessageA(radio, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_TRUE(GetWindowLongPtrA(radio, GWL_STYLE) & WS_TABSTOP);
}

TEST_F(Buttons, ReleaseBesideTheButtonIsNoClick) {
  const HWND button = Add("Button", BS_PUSHBUTTON);
  SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_EQ(GetCapture(), button);
  SendMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(500, 5));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(Told(BN_CLICKED), 0);
}

TEST_F(Buttons, SpacePressesTheOneWithTheFocus) {
  const HWND button = Add("Button", BS_AUTOCHECKBOX);
  SetFocus(button);
  log_.Take();
  PressKey(button, VK_SPACE);
  EXPECT_EQ(Told(BN_CLICKED), 1);
  EXPECT_TRUE(IsChecked(parent_, 100));
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

TEST_F(Edits, OfSeveralLinesKeepQuietWhenTheirTextIsSet) {
  const HWND edit = Add("Edit", ES_MULTILINE);
  SetWindowTextA(edit, "abc\r\ndef");
  EXPECT_EQ(Told(EN_CHANGE), 0);
  EXPECT_EQ(Text(edit), "abc\r\ndef");
  SendMessageA(edit, WM_CHAR, 'x', 1);
  EXPECT_EQ(Told(EN_CHANGE), 1);
  EXPECT_EQ(Text(edit), "xabc\r\ndef");
}

TEST_F(Edits, TakeCharactersUpToTheLimitButAnyTextThatIsSet) {
  const HWND edit = Add("Edit", ES_AUTOHSCROLL);
  SendMessageA(edit, EM_LIMITTEXT, 3, 0);
  EXPECT_EQ(SendMessageA(edit, EM_GETLIMITTEXT, 0, 0), 3);
  Type(parent_, 100, "12345");
  EXPECT_EQ(Text(edit), "123");
  SetWindowTextA(edit, "12345");
  EXPECT_EQ(Text(edit), "12345");
}

TEST_F(Edits, TellWhenTheLimitIsHit) {
  const HWND edit = Add("Edit", ES_AUTOHSCROLL);
  SendMessageA(edit, EM_LIMITTEXT, 2, 0);
  Type(parent_, 100, "12");
  log_.Take();
  SendMessageA(edit, WM_CHAR, '3', 1);
  EXPECT_EQ(log_.Take(), (Lines{"1 COMMAND 100 code 1281", "1 COMMAND 100 code 1024",
                                "1 COMMAND 100 code 768"}));
}

TEST_F(Edits, ForNumbersRefuseOtherCharactersButNotOtherTexts) {
  const HWND edit = Add("Edit", ES_NUMBER);
  Type(parent_, 100, "-1a2");
  EXPECT_EQ(Text(edit), "12");
  SetWindowTextA(edit, "x");
  EXPECT_EQ(Text(edit), "x");
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
  SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
  Type(parent_, 100, "");
  EXPECT_EQ(Text(edit), "");
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
  SendMessageA(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("zz"));
  EXPECT_EQ(Text(edit), "zzaf");
  EXPECT_EQ(Told(EN_CHANGE), 1);
  PressKey(edit, VK_END);
  PressKey(edit, VK_LEFT);
  SendMessageA(edit, WM_CHAR, '-', 1);
  EXPECT_EQ(Text(edit), "zza-f");
}

TEST_F(Edits, OfSeveralLinesMoveTheCaretBetweenThem) {
  const HWND edit = Add("Edit", ES_MULTILINE, 100, "MMMM\r\nMM\r\nMMMM");
  const struct {
    int from;
    int key, to;
  } moves[] = {{1, VK_DOWN, 7},  {3, VK_DOWN, 8}, {7, VK_DOWN, 11}, {12, VK_DOWN, 12},
               {11, VK_UP, 7},   {7, VK_UP, 1},   {2, VK_UP, 2},    {3, VK_RIGHT, 4},
               {4, VK_RIGHT, 6}, {6, VK_LEFT, 4}, {8, VK_LEFT, 7}};
  for (const auto& move : moves) {
    SCOPED_TRACE(move.from);
    SendMessageA(edit, EM_SETSEL, static_cast<WPARAM>(move.from), move.from);
    PressKey(edit, move.key);
    EXPECT_EQ(LOWORD(SendMessageA(edit, EM_GETSEL, 0, 0)), move.to);
  }
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

TEST_F(Edits, GiveNumbersToTheDialog) {
  const struct {
    const char* text;
    BOOL isSigned;
    UINT value;
    BOOL translated;
  } cases[] = {{"42", FALSE, 42, TRUE},        {"", FALSE, 0, FALSE},
               {"abc", FALSE, 0, FALSE},       {"12x", FALSE, 12, TRUE},
               {" 7", FALSE, 7, TRUE},         {"-5", TRUE, static_cast<UINT>(-5), TRUE},
               {"1,024", FALSE, 1, TRUE},      {"4294967295", FALSE, 4294967295u, TRUE},
               {"4294967296", FALSE, 0, FALSE}};
  const HWND edit = Add("Edit", ES_AUTOHSCROLL);
  for (const auto& row : cases) {
    SCOPED_TRACE(row.text);
    SetWindowTextA(edit, row.text);
    BOOL translated = 2;
    EXPECT_EQ(GetDlgItemInt(parent_, 100, &translated, row.isSigned), row.value);
    EXPECT_EQ(translated, row.translated);
  }
  SetDlgItemInt(parent_, 100, static_cast<UINT>(-3), TRUE);
  EXPECT_EQ(Text(edit), "-3");
  SetDlgItemInt(parent_, 100, 256, FALSE);
  EXPECT_EQ(Text(edit), "256");
  EXPECT_EQ(Told(EN_CHANGE), 11);
}

using Lists = Controls;

struct ListKind {
  const char* name;
  const char* className;
  DWORD style, sorted;
  UINT add, insert, remove, count, select, selected, getData, setData, getText;
  int changed, focused, left;
};
constexpr ListKind kKinds[] = {
    {"ListBox", "ListBox", LBS_NOTIFY, LBS_SORT, LB_ADDSTRING, LB_INSERTSTRING, LB_DELETESTRING,
     LB_GETCOUNT, LB_SETCURSEL, LB_GETCURSEL, LB_GETITEMDATA, LB_SETITEMDATA, LB_GETTEXT,
     LBN_SELCHANGE, LBN_SETFOCUS, LBN_KILLFOCUS},
    {"ComboBox", "ComboBox", CBS_DROPDOWNLIST, CBS_SORT, CB_ADDSTRING, CB_INSERTSTRING,
     CB_DELETESTRING, CB_GETCOUNT, CB_SETCURSEL, CB_GETCURSEL, CB_GETITEMDATA, CB_SETITEMDATA,
     CB_GETLBTEXT, CBN_SELCHANGE, CBN_SETFOCUS, CBN_KILLFOCUS}};

void PrintTo(const ListKind& kind, std::ostream* out) { *out << kind.name; }

class ListKinds : public Controls, public testing::WithParamInterface<ListKind> {
 protected:
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(list_, message, wParam, lParam);
  }
  LRESULT SendText(UINT message, const char* text, WPARAM wParam = 0) {
    return Send(message, wParam, reinterpret_cast<LPARAM>(text));
  }
  void Make(bool sorted) {
    list_ = Add(GetParam().className, GetParam().style | (sorted ? GetParam().sorted : 0));
  }
  HWND list_ = nullptr;
};

TEST_P(ListKinds, SortTextsWithoutRegardToCase) {
  Make(true);
  for (const char* text : {"Zebra", "apple", "Banana", "banana", "07", "Apple pie"})
    SendText(GetParam().add, text);
  EXPECT_EQ(Items(parent_, 100), (Lines{"07", "apple", "Apple pie", "banana", "Banana", "Zebra"}));
}

TEST_P(ListKinds, KeepDataWithTheirEntries) {
  Make(true);
  const auto b = static_cast<WPARAM>(SendText(GetParam().add, "b"));
  EXPECT_EQ(b, 0u);
  EXPECT_EQ(Send(GetParam().getData, b), 0);
  EXPECT_NE(Send(GetParam().setData, b, 0x123456789ALL), LB_ERR);
  EXPECT_EQ(SendText(GetParam().add, "a"), 0);
  EXPECT_EQ(Send(GetParam().getData, 1), 0x123456789ALL);
  EXPECT_EQ(Send(GetParam().getData, 5), LB_ERR);
  EXPECT_EQ(Send(GetParam().setData, 5, 1), LB_ERR);
}

TEST_P(ListKinds, InsertWhereTheyAreTold) {
  Make(true);
  EXPECT_EQ(SendText(GetParam().insert, "a", 0), 0);
  EXPECT_EQ(SendText(GetParam().insert, "b", 0), 0);
  EXPECT_EQ(SendText(GetParam().insert, "c", static_cast<WPARAM>(-1)), 2);
  EXPECT_EQ(SendText(GetParam().insert, "d", 9), LB_ERR);
  EXPECT_EQ(Items(parent_, 100), (Lines{"b", "a", "c"}));
  EXPECT_EQ(Send(GetParam().remove, 1), 2);
  EXPECT_EQ(Send(GetParam().remove, 2), LB_ERR);
  EXPECT_EQ(Items(parent_, 100), (Lines{"b", "c"}));
}

TEST_P(ListKinds, SelectWithoutTelling) {
  Make(false);
  EXPECT_EQ(Send(GetParam().selected), LB_ERR);
  for (const char* text : {"x", "y", "z"}) SendText(GetParam().add, text);
  EXPECT_EQ(Send(GetParam().select, 1), 1);
  EXPECT_EQ(Send(GetParam().selected), 1);
  EXPECT_EQ(Send(GetParam().select, 7), LB_ERR);
  EXPECT_EQ(Send(GetParam().select, static_cast<WPARAM>(-1)), LB_ERR);
  EXPECT_EQ(Send(GetParam().selected), LB_ERR);
  EXPECT_EQ(Told(GetParam().changed), 0);
}

TEST_P(ListKinds, TheUsersChoiceIsToldOnce) {
  Make(false);
  for (const char* text : {"x", "y", "z"}) SendText(GetParam().add, text);
  for (const int position : {1, 0, 2, 2, 0}) {
    Choose(parent_, 100, position);
    EXPECT_EQ(Selected(parent_, 100), position);
    EXPECT_EQ(Told(GetParam().changed), 1) << position;
  }
  PressKey(list_, VK_HOME);
  PressKey(list_, VK_DOWN);
  EXPECT_EQ(Selected(parent_, 100), 1);
  PressKey(list_, VK_END);
  EXPECT_EQ(Selected(parent_, 100), 2);
}

TEST_P(ListKinds, ASingleEntryCanBeChosen) {
  Make(false);
  SendText(GetParam().add, "only");
  Choose(parent_, 100, 0);
  EXPECT_EQ(Selected(parent_, 100), 0);
  EXPECT_EQ(Told(GetParam().changed), 1);
}

TEST_P(ListKinds, InsertionBeforeTheSelectionMovesIt) {
  Make(false);
  for (const char* text : {"x", "y"}) SendText(GetParam().add, text);
  Send(GetParam().select, 1);
  SendText(GetParam().insert, "w", 0);
  EXPECT_EQ(Selected(parent_, 100), 2);
  Send(GetParam().remove, 2);
  EXPECT_EQ(Selected(parent_, 100), LB_ERR);
}

TEST_P(ListKinds, TellWhenTheFocusComesAndGoes) {
  Make(false);
  SetFocus(parent_);
  log_.Take();
  SetFocus(list_);
  EXPECT_EQ(Told(GetParam().focused), 1);
  SetFocus(parent_);
  EXPECT_EQ(Told(GetParam().left), 1);
}

INSTANTIATE_TEST_SUITE_P(Both, ListKinds, testing::ValuesIn(kKinds),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Lists, AListBoxTellsAClickWhenTheButtonComesUp) {
  const HWND list = Add("ListBox", LBS_NOTIFY);
  for (const char* text : {"x", "y", "z"})
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  Click(list, 5, 3);
  EXPECT_EQ(Selected(parent_, 100), 0);
  EXPECT_EQ(Told(LBN_SELCHANGE), 1);
}

TEST_F(Lists, AComboBoxShowsItsSelection) {
  const HWND combo = Add("ComboBox", CBS_DROPDOWNLIST);
  SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("first"));
  EXPECT_EQ(Text(combo), "");
  SendMessageA(combo, CB_SETCURSEL, 0, 0);
  EXPECT_EQ(Text(combo), "first");
}

using CommonControls = Controls;

TEST_F(CommonControls, TheStatusBarLiesAlongTheBottomAndKeepsItsParts) {
  const HWND bar = Add(STATUSCLASSNAMEA, CCS_BOTTOM);
  const int rights[] = {70, 270, -1};
  EXPECT_TRUE(SendMessageA(bar, SB_SETPARTS, 3, reinterpret_cast<LPARAM>(rights)));
  int read[3] = {};
  EXPECT_EQ(SendMessageA(bar, SB_GETPARTS, 3, reinterpret_cast<LPARAM>(read)), 3);
  EXPECT_EQ(read[1], 270);
  EXPECT_EQ(read[2], -1);
  EXPECT_TRUE(SendMessageA(bar, SB_SETTEXTA, 1, reinterpret_cast<LPARAM>("Current mode")));
  EXPECT_FALSE(SendMessageA(bar, SB_SETTEXTA, 3, reinterpret_cast<LPARAM>("none")));
  char text[64] = "";
  EXPECT_EQ(LOWORD(SendMessageA(bar, SB_GETTEXTA, 1, reinterpret_cast<LPARAM>(text))), 12);
  EXPECT_STREQ(text, "Current mode");
  EXPECT_EQ(LOWORD(SendMessageA(bar, SB_GETTEXTLENGTHA, 1, 0)), 12);
  SetWindowPos(parent_, nullptr, 0, 0, 400, 150, SWP_NOMOVE | SWP_NOZORDER);
  SendMessageA(bar, WM_SIZE, 0, 0);
  RECT frame{}, parentFrame{};
  GetWindowRect(bar, &frame);
  GetWindowRect(parent_, &parentFrame);
  EXPECT_EQ(frame.bottom, parentFrame.bottom);
  EXPECT_EQ(frame.right - frame.left, 400);
  EXPECT_GT(frame.bottom - frame.top, 10);
}

TEST_F(CommonControls, ATrackbarTellsTheUsersMoves) {
  const HWND bar = Add(TRACKBAR_CLASSA, TBS_BOTH | TBS_NOTICKS);
  SendMessageA(bar, TBM_SETRANGE, TRUE, MAKELPARAM(0, 511));
  SendMessageA(bar, TBM_SETPOS, TRUE, 255);
  EXPECT_EQ(SendMessageA(bar, TBM_GETPOS, 0, 0), 255);
  EXPECT_EQ(SendMessageA(bar, TBM_GETRANGEMAX, 0, 0), 511);
  EXPECT_EQ(log_.Take(), Lines{});
  SetFocus(bar);
  PressKey(bar, VK_RIGHT);
  EXPECT_EQ(SendMessageA(bar, TBM_GETPOS, 0, 0), 256);
  EXPECT_EQ(log_.Take(), (Lines{"1 HSCROLL 1", "1 HSCROLL 8"}));
  PressKey(bar, VK_HOME);
  EXPECT_EQ(SendMessageA(bar, TBM_GETPOS, 0, 0), 0);
  PressKey(bar, VK_NEXT);
  EXPECT_EQ(SendMessageA(bar, TBM_GETPOS, 0, 0), 102);
  SendMessageA(bar, TBM_SETPOS, TRUE, 900);
  EXPECT_EQ(SendMessageA(bar, TBM_GETPOS, 0, 0), 511);
  for (const int position : {0, 300, 511}) {
    Slide(parent_, 100, position);
    EXPECT_EQ(SendMessageA(bar, TBM_GETPOS, 0, 0), position);
  }
}

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
  EXPECT_EQ(SendMessageA(bar, PBM_GETRANGE, FALSE, 0), 13);
  EXPECT_EQ(SendMessageA(bar, PBM_SETPOS, 99, 0), 1);
  EXPECT_EQ(SendMessageA(bar, PBM_GETPOS, 0, 0), 13);
}

class Arrows : public Controls {
 protected:
  void Make(DWORD style = 0) {
    edit_ = Add("Edit", ES_NUMBER | WS_TABSTOP, 100);
    arrows_ = Add(UPDOWN_CLASSA, UDS_SETBUDDYINT | UDS_AUTOBUDDY | UDS_ARROWKEYS | style, 101);
  }
  HWND edit_ = nullptr, arrows_ = nullptr;
};

TEST_F(Arrows, TakeTheControlBeforeThemAsBuddy) {
  Make();
  EXPECT_EQ(SendMessageA(arrows_, UDM_GETBUDDY, 0, 0), reinterpret_cast<LRESULT>(edit_));
  EXPECT_EQ(Text(edit_), "");
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(66, 0));
  EXPECT_EQ(SendMessageA(arrows_, UDM_GETRANGE, 0, 0), MAKELONG(66, 0));
  EXPECT_EQ(Text(edit_), "");
}

TEST_F(Arrows, CountInTheirBuddyWithinTheRange) {
  Make();
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(2, 0));
  SetWindowTextA(edit_, "0");
  log_.Take();
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "1");
  EXPECT_EQ(Told(EN_CHANGE), 1);
  PressKey(edit_, VK_UP);
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "2");
  EXPECT_EQ(Told(EN_CHANGE), 1);
  PressKey(edit_, VK_DOWN);
  EXPECT_EQ(Text(edit_), "1");
  log_.Take();
  PressKey(edit_, VK_DOWN);
  EXPECT_EQ(log_.Take(),
            (Lines{"1 COMMAND 100 code 1024", "1 COMMAND 100 code 768", "1 VSCROLL 4 at 0"}));
  PressKey(edit_, VK_DOWN);
  EXPECT_EQ(Text(edit_), "0");
}

TEST_F(Arrows, StartFromWhatTheBuddyShows) {
  Make();
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(300, 0));
  SetWindowTextA(edit_, "41");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "42");
  // Beyond the range the last position counts; an empty text is 0.
  SetWindowTextA(edit_, "900");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "43");
  SetWindowTextA(edit_, "abc");
  PressKey(edit_, VK_DOWN);
  EXPECT_EQ(Text(edit_), "42");
  SetWindowTextA(edit_, "");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "1");
}

TEST_F(Arrows, SetTheirPositionIntoTheBuddy) {
  Make();
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(300, 0));
  log_.Take();
  SendMessageA(arrows_, UDM_SETPOS, 0, MAKELPARAM(7, 0));
  EXPECT_EQ(Text(edit_), "7");
  EXPECT_EQ(Told(EN_CHANGE), 1);
  EXPECT_EQ(LOWORD(SendMessageA(arrows_, UDM_GETPOS, 0, 0)), 7);
  SendMessageA(arrows_, UDM_SETPOS, 0, MAKELPARAM(7, 0));
  EXPECT_EQ(Told(EN_CHANGE), 0);
  SendMessageA(arrows_, UDM_SETPOS, 0, MAKELPARAM(500, 0));
  EXPECT_EQ(Text(edit_), "300");
}

TEST_F(Arrows, ThousandsAreSeparatedUnlessTheStyleForbidsIt) {
  Make();
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(2000, 0));
  SetWindowTextA(edit_, "1233");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "1,234");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "1,235");
}

TEST_F(Arrows, CountThousandsPlainlyWhenTold) {
  Make(UDS_NOTHOUSANDS);
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(2000, 0));
  SetWindowTextA(edit_, "1233");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "1234");
}

TEST_F(Arrows, AClickOnTheUpperHalfCountsUp) {
  Make();
  SendMessageA(arrows_, UDM_SETRANGE, 0, MAKELPARAM(50, 0));
  SetWindowTextA(edit_, "10");
  Click(arrows_, 5, 5);
  EXPECT_EQ(Text(edit_), "11");
  Click(arrows_, 5, 50);
  EXPECT_EQ(Text(edit_), "10");
}

TEST_F(Arrows, LetTheirBuddyGo) {
  Make();
  DestroyWindow(arrows_);
  SetWindowTextA(edit_, "5");
  PressKey(edit_, VK_UP);
  EXPECT_EQ(Text(edit_), "5");
  DestroyWindow(edit_);
}

}  // namespace
