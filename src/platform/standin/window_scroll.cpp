#include <algorithm>

#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace {

using standin::FindWindowPtr;
using standin::ScrollBar;
using standin::WindowPtr;

DWORD StyleOf(int bar) { return bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL; }

std::optional<ScrollBar>& BarOf(const WindowPtr& window, int bar) {
  if (bar != SB_HORZ && bar != SB_VERT) standin::Unsupported("scroll bars of windows only");
  return window->scrollBars[bar];
}

ScrollBar& MakeBar(const WindowPtr& window, int bar) {
  auto& found = BarOf(window, bar);
  if (!found) found.emplace();
  return *found;
}

// A bar that comes or goes changes the client area, which the window hears as WM_SIZE.
void SetVisible(const WindowPtr& window, DWORD styles, bool show) {
  const DWORD after = show ? window->style | styles : window->style & ~styles;
  if (after == window->style) return;
  window->style = after;
  SetWindowPos(window->handle, nullptr, 0, 0, 0, 0,
               SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

BOOL SetScrollRange(HWND handle, int bar, int minimum, int maximum, BOOL) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  ScrollBar& found = MakeBar(window, bar);
  found.minimum = minimum;
  found.maximum = std::max(minimum, maximum);
  found.position = std::clamp(found.position, found.minimum, found.maximum);
  // A range without room is shown as no bar at all.
  SetVisible(window, StyleOf(bar), found.minimum < found.maximum);
  return TRUE;
}

BOOL GetScrollRange(HWND handle, int bar, LPINT minimum, LPINT maximum) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  const auto& found = BarOf(window, bar);
  *minimum = found ? found->minimum : 0;
  *maximum = found ? found->maximum : 0;
  return TRUE;
}

int SetScrollPos(HWND handle, int bar, int position, BOOL) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  ScrollBar& found = MakeBar(window, bar);
  const int before = found.position;
  found.position = std::clamp(position, found.minimum, found.maximum);
  return before;
}

int GetScrollPos(HWND handle, int bar) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  const auto& found = BarOf(window, bar);
  return found ? found->position : 0;
}

BOOL ShowScrollBar(HWND handle, int bar, BOOL show) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  if (bar == SB_CTL) standin::Unsupported("scroll bars of windows only");
  SetVisible(window, bar == SB_BOTH ? WS_HSCROLL | WS_VSCROLL : StyleOf(bar), show);
  return TRUE;
}
