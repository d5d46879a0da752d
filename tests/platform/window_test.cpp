#include <gtest/gtest.h>

#include "controls/control.h"
#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

constexpr DWORD kPlainPopup = WS_POPUP;

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
  const SIZE size = ClientSize(window);
  EXPECT_EQ(log.Take(),
            (Lines{"1 SHOW", "1 SIZE " + std::to_string(size.cx) + "x" + std::to_string(size.cy)}));
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

TEST(ScrollBars, ComeAndGoWithTheirRangeAndResizeTheWindow) {
  MessageLog log({WM_SIZE});
  const HWND window = log.Create("1", kPlainPopup | WS_VISIBLE, 0, 0, 200, 100);
  log.Take();
  SetScrollRange(window, SB_HORZ, 0, 50, TRUE);
  const LONG bar = 100 - ClientSize(window).cy;
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

}  // namespace
