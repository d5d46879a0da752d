#include <gtest/gtest.h>

#include "controls/control.h"
#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

TEST(Windows, AreBornAndSizedBeforeTheyAreShown) {
  MessageLog log({WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 10, 20, 100, 50);
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
  const HWND parent = log.Create("1", WS_POPUP, 0, 0, 100, 100);
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
  const HWND window = log.Create("1", WS_POPUP, 0, 0, 10, 10);
  DestroyWindow(window);
  RECT rect{1, 2, 3, 4};
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(GetClientRect(window, &rect));
  EXPECT_EQ(rect.right, 3);
  EXPECT_FALSE(SetWindowTextA(window, "x"));
  EXPECT_FALSE(PostMessageA(window, WM_USER, 0, 0));
  EXPECT_EQ(SetFocus(window), nullptr);
  EXPECT_EQ(GetDC(window), nullptr);
  EXPECT_EQ(GetDlgItem(window, 1), nullptr);
  SetLastError(0);
  EXPECT_EQ(GetWindowLongPtrA(window, GWL_STYLE), 0);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
}

TEST(Windows, ArePaintedAnewWhenTheyAreResized) {
  MessageLog log({WM_PAINT});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50);
  Settle();
  log.Take();
  SetWindowPos(window, nullptr, 0, 0, 60, 50, SWP_NOMOVE | SWP_NOZORDER);
  Settle();
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT"}));
}

TEST(ScrollBars, ComeAndGoWithTheirRangeAndResizeTheWindow) {
  MessageLog log({WM_SIZE});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100);
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
  // The range that the hidden bar has already does not bring it back.
  SetScrollRange(window, SB_VERT, 0, 10, TRUE);
  EXPECT_EQ(log.Take(), Lines{});
  ShowScrollBar(window, SB_VERT, TRUE);
  EXPECT_EQ(log.Take().size(), 1u);
  SetScrollPos(window, SB_VERT, 99, TRUE);
  EXPECT_EQ(GetScrollPos(window, SB_VERT), 10);
}

COLORREF PixelAt(HWND window, int x, int y) {
  const HDC dc = GetDC(window);
  const COLORREF colour = GetPixel(dc, x, y);
  ReleaseDC(window, dc);
  return colour;
}

TEST(Painting, HappensOncePerInvalidationAndOnlyWhenVisible) {
  MessageLog log({WM_PAINT, WM_ERASEBKGND});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  Settle();
  log.Take();
  InvalidateRect(window, nullptr, FALSE);
  InvalidateRect(window, nullptr, FALSE);
  Settle();
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT"}));
  InvalidateRect(window, nullptr, TRUE);
  UpdateWindow(window);
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT", "1 ERASE"}));
  UpdateWindow(window);
  Settle();
  EXPECT_EQ(log.Take(), Lines{});
  ShowWindow(window, SW_HIDE);
  InvalidateRect(window, nullptr, TRUE);
  Settle();
  EXPECT_EQ(log.Take(), Lines{});
}

TEST(Painting, IsKeptInsideTheInvalidPart) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  Settle();
  const RECT part{10, 10, 20, 20};
  InvalidateRect(window, &part, FALSE);
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window, &paint);
  EXPECT_EQ(paint.rcPaint.left, 10);
  EXPECT_EQ(paint.rcPaint.bottom, 20);
  EXPECT_FALSE(paint.fErase);
  const RECT all{0, 0, 60, 40};
  FillRect(dc, &all, GetSysColorBrush(COLOR_WINDOWTEXT));
  EndPaint(window, &paint);
  EXPECT_EQ(PixelAt(window, 15, 15), GetSysColor(COLOR_WINDOWTEXT));
  EXPECT_EQ(PixelAt(window, 25, 15), GetSysColor(COLOR_WINDOW));
}

}  // namespace
