#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "controls/control.h"
#include "imaging/memory_dc.h"
#include "platform/message_log.h"
#include "support/user.h"

namespace {

using Messages = MessageLog::Messages;

TEST(MessageQueue, PostedMessagesComeBeforePaintingAndPaintingBeforeTimers) {
  const MessageLog log({});
  const UINT_PTR timer = SetTimer(nullptr, 0, 10, nullptr);
  InvalidateRect(log.window, nullptr, FALSE);
  PostMessageA(log.window, WM_USER, 7, 0);
  PostMessageA(log.window, WM_USER, 8, 0);
  MSG message{};
  // Until the timer is due as well.
  for (int i = 0; i < 5; ++i) {
    PeekMessageA(&message, nullptr, WM_USER + 1, WM_USER + 1, PM_REMOVE);
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  for (const auto& expected :
       Messages{{WM_USER, 7}, {WM_USER, 8}, {WM_PAINT, 0}, {WM_TIMER, timer}}) {
    ASSERT_GT(GetMessageA(&message, nullptr, 0, 0), 0);
    EXPECT_EQ(expected, std::pair(message.message, message.wParam));
    DispatchMessageA(&message);
  }
  KillTimer(nullptr, timer);
}

TEST(Windows, ArePaintedAnewWhenTheyAreResized) {
  MessageLog log({WM_PAINT});
  SetWindowPos(log.window, nullptr, 0, 0, 210, 100, SWP_NOMOVE | SWP_NOZORDER);
  Settle();
  EXPECT_EQ(log.Take(), (Messages{{WM_PAINT, 0}}));
}

TEST(ScrollBars, ThatAreHiddenComeBackForAnotherRangeOnly) {
  MessageLog log({WM_SIZE});
  const auto expectSized = [&log](size_t times, bool hasBar) {
    EXPECT_EQ(log.Take().size(), times);
    EXPECT_EQ(ClientSize(log.window).cx < 200, hasBar);
  };
  SetScrollRange(log.window, SB_VERT, 0, 10, TRUE);
  expectSized(1, true);
  ShowScrollBar(log.window, SB_VERT, FALSE);
  expectSized(1, false);
  SetScrollRange(log.window, SB_VERT, 0, 10, TRUE);
  expectSized(0, false);
  SetScrollRange(log.window, SB_VERT, 0, 20, TRUE);
  expectSized(1, true);
}

TEST(Painting, IsKeptInsideTheInvalidPart) {
  const MessageLog log({});
  const RECT part{10, 10, 20, 20}, all{0, 0, 60, 40};
  InvalidateRect(log.window, &part, FALSE);
  PAINTSTRUCT paint;
  FillRect(BeginPaint(log.window, &paint), &all, GetSysColorBrush(COLOR_WINDOWTEXT));
  EXPECT_TRUE(paint.rcPaint.left == 10 && paint.rcPaint.bottom == 20 && !paint.fErase);
  EndPaint(log.window, &paint);
  const WindowDc dc(log.window);
  EXPECT_EQ(GetPixel(dc.get(), 15, 15), GetSysColor(COLOR_WINDOWTEXT));
  EXPECT_EQ(GetPixel(dc.get(), 25, 15), GetSysColor(COLOR_WINDOW));
}

}  // namespace
