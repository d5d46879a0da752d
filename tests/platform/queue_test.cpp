#include <gtest/gtest.h>

#include <chrono>
#include <thread>

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

TEST(MessageQueue, QuitComesAfterWhatIsPosted) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP, 0, 0, 50, 50);
  PostQuitMessage(3);
  PostMessageA(window, WM_USER, 0, 0);
  MSG message{};
  EXPECT_TRUE(GetMessageA(&message, nullptr, 0, 0));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_USER));
  EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 3u);
  EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST(MessageQueue, MessagesOfADestroyedWindowAreGone) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP, 0, 0, 50, 50);
  PostMessageA(window, WM_USER, 1, 0);
  DestroyWindow(window);
  MSG message{};
  EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
}

}  // namespace
