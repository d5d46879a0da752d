#include "e2e/input.h"

#include <algorithm>

#include "e2e/screen.h"

namespace {

void Send(INPUT input) {
  if (SendInput(1, &input, sizeof input) != 1) GiveUp("The system takes no input.");
}

void SendKey(WORD key, DWORD flags) {
  // Without the mark, arrows would be those of the number pad, which lift Shift.
  constexpr WORD kExtended[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_DELETE};
  if (std::find(std::begin(kExtended), std::end(kExtended), key) != std::end(kExtended)) {
    flags |= KEYEVENTF_EXTENDEDKEY;
  }
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  Send(input);
}

void SendMouse(DWORD flags, LONG x = 0, LONG y = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = x;
  input.mi.dy = y;
  input.mi.dwFlags = flags;
  Send(input);
}

// Screen coordinates on the scale of 0 to 65535, rounded up as the way back rounds down.
LONG OnScale(LONG position, int metric) {
  const LONG size = GetSystemMetrics(metric);
  return (position * 65536 + size - 1) / size;
}

}  // namespace

void KeyDown(WORD key) { SendKey(key, 0); }

void KeyUp(WORD key) { SendKey(key, KEYEVENTF_KEYUP); }

void TapKey(WORD key) {
  KeyDown(key);
  KeyUp(key);
}

void TypeText(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  const int length = static_cast<int>(text.size());
  wide.resize(static_cast<size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length)));
  for (const wchar_t character : wide) {
    for (const DWORD flags : {0, KEYEVENTF_KEYUP}) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wScan = character;
      input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
      Send(input);
    }
  }
}

HeldKeys::HeldKeys(std::initializer_list<WORD> keys) : keys_(keys) {
  for (const WORD key : keys_) KeyDown(key);
}

HeldKeys::~HeldKeys() {
  for (const WORD key : keys_) KeyUp(key);
}

void MoveMouse(POINT to) {
  SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, OnScale(to.x, SM_CXSCREEN),
            OnScale(to.y, SM_CYSCREEN));
  // The display's late answer to an earlier move may take the pointer back for a moment; a button
  // released then is released beside what it pressed.
  int settled = 0;
  WaitUntil("the pointer to stay where it was moved", [&] {
    POINT at{};
    GetCursorPos(&at);
    settled = at.x == to.x && at.y == to.y ? settled + 1 : 0;
    return settled > 2;
  });
}

void MouseDown() { SendMouse(MOUSEEVENTF_LEFTDOWN); }

void MouseUp() { SendMouse(MOUSEEVENTF_LEFTUP); }

void Click(POINT at) {
  static POINT lastPoint = {-100, -100};
  static ULONGLONG lastTime = 0;
  const bool sameSpot = std::abs(at.x - lastPoint.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
                        std::abs(at.y - lastPoint.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
  if (sameSpot) {
    WaitUntil("the time of a double click to pass",
              [] { return GetTickCount64() > lastTime + GetDoubleClickTime(); });
  }
  MoveMouse(at);
  MouseDown();
  MouseUp();
  lastPoint = at;
  lastTime = GetTickCount64();
}
