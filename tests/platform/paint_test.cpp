#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

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
