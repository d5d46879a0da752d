#include <algorithm>
#include <cstdlib>
#include <map>

#include "platform/standin/controls.h"
#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

struct UpDownState : ControlState {
  int lower = 100;  // at first the arrows run from 100 down to 0
  int upper = 0;
  int position = 0;
  HWND buddy = nullptr;
  WNDPROC buddyProc = nullptr;
};

// Whose arrow keys a subclassed buddy passes on.
std::map<HWND, HWND>& Buddies() {
  static auto* buddies = new std::map<HWND, HWND>;
  return *buddies;
}

// What the buddy shows is the position, if it is a number within the range; nothing shown is 0.
void ReadBuddy(Window& arrows) {
  UpDownState& state = StateOf<UpDownState>(arrows);
  if (!state.buddy || !(arrows.style & UDS_SETBUDDYINT)) return;
  char text[32];
  GetWindowTextA(state.buddy, text, sizeof text);
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  const auto [low, high] = std::minmax(state.lower, state.upper);
  if (*end == '\0' && value >= low && value <= high) state.position = static_cast<int>(value);
}

void WriteBuddy(Window& arrows) {
  UpDownState& state = StateOf<UpDownState>(arrows);
  if (!state.buddy || !(arrows.style & UDS_SETBUDDYINT)) return;
  const std::string text = std::to_string(state.position);
  char before[32];
  GetWindowTextA(state.buddy, before, sizeof before);
  if (text != before) SetWindowTextA(state.buddy, text.c_str());
}

// One press on an arrow, of which the parent hears.
void Press(Window& arrows, bool up) {
  UpDownState& state = StateOf<UpDownState>(arrows);
  ReadBuddy(arrows);
  const bool more = up == (state.upper >= state.lower);
  const auto [low, high] = std::minmax(state.lower, state.upper);
  state.position = std::clamp(state.position + (more ? 1 : -1), low, high);
  WriteBuddy(arrows);
  SendMessageA(arrows.parent, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, state.position),
               reinterpret_cast<LPARAM>(arrows.handle));
}

LRESULT BuddyProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto arrows = FindWindowPtr(Buddies()[handle]);
  if (!arrows) return 0;
  UpDownState& state = StateOf<UpDownState>(*arrows);
  const WNDPROC before = state.buddyProc;
  if (message == WM_KEYDOWN && (wParam == VK_UP || wParam == VK_DOWN)) {
    if (arrows->style & WS_DISABLED) return 0;
    Press(*arrows, wParam == VK_UP);
    return 0;
  }
  if (message == WM_NCDESTROY) {
    Buddies().erase(handle);
    state.buddy = nullptr;
  }
  return before(handle, message, wParam, lParam);
}

void Attach(Window& arrows, HWND buddy) {
  UpDownState& state = StateOf<UpDownState>(arrows);
  state.buddy = buddy;
  if (!buddy || !(arrows.style & UDS_ARROWKEYS)) return;
  Buddies()[buddy] = arrows.handle;
  state.buddyProc = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(buddy, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(BuddyProc)));
}

void Detach(Window& arrows) {
  UpDownState& state = StateOf<UpDownState>(arrows);
  if (!state.buddy || !state.buddyProc) return;
  SetWindowLongPtrA(state.buddy, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(state.buddyProc));
  Buddies().erase(state.buddy);
  state.buddy = nullptr;
}

HWND PreviousSibling(const Window& window) {
  const auto& siblings = SiblingsOf(window);
  const auto place = std::find(siblings.begin(), siblings.end(), window.handle);
  return place == siblings.begin() || place == siblings.end() ? nullptr : *(place - 1);
}

}  // namespace

LRESULT UpDownProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto arrows = FindWindowPtr(handle);
  if (!arrows) return 0;
  UpDownState& state = StateOf<UpDownState>(*arrows);
  switch (message) {
    case WM_CREATE:
      if (!(arrows->style & UDS_NOTHOUSANDS)) Unsupported("arrows write no thousands separator");
      if (arrows->style & UDS_AUTOBUDDY) Attach(*arrows, PreviousSibling(*arrows));
      return 0;
    case WM_NCDESTROY:
      Detach(*arrows);
      return 0;
    case UDM_SETRANGE:
      state.upper = static_cast<SHORT>(LOWORD(lParam));
      state.lower = static_cast<SHORT>(HIWORD(lParam));
      return 0;
    case UDM_GETRANGE:
      return MAKELONG(state.upper, state.lower);
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
