#include <algorithm>
#include <utility>

#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace {

using standin::FindWindowPtr;
using standin::ScrollBar;
using standin::WindowPtr;

DWORD StyleOf(int bar) { return bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL; }

ScrollBar& BarOf(const WindowPtr& window, int bar) {
  if (bar != SB_HORZ && bar != SB_VERT) standin::Unsupported("scroll bars of windows only");
  return window->scrollBars[bar];
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
  ScrollBar& found = BarOf(window, bar);
  const bool same = found.minimum == minimum && found.maximum == maximum;
  found.minimum = minimum;
  found.maximum = std::max(minimum, maximum);
  found.position = std::clamp(found.position, found.minimum, found.maximum);
  // A range without room is shown as no bar at all; the range that the bar has already neither
  // shows nor hides it.
  if (!same) SetVisible(window, StyleOf(bar), found.minimum < found.maximum);
  return TRUE;
}

BOOL GetScrollRange(HWND handle, int bar, LPINT minimum, LPINT maximum) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  *minimum = BarOf(window, bar).minimum;
  *maximum = BarOf(window, bar).maximum;
  return TRUE;
}

int SetScrollPos(HWND handle, int bar, int position, BOOL) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  ScrollBar& found = BarOf(window, bar);
  return std::exchange(found.position, std::clamp(position, found.minimum, found.maximum));
}

int GetScrollPos(HWND handle, int bar) {
  const auto window = FindWindowPtr(handle);
  return window ? BarOf(window, bar).position : 0;
}

BOOL ShowScrollBar(HWND handle, int bar, BOOL show) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  if (bar != SB_HORZ && bar != SB_VERT) standin::Unsupported("scroll bars of windows only");
  SetVisible(window, StyleOf(bar), show);
  return TRUE;
}
