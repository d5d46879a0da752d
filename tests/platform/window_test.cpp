#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "controls/control.h"
#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

TEST(MessageQueue, PostedMessagesComeBeforePaintingAndPaintingBeforeTimers) {
  MessageLog log({WM_USER, WM_PAINT, WM_TIMER});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50);
  Settle();
  log.Take();
  SetTimer(window, 1, 10, nullptr);
  InvalidateRect(window, nullptr, FALSE);
  PostMessageA(window, WM_USER, 7, 0);
  PostMessageA(window, WM_USER, 8, 0);
  MSG message{};
  // Until the timer is due as well.
  for (int i = 0; i < 5; ++i) {
    PeekMessageA(&message, nullptr, WM_USER + 1, WM_USER + 1, PM_REMOVE);
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  for (int i = 0; i < 4; ++i) {
    ASSERT_GT(GetMessageA(&message, nullptr, 0, 0), 0);
    DispatchMessageA(&message);
  }
  EXPECT_EQ(log.Take(), (Lines{"1 USER 7", "1 USER 8", "1 PAINT", "1 TIMER"}));
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

TEST(ScrollBars, ThatAreHiddenComeBackForAnotherRangeOnly) {
  MessageLog log({WM_SIZE});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100);
  log.Take();
  SetScrollRange(window, SB_VERT, 0, 10, TRUE);
  const LONG bar = 200 - ClientSize(window).cx;
  EXPECT_EQ(log.Take(), (Lines{"1 SIZE " + std::to_string(200 - bar) + "x100"}));
  ShowScrollBar(window, SB_VERT, FALSE);
  EXPECT_EQ(log.Take(), (Lines{"1 SIZE 200x100"}));
  SetScrollRange(window, SB_VERT, 0, 10, TRUE);
  EXPECT_EQ(log.Take(), Lines{});
  SetScrollRange(window, SB_VERT, 0, 20, TRUE);
  EXPECT_EQ(log.Take().size(), 1U);
}

COLORREF PixelAt(HWND window, int x, int y) {
  const HDC dc = GetDC(window);
  const COLORREF colour = GetPixel(dc, x, y);
  ReleaseDC(window, dc);
  return colour;
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
