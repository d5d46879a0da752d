#include <gtest/gtest.h>

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

TEST(MessageQueue, PeekTakesOnlyWhatItIsAskedTo) {
  MessageLog log({});
  const HWND one = log.Create("1", WS_POPUP, 0, 0, 50, 50);
  const HWND two = log.Create("2", WS_POPUP, 0, 0, 50, 50);
  PostMessageA(one, WM_USER, 1, 0);
  PostMessageA(two, WM_USER, 2, 0);
  MSG message{};
  EXPECT_TRUE(PeekMessageA(&message, two, 0, 0, PM_NOREMOVE));
  EXPECT_TRUE(PeekMessageA(&message, two, WM_USER, WM_USER, PM_REMOVE));
  EXPECT_EQ(message.wParam, 2u);
  EXPECT_FALSE(PeekMessageA(&message, two, WM_USER, WM_USER, PM_REMOVE));
  EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
  EXPECT_EQ(message.hwnd, one);
}

TEST(MessageQueue, MessagesOfADestroyedWindowAreGone) {
  MessageLog log({});
  const HWND window = log.Create("1", WS_POPUP, 0, 0, 50, 50);
  PostMessageA(window, WM_USER, 1, 0);
  DestroyWindow(window);
  MSG message{};
  EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
}

int timerCalls = 0;

TEST(Timers, OfTheThreadCallTheirProcedureUntilKilled) {
  timerCalls = 0;
  const UINT_PTR timer =
      SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { ++timerCalls; });
  ASSERT_NE(timer, 0u);
  MSG message{};
  for (int i = 0; i < 100 && timerCalls < 3; ++i) {
    GetMessageA(&message, nullptr, 0, 0);
    DispatchMessageA(&message);
  }
  EXPECT_EQ(timerCalls, 3);
  EXPECT_TRUE(KillTimer(nullptr, timer));
  EXPECT_FALSE(KillTimer(nullptr, timer));
}

TEST(Timers, OfAWindowAreReplacedByTheSameNumber) {
  MessageLog log({WM_TIMER});
  const HWND window = log.Create("1", WS_POPUP, 0, 0, 50, 50);
  EXPECT_NE(SetTimer(window, 5, 10, nullptr), 0u);
  EXPECT_NE(SetTimer(window, 5, 20, nullptr), 0u);
  MSG message{};
  ASSERT_TRUE(GetMessageA(&message, window, WM_TIMER, WM_TIMER));
  EXPECT_EQ(message.wParam, 5u);
  EXPECT_TRUE(KillTimer(window, 5));
  EXPECT_FALSE(KillTimer(window, 5));
}

TEST(Input, CaptureIsToldWhenItGoes) {
  MessageLog log({WM_CAPTURECHANGED});
  const HWND one = log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50);
  const HWND two = log.Create("2", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50);
  EXPECT_EQ(SetCapture(one), nullptr);
  EXPECT_EQ(GetCapture(), one);
  EXPECT_EQ(SetCapture(one), one);
  EXPECT_EQ(log.Take(), (Lines{"1 CAPTURECHANGED"}));
  EXPECT_EQ(SetCapture(two), one);
  EXPECT_EQ(log.Take(), (Lines{"1 CAPTURECHANGED"}));
  EXPECT_TRUE(ReleaseCapture());
  EXPECT_EQ(log.Take(), (Lines{"2 CAPTURECHANGED"}));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST(Input, FocusIsToldToBothWindows) {
  MessageLog log({WM_SETFOCUS, WM_KILLFOCUS});
  const HWND parent = log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100);
  const HWND a = log.Create("2", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, parent);
  const HWND b = log.Create("3", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, parent);
  SetFocus(a);
  log.Take();
  EXPECT_EQ(SetFocus(b), a);
  EXPECT_EQ(log.Take(), (Lines{"2 KILLFOCUS", "3 SETFOCUS"}));
  EXPECT_EQ(GetFocus(), b);
  EnableWindow(a, FALSE);
  EXPECT_EQ(SetFocus(a), nullptr);
  EXPECT_EQ(GetFocus(), b);
  // Whoever is disabled loses the keyboard.
  EnableWindow(b, FALSE);
  EXPECT_EQ(GetFocus(), nullptr);
}

TEST(Input, HeldKeysAreSeenUntilReleased) {
  EXPECT_FALSE(GetAsyncKeyState(VK_CONTROL) & 0x8000);
  {
    HoldKeys keys{VK_CONTROL, VK_SHIFT};
    EXPECT_TRUE(GetAsyncKeyState(VK_CONTROL) & 0x8000);
    EXPECT_TRUE(GetAsyncKeyState(VK_SHIFT) & 0x8000);
  }
  EXPECT_FALSE(GetAsyncKeyState(VK_CONTROL) & 0x8000);
  EXPECT_FALSE(GetAsyncKeyState(VK_SHIFT) & 0x8000);
}

}  // namespace
