#include <bitset>

#include "platform/standin/testing.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

HWND focus = nullptr;
HWND active = nullptr;
HWND capture = nullptr;
int beeps = 0;
std::bitset<256> keysDown;

void ChangeFocus(HWND window) {
  const HWND before = focus;
  if (before == window) return;
  focus = window;
  if (IsWindow(before)) SendMessageA(before, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
  if (focus == window && IsWindow(window))
    SendMessageA(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(before), 0);
}

// Where the keyboard goes when the active window leaves: to its owner, else to the topmost window.
HWND Successor(const Window& leaving) {
  const auto suits = [&](HWND candidate) {
    return candidate != leaving.handle && IsWindowVisible(candidate) && IsWindowEnabled(candidate);
  };
  if (suits(leaving.parent)) return leaving.parent;
  for (const HWND candidate : TopLevelWindows()) {
    if (suits(candidate)) return candidate;
  }
  return nullptr;
}

}  // namespace

void Activate(HWND window) {
  const HWND before = active;
  if (before == window) return;
  active = window;
  if (IsWindow(before))
    SendMessageA(before, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(window));
  if (window) SendMessageA(window, WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(before));
  if (active == window && !IsInside(window, focus)) ChangeFocus(window);
}

void ForgetWindow(HWND handle) {
  const auto window = FindWindowPtr(handle);
  if (!window) return;
  if (capture == handle) capture = nullptr;
  if (active == handle) {
    Activate(Successor(*window));
  } else if (IsInside(handle, focus)) {
    ChangeFocus(window->IsChild() && IsWindow(window->parent) ? window->parent : nullptr);
  }
}

int BeepCount() { return beeps; }

}  // namespace standin

using namespace standin;

HWND SetFocus(HWND window) {
  const HWND before = focus;
  if (window == before) return before;
  if (window) {
    const auto root = RootOf(window);
    if (!root) return nullptr;
    for (auto above = FindWindowPtr(window); above;
         above = above->IsChild() ? FindWindowPtr(above->parent) : nullptr) {
      if (above->style & WS_DISABLED) return nullptr;
    }
    if (root->handle != active) Activate(root->handle);
    if (!IsWindow(window) || root->handle != active) return before;
  }
  ChangeFocus(window);
  return before;
}

HWND GetFocus() { return focus; }

HWND SetCapture(HWND window) {
  if (window && !FindWindowPtr(window)) return nullptr;
  const HWND before = capture;
  capture = window;
  // A window that takes the capture once more is told as well.
  if (before) SendMessageA(before, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
  return before;
}

BOOL ReleaseCapture() {
  SetCapture(nullptr);
  return TRUE;
}

HWND GetCapture() { return capture; }

SHORT GetAsyncKeyState(int key) {
  return keysDown[static_cast<size_t>(key & 0xFF)] ? static_cast<SHORT>(0x8000) : SHORT{0};
}

VOID keybd_event(BYTE key, BYTE, DWORD flags, ULONG_PTR) {
  const bool up = flags & KEYEVENTF_KEYUP;
  keysDown[key] = !up;
  if (focus) PostMessageA(focus, up ? WM_KEYUP : WM_KEYDOWN, key, 1);
}

BOOL MessageBeep(UINT) {
  ++beeps;
  return TRUE;
}
