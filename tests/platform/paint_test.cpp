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

TEST(Painting, ErasesWithTheClassBrushAndKeepsWhatIsDrawn) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  Settle();
  EXPECT_EQ(PixelAt(window, 30, 20), GetSysColor(COLOR_WINDOW));
  const HDC dc = GetDC(window);
  SetPixel(dc, 30, 20, RGB(255, 0, 0));
  ReleaseDC(window, dc);
  EXPECT_EQ(PixelAt(window, 30, 20), RGB(255, 0, 0));
  EXPECT_EQ(PixelAt(window, 31, 20), GetSysColor(COLOR_WINDOW));
  InvalidateRect(window, nullptr, TRUE);
  EXPECT_EQ(PixelAt(window, 30, 20), RGB(255, 0, 0));
  Settle();
  EXPECT_EQ(PixelAt(window, 30, 20), GetSysColor(COLOR_WINDOW));
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

TEST(Painting, ValidationTakesItBack) {
  MessageLog log({WM_PAINT});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  Settle();
  log.Take();
  InvalidateRect(window, nullptr, TRUE);
  ValidateRect(window, nullptr);
  Settle();
  EXPECT_EQ(log.Take(), Lines{});
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT"}));
}

TEST(Painting, OfAnUnvalidatedWindowComesAgain) {
  MessageLog log({WM_PAINT});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  Settle();
  log.Take();
  log.paints = false;
  InvalidateRect(window, nullptr, FALSE);
  MSG message{};
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(PeekMessageA(&message, window, WM_PAINT, WM_PAINT, PM_REMOVE));
    DispatchMessageA(&message);
  }
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT", "1 PAINT"}));
  log.paints = true;
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

TEST(Painting, OfAParentReachesItsChildrenUnlessItClipsThem) {
  MessageLog log({WM_PAINT});
  const HWND plain = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  log.Create("2", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, plain);
  const HWND clipping = log.Create("3", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 200, 100, 60, 40);
  log.Create("4", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, clipping);
  Settle();
  log.Take();
  InvalidateRect(plain, nullptr, FALSE);
  Settle();
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT", "2 PAINT"}));
  InvalidateRect(clipping, nullptr, FALSE);
  Settle();
  EXPECT_EQ(log.Take(), (Lines{"3 PAINT"}));
}

TEST(Painting, ReachesEveryWindowThatComesIntoSight) {
  MessageLog log({WM_PAINT});
  const HWND window = log.Create("1", WS_POPUP | WS_CLIPCHILDREN, 100, 100, 60, 40);
  const HWND child = log.Create("2", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, window);
  Settle();
  EXPECT_EQ(log.Take(), Lines{});
  ShowWindow(window, SW_SHOW);
  Settle();
  EXPECT_EQ(log.Take(), (Lines{"1 PAINT", "2 PAINT"}));
  ShowWindow(child, SW_HIDE);
  Settle();
  log.Take();
  ShowWindow(child, SW_SHOW);
  Settle();
  EXPECT_EQ(log.Take(), (Lines{"2 PAINT"}));
}

TEST(Painting, ShowsAPictureFromMemory) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP | WS_VISIBLE, 100, 100, 60, 40);
  Settle();
  const HDC dc = GetDC(window);
  const HDC memory = CreateCompatibleDC(dc);
  const HBITMAP bitmap = CreateCompatibleBitmap(dc, 8, 8);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  SetPixel(memory, 3, 4, RGB(0, 200, 100));
  EXPECT_TRUE(BitBlt(dc, 20, 10, 8, 8, memory, 0, 0, SRCCOPY));
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, dc);
  EXPECT_EQ(PixelAt(window, 23, 14), RGB(0, 200, 100));
  EXPECT_EQ(PixelAt(window, 19, 14), GetSysColor(COLOR_WINDOW));
}

}  // namespace
