#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

constexpr DWORD kPlainPopup = WS_POPUP;

POINT ClientSize(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

TEST(Windows, AreBornAndSizedBeforeTheyAreShown) {
  MessageLog log({WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW});
  const HWND window = log.Create("1", kPlainPopup | WS_VISIBLE, 10, 20, 100, 50);
  EXPECT_EQ(log.Take(),
            (Lines{"1 NCCREATE", "1 CREATE", "1 SIZE 100x50", "1 MOVE 10,20", "1 SHOW"}));
  EXPECT_TRUE(IsWindowVisible(window));
}

TEST(Windows, OverlappedOnesLearnTheirSizeWhenFirstShown) {
  MessageLog log({WM_CREATE, WM_SIZE, WM_SHOWWINDOW});
  const HWND window = log.Create("1", WS_OVERLAPPEDWINDOW, 10, 20, 300, 200);
  EXPECT_EQ(log.Take(), (Lines{"1 CREATE"}));
  ShowWindow(window, SW_SHOWNORMAL);
  const POINT size = ClientSize(window);
  EXPECT_EQ(log.Take(),
            (Lines{"1 SHOW", "1 SIZE " + std::to_string(size.x) + "x" + std::to_string(size.y)}));
  ShowWindow(window, SW_HIDE);
  ShowWindow(window, SW_SHOW);
  EXPECT_EQ(log.Take(), (Lines{"1 HIDE", "1 SHOW"}));
}

TEST(Windows, ChildrenHearOfDestructionAfterTheirParentAndAreFreedBeforeIt) {
  MessageLog log({WM_DESTROY, WM_NCDESTROY});
  const HWND parent = log.Create("1", kPlainPopup, 0, 0, 100, 100);
  const HWND child = log.Create("2", WS_CHILD, 0, 0, 50, 50, parent, 7);
  const HWND grandchild = log.Create("3", WS_CHILD, 0, 0, 20, 20, child);
  EXPECT_TRUE(DestroyWindow(parent));
  EXPECT_EQ(log.Take(), (Lines{"1 DESTROY", "2 DESTROY", "3 DESTROY", "3 NCDESTROY", "2 NCDESTROY",
                               "1 NCDESTROY"}));
  EXPECT_FALSE(IsWindow(child));
  EXPECT_FALSE(IsWindow(grandchild));
}

TEST(Windows, OwnedOnesGoWithTheirOwner) {
  MessageLog log({WM_DESTROY});
  const HWND owner = log.Create("1", kPlainPopup, 0, 0, 100, 100);
  const HWND owned = log.Create("2", kPlainPopup, 0, 0, 50, 50, owner);
  EXPECT_EQ(GetParent(owned), owner);
  DestroyWindow(owner);
  EXPECT_EQ(log.Take(), (Lines{"2 DESTROY", "1 DESTROY"}));
  EXPECT_FALSE(IsWindow(owned));
}

TEST(Windows, RefusalInCreateLeavesNone) {
  MessageLog log({WM_CREATE, WM_NCDESTROY, WM_SIZE});
  log.createResult = -1;
  EXPECT_EQ(log.Create("1", kPlainPopup, 0, 0, 10, 10), nullptr);
  EXPECT_EQ(log.Take(), (Lines{"1 CREATE", "1 NCDESTROY"}));
}

TEST(Windows, StaleHandlesFailEveryCall) {
  MessageLog log({});
  const HWND window = log.Create("1", kPlainPopup, 0, 0, 10, 10);
  DestroyWindow(window);
  RECT rect{1, 2, 3, 4};
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(IsWindow(nullptr));
  EXPECT_FALSE(GetClientRect(window, &rect));
  EXPECT_EQ(rect.right, 3);
  EXPECT_FALSE(GetWindowRect(window, &rect));
  EXPECT_FALSE(DestroyWindow(window));
  EXPECT_FALSE(ShowWindow(window, SW_SHOW));
  EXPECT_FALSE(SetWindowPos(window, nullptr, 0, 0, 5, 5, 0));
  EXPECT_FALSE(SetWindowTextA(window, "x"));
  EXPECT_EQ(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0), 0);
  EXPECT_FALSE(PostMessageA(window, WM_USER, 0, 0));
  EXPECT_EQ(SetFocus(window), nullptr);
  EXPECT_EQ(GetDC(window), nullptr);
  EXPECT_EQ(GetDlgItem(window, 1), nullptr);
  SetLastError(0);
  EXPECT_EQ(GetWindowLongPtrA(window, GWL_STYLE), 0);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
}

TEST(Windows, UnknownClassAndMissingParentAreErrors) {
  EXPECT_EQ(CreateWindowExA(0, "NoSuchClass", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                            nullptr),
            nullptr);
  EXPECT_NE(GetLastError(), static_cast<DWORD>(ERROR_SUCCESS));
  MessageLog log({});
  EXPECT_EQ(log.Create("1", WS_CHILD, 0, 0, 1, 1), nullptr);
}

TEST(Windows, ClassNamesAreTakenOnceWhateverTheirCase) {
  MessageLog log({});
  WNDCLASSEXA again{};
  again.cbSize = sizeof again;
  again.lpfnWndProc = DefWindowProcA;
  again.hInstance = GetModuleHandleA(nullptr);
  again.lpszClassName = "LOGwindow";
  EXPECT_EQ(RegisterClassExA(&again), 0);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_ALREADY_EXISTS));
  again.cbSize = 1;
  again.lpszClassName = "Other";
  EXPECT_EQ(RegisterClassExA(&again), 0);
  const HWND window = log.Create("1", kPlainPopup, 0, 0, 1, 1);
  EXPECT_FALSE(UnregisterClassA(kLogClass, GetModuleHandleA(nullptr)));
  DestroyWindow(window);
}

TEST(Windows, WordsKeepWhatIsPutIn) {
  MessageLog log({});
  const HWND parent = log.Create("1", kPlainPopup | WS_BORDER, 0, 0, 100, 100);
  const HWND child = log.Create("2", WS_CHILD | WS_TABSTOP, 0, 0, 10, 10, parent, 1015);
  EXPECT_EQ(SetWindowLongPtrA(child, GWLP_USERDATA, 0x123456789ALL), 0);
  EXPECT_EQ(SetWindowLongPtrA(child, GWLP_USERDATA, 0), 0x123456789ALL);
  EXPECT_EQ(GetWindowLongPtrA(child, GWLP_ID), 1015);
  EXPECT_EQ(GetDlgCtrlID(child), 1015);
  EXPECT_EQ(GetDlgItem(parent, 1015), child);
  EXPECT_EQ(GetParent(child), parent);
  EXPECT_EQ(GetParent(parent), nullptr);
  EXPECT_EQ(GetWindowLongPtrA(child, GWL_STYLE), static_cast<LONG_PTR>(WS_CHILD | WS_TABSTOP));
  EXPECT_TRUE(GetWindowLongPtrA(parent, GWL_STYLE) & WS_CLIPSIBLINGS);
  char name[32];
  EXPECT_EQ(GetClassNameA(child, name, 32), 9);
  EXPECT_STREQ(name, "LogWindow");
  EXPECT_EQ(FindWindowA(kLogClass, "1"), parent);
  EXPECT_EQ(FindWindowA(kLogClass, "3"), nullptr);
}

TEST(Windows, SubclassingGoesThroughTheOldProcedure) {
  MessageLog log({WM_USER});
  const HWND window = log.Create("1", kPlainPopup, 0, 0, 1, 1);
  static WNDPROC before;
  const WNDPROC after = [](HWND handle, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
    if (message == WM_USER) return CallWindowProcA(before, handle, message, wParam + 1, lParam) + 5;
    return CallWindowProcA(before, handle, message, wParam, lParam);
  };
  before = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(after)));
  EXPECT_EQ(SendMessageA(window, WM_USER, 1, 0), 5);
  EXPECT_EQ(log.Take(), (Lines{"1 USER 2"}));
  DestroyWindow(window);
}

TEST(Windows, TextIsCutToTheBuffer) {
  MessageLog log({});
  const HWND window = log.Create("12345", kPlainPopup, 0, 0, 1, 1);
  char text[4] = "xxx";
  EXPECT_EQ(GetWindowTextLengthA(window), 5);
  EXPECT_EQ(GetWindowTextA(window, text, 4), 3);
  EXPECT_STREQ(text, "123");
  EXPECT_TRUE(SetWindowTextA(window, ""));
  EXPECT_EQ(GetWindowTextA(window, text, 4), 0);
  EXPECT_STREQ(text, "");
}

TEST(Windows, AreVisibleOnlyWithTheirParents) {
  MessageLog log({});
  const HWND parent = log.Create("1", kPlainPopup, 0, 0, 100, 100);
  const HWND child = log.Create("2", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, parent);
  EXPECT_FALSE(IsWindowVisible(child));
  EXPECT_FALSE(ShowWindow(parent, SW_SHOW));
  EXPECT_TRUE(IsWindowVisible(child));
  EXPECT_TRUE(ShowWindow(child, SW_HIDE));
  EXPECT_FALSE(IsWindowVisible(child));
}

TEST(Windows, FadingShowsAndHidesThem) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP, 0, 0, 50, 50);
  EXPECT_TRUE(AnimateWindow(window, 20, AW_BLEND));
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_FALSE(AnimateWindow(window, 20, AW_BLEND));
  EXPECT_TRUE(AnimateWindow(window, 20, AW_BLEND | AW_HIDE));
  EXPECT_FALSE(IsWindowVisible(window));
  EXPECT_FALSE(AnimateWindow(window, 20, AW_BLEND | AW_HIDE));
}

TEST(Windows, EnablingTellsWhatWas) {
  MessageLog log({WM_ENABLE});
  const HWND window = log.Create("1", kPlainPopup, 0, 0, 10, 10);
  EXPECT_FALSE(EnableWindow(window, FALSE));
  EXPECT_TRUE(EnableWindow(window, FALSE));
  EXPECT_FALSE(IsWindowEnabled(window));
  EXPECT_TRUE(EnableWindow(window, TRUE));
  EXPECT_EQ(log.Take(), (Lines{"1 DISABLE", "1 ENABLE"}));
}

BOOL CALLBACK Collect(HWND window, LPARAM param) {
  reinterpret_cast<std::string*>(param)->append(Text(window));
  return TRUE;
}

TEST(Windows, ChildrenAreListedInTheOrderOfTheirMaking) {
  MessageLog log({});
  const HWND parent = log.Create("1", kPlainPopup, 0, 0, 100, 100);
  const HWND second = log.Create("2", WS_CHILD, 0, 0, 10, 10, parent);
  log.Create("3", WS_CHILD, 0, 0, 10, 10, second);
  const HWND last = log.Create("4", WS_CHILD, 0, 0, 10, 10, parent);
  std::string names;
  EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&names));
  EXPECT_EQ(names, "234");
  SetWindowPos(last, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
  names.clear();
  EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&names));
  EXPECT_EQ(names, "423");
}

// Placing.

TEST(Placing, TellsMovesAndSizesApart) {
  MessageLog log({WM_SIZE, WM_MOVE});
  const HWND parent = log.Create("1", kPlainPopup | WS_VISIBLE, 100, 100, 200, 200);
  const HWND child = log.Create("2", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, parent);
  log.Take();
  SetWindowPos(child, nullptr, 10, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(log.Take(), (Lines{"2 MOVE 10,20"}));
  SetWindowPos(child, nullptr, 0, 0, 60, 70, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(log.Take(), (Lines{"2 SIZE 60x70"}));
  MoveWindow(child, 1, 2, 3, 4, TRUE);
  EXPECT_EQ(log.Take(), (Lines{"2 MOVE 1,2", "2 SIZE 3x4"}));
  MoveWindow(child, 1, 2, 3, 4, TRUE);
  EXPECT_EQ(log.Take(), Lines{});
  RECT rect{};
  GetWindowRect(child, &rect);
  EXPECT_EQ(rect.left, 101);
  EXPECT_EQ(rect.bottom, 106);
}

TEST(Placing, ShowsAndHides) {
  MessageLog log({WM_SHOWWINDOW});
  const HWND window = log.Create("1", kPlainPopup, 0, 0, 10, 10);
  const UINT still = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
  SetWindowPos(window, nullptr, 0, 0, 0, 0, still | SWP_SHOWWINDOW);
  EXPECT_TRUE(IsWindowVisible(window));
  SetWindowPos(window, nullptr, 0, 0, 0, 0, still | SWP_HIDEWINDOW);
  EXPECT_FALSE(IsWindowVisible(window));
}

TEST(Placing, KeepsToTheSmallestSizeOfAWindowThatCanBeSized) {
  MessageLog log({});
  log.minimum = {440, 334};
  const HWND window = log.Create("1", WS_POPUP | WS_CAPTION | WS_THICKFRAME, 0, 0, 500, 400);
  SetWindowPos(window, nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
  RECT rect{};
  GetWindowRect(window, &rect);
  EXPECT_EQ(rect.right - rect.left, 440);
  EXPECT_EQ(rect.bottom - rect.top, 334);
  const HWND fixed = log.Create("2", WS_POPUP | WS_BORDER, 0, 0, 500, 400);
  SetWindowPos(fixed, nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
  GetWindowRect(fixed, &rect);
  EXPECT_EQ(rect.right - rect.left, 100);
}

TEST(Placing, ClientAreaIsTheFrameLessBordersAndBars) {
  MessageLog log({});
  const HWND plain = log.Create("1", kPlainPopup, 0, 0, 200, 100);
  EXPECT_EQ(ClientSize(plain).x, 200);
  const HWND bordered = log.Create("2", WS_POPUP | WS_BORDER, 0, 0, 200, 100);
  EXPECT_EQ(ClientSize(bordered).x, 198);
  EXPECT_EQ(ClientSize(bordered).y, 98);
  const HWND captioned = log.Create("3", WS_POPUP | WS_CAPTION, 0, 0, 200, 100);
  EXPECT_LT(ClientSize(captioned).y, 90);
  // A new style takes effect with the frame.
  SetWindowLongPtrA(plain, GWL_STYLE, static_cast<LONG_PTR>(WS_POPUP | WS_BORDER));
  EXPECT_EQ(ClientSize(plain).x, 200);
  SetWindowPos(plain, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
  EXPECT_EQ(ClientSize(plain).x, 198);
}

// Scroll bars.

TEST(ScrollBars, ComeAndGoWithTheirRangeAndResizeTheWindow) {
  MessageLog log({WM_SIZE});
  const HWND window = log.Create("1", kPlainPopup | WS_VISIBLE, 0, 0, 200, 100);
  log.Take();
  SetScrollRange(window, SB_HORZ, 0, 50, TRUE);
  const LONG bar = 100 - ClientSize(window).y;
  EXPECT_GT(bar, 5);
  EXPECT_EQ(log.Take(), (Lines{"1 SIZE 200x" + std::to_string(100 - bar)}));
  SetScrollRange(window, SB_HORZ, 0, 60, TRUE);
  EXPECT_EQ(log.Take(), Lines{});
  SetScrollRange(window, SB_HORZ, 0, 0, TRUE);
  EXPECT_EQ(log.Take(), (Lines{"1 SIZE 200x100"}));
  SetScrollRange(window, SB_VERT, 0, 10, TRUE);
  EXPECT_EQ(log.Take(), (Lines{"1 SIZE " + std::to_string(200 - bar) + "x100"}));
  ShowScrollBar(window, SB_VERT, FALSE);
  EXPECT_EQ(log.Take(), (Lines{"1 SIZE 200x100"}));
  ShowScrollBar(window, SB_VERT, FALSE);
  EXPECT_EQ(log.Take(), Lines{});
}

TEST(ScrollBars, KeepThePositionWithinTheRange) {
  MessageLog log({});
  const HWND window = log.Create("1", kPlainPopup | WS_VISIBLE, 0, 0, 200, 100);
  SetScrollRange(window, SB_VERT, 0, 50, FALSE);
  EXPECT_EQ(SetScrollPos(window, SB_VERT, 20, TRUE), 0);
  EXPECT_EQ(SetScrollPos(window, SB_VERT, 70, TRUE), 20);
  EXPECT_EQ(GetScrollPos(window, SB_VERT), 50);
  SetScrollPos(window, SB_VERT, -3, TRUE);
  EXPECT_EQ(GetScrollPos(window, SB_VERT), 0);
  SetScrollPos(window, SB_VERT, 40, TRUE);
  SetScrollRange(window, SB_VERT, 0, 30, TRUE);
  EXPECT_EQ(GetScrollPos(window, SB_VERT), 30);
  int minimum = -1, maximum = -1;
  EXPECT_TRUE(GetScrollRange(window, SB_VERT, &minimum, &maximum));
  EXPECT_EQ(minimum, 0);
  EXPECT_EQ(maximum, 30);
}

}  // namespace
