#include <algorithm>
#include <utility>

#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

// The system's measures in pixels. They are none of any particular Windows: tests ask for the
// client area and do not count frames.
constexpr int kSizingFrame = 4;
constexpr int kDialogFrame = 3;
constexpr int kThinBorder = 1;
constexpr int kClientEdge = 2;
constexpr int kCaption = 19;
constexpr int kMenuBar = 20;
constexpr int kScrollBar = 16;
constexpr int kScreenWidth = 1280;
constexpr int kScreenHeight = 1024;
constexpr int kSmallestWidth = 112;
constexpr int kSmallestHeight = 27;

constexpr UINT kKnownFlags = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE |
                             SWP_FRAMECHANGED | SWP_HIDEWINDOW | SWP_NOCOPYBITS;

int FrameWidth(const Window& window) {
  const int edge = window.exStyle & WS_EX_CLIENTEDGE ? kClientEdge : 0;
  if (window.style & WS_THICKFRAME) return edge + kSizingFrame;
  if (window.exStyle & WS_EX_DLGMODALFRAME) return edge + kDialogFrame;
  const bool thin =
      (window.style & (WS_BORDER | WS_DLGFRAME)) || (window.exStyle & WS_EX_STATICEDGE);
  return edge + (thin ? kThinBorder : 0);
}

// Asks the window for the smallest and largest size, where it has a say.
void Constrain(Window& window, int& width, int& height) {
  if (!(window.style & WS_THICKFRAME) && (window.style & (WS_POPUP | WS_CHILD))) return;
  MINMAXINFO limits{};
  limits.ptMaxSize =
      limits.ptMaxTrackSize = {kScreenWidth + 2 * kSizingFrame, kScreenHeight + 2 * kSizingFrame};
  limits.ptMinTrackSize = {kSmallestWidth, kSmallestHeight};
  SendMessageA(window.handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  width = std::clamp<int>(width, limits.ptMinTrackSize.x,
                          std::max(limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x));
  height = std::clamp<int>(height, limits.ptMinTrackSize.y,
                           std::max(limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y));
}

void Reorder(const Window& window, HWND after) {
  auto& siblings = SiblingsOf(window);
  siblings.erase(std::remove(siblings.begin(), siblings.end(), window.handle), siblings.end());
  auto place = siblings.begin();
  if (after == HWND_BOTTOM) {
    place = siblings.end();
  } else if (after != HWND_TOP) {
    Unsupported("windows are put at the top or the bottom");
  }
  siblings.insert(place, window.handle);
}

bool SameSize(const RECT& a, const RECT& b) {
  return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

// The window has got a new frame or new styles: the client area follows, and the window hears of
// it.
void ApplyFrame(const WindowPtr& window) {
  const RECT before = window->client;
  UpdateClient(*window);
  const bool sized = !SameSize(before, window->client);
  if (sized) InvalidateRect(window->handle, nullptr, TRUE);
  if (sized) SendSize(*window);
}

void Hide(const WindowPtr& window) {
  window->style &= ~static_cast<DWORD>(WS_VISIBLE);
  ForgetWindow(window->handle);
}

void Reveal(const WindowPtr& window, bool activate) {
  window->style |= WS_VISIBLE;
  RedrawWindow(window->handle, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  if (activate && !window->IsChild()) Activate(window->handle);
  if (std::exchange(window->needsSize, false)) SendSize(*window);
}

}  // namespace

void UpdateClient(Window& window) {
  RECT client = window.frame;
  const int frame = FrameWidth(window);
  client.left += frame;
  client.top += frame;
  client.right -= frame;
  client.bottom -= frame;
  if ((window.style & WS_CAPTION) == WS_CAPTION) client.top += kCaption;
  if (window.menu && !window.IsChild()) client.top += kMenuBar;
  // A window too small for its scroll bar shows none.
  if ((window.style & WS_VSCROLL) && client.right - client.left >= kScrollBar)
    client.right -= kScrollBar;
  if ((window.style & WS_HSCROLL) && client.bottom - client.top > kScrollBar)
    client.bottom -= kScrollBar;
  client.right = std::max(client.left, client.right);
  client.bottom = std::max(client.top, client.bottom);
  window.client = client;
}

void ConstrainCreation(Window& window) {
  int width = window.frame.right - window.frame.left;
  int height = window.frame.bottom - window.frame.top;
  Constrain(window, width, height);
  window.frame.right = window.frame.left + width;
  window.frame.bottom = window.frame.top + height;
}

void SendSize(const Window& window) {
  SendMessageA(window.handle, WM_SIZE, SIZE_RESTORED,
               MAKELPARAM(window.ClientWidth(), window.ClientHeight()));
}

POINT ClientOrigin(const Window& window) {
  POINT origin{window.client.left, window.client.top};
  if (!window.IsChild()) return origin;
  if (const auto parent = FindWindowPtr(window.parent)) {
    const POINT parentOrigin = ClientOrigin(*parent);
    origin.x += parentOrigin.x;
    origin.y += parentOrigin.y;
  }
  return origin;
}

RECT CentredOnScreen(int width, int height) {
  const int x = (kScreenWidth - width) / 2;
  const int y = (kScreenHeight - height) / 2;
  return {x, y, x + width, y + height};
}

}  // namespace standin

using namespace standin;

BOOL SetWindowPos(HWND handle, HWND after, int x, int y, int width, int height, UINT flags) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  RECT frame = window->frame;
  if (flags & SWP_NOSIZE) {
    width = frame.right - frame.left;
    height = frame.bottom - frame.top;
  } else {
    width = std::max(width, 0);
    height = std::max(height, 0);
    Constrain(*window, width, height);
  }
  if (flags & SWP_NOMOVE) {
    x = frame.left;
    y = frame.top;
  }
  if (!(flags & SWP_NOZORDER)) Reorder(*window, after);
  frame = {x, y, x + width, y + height};
  const bool resized = !SameSize(frame, window->frame);
  const bool moved = frame.left != window->frame.left || frame.top != window->frame.top;
  window->frame = frame;
  if ((flags & SWP_HIDEWINDOW) && (window->style & WS_VISIBLE)) Hide(window);
  if (resized || moved || (flags & SWP_FRAMECHANGED)) ApplyFrame(window);
  if (flags & ~kKnownFlags) Unsupported("SetWindowPos flags " + std::to_string(flags));
  return TRUE;
}

BOOL MoveWindow(HWND handle, int x, int y, int width, int height, BOOL repaint) {
  const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
  if (!SetWindowPos(handle, nullptr, x, y, width, height, flags)) return FALSE;
  if (repaint) InvalidateRect(handle, nullptr, TRUE);
  return TRUE;
}

BOOL ShowWindow(HWND handle, int command) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  const bool was = window->style & WS_VISIBLE;
  if (command != SW_HIDE && command != SW_SHOWNORMAL && command != SW_SHOW && command != SW_SHOWNA)
    Unsupported("ShowWindow command " + std::to_string(command));
  const bool show = command != SW_HIDE;
  if (show == was) return was;
  SendMessageA(handle, WM_SHOWWINDOW, show, 0);
  if (!IsWindow(handle)) return was;
  if (show) {
    Reveal(window, command != SW_SHOWNA);
  } else {
    Hide(window);
  }
  return was;
}

BOOL AnimateWindow(HWND handle, DWORD milliseconds, DWORD flags) {
  const auto window = FindWindowPtr(handle);
  const bool hide = flags & AW_HIDE;
  if (!window || hide == !(window->style & WS_VISIBLE)) return FALSE;
  PassTime(milliseconds);
  ShowWindow(handle, hide ? SW_HIDE : SW_SHOWNA);
  return TRUE;
}

BOOL GetWindowRect(HWND handle, LPRECT rect) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  const POINT origin = ClientOrigin(*window);
  const LONG x = origin.x - (window->client.left - window->frame.left);
  const LONG y = origin.y - (window->client.top - window->frame.top);
  *rect = {x, y, x + window->frame.right - window->frame.left,
           y + window->frame.bottom - window->frame.top};
  return TRUE;
}

BOOL GetClientRect(HWND handle, LPRECT rect) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  *rect = {0, 0, window->ClientWidth(), window->ClientHeight()};
  return TRUE;
}
