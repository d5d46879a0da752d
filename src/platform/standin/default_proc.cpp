#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/standin/control.h"
#include "platform/standin/window.h"

using namespace standin;

namespace {

LRESULT CopyText(const Window& window, WPARAM size, LPARAM target) {
  if (size == 0) return 0;
  const size_t length = std::min(window.text.size(), static_cast<size_t>(size) - 1);
  char* buffer = reinterpret_cast<char*>(target);
  std::memcpy(buffer, window.text.data(), length);
  buffer[length] = '\0';
  return static_cast<LRESULT>(length);
}

LRESULT EraseBackground(const Window& window, WPARAM wParam) {
  if (!window.windowClass->background) return 0;
  const RECT client{0, 0, window.ClientWidth(), window.ClientHeight()};
  FillRect(reinterpret_cast<HDC>(wParam), &client, window.windowClass->background);
  return 1;
}

LRESULT SetIcon(Window& window, WPARAM which, LPARAM icon) {
  HICON& kept = which == ICON_SMALL ? window.smallIcon : window.bigIcon;
  return reinterpret_cast<LRESULT>(std::exchange(kept, reinterpret_cast<HICON>(icon)));
}

}  // namespace

LRESULT DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  switch (message) {
    case WM_NCCREATE:
      return TRUE;
    case WM_SETTEXT:
      window->text = lParam ? reinterpret_cast<const char*>(lParam) : "";
      return TRUE;
    case WM_GETTEXT:
      return CopyText(*window, wParam, lParam);
    case WM_GETTEXTLENGTH:
      return static_cast<LRESULT>(window->text.size());
    case WM_PAINT: {
      PAINTSTRUCT paint;
      BeginPaint(handle, &paint);
      EndPaint(handle, &paint);
      return 0;
    }
    case WM_ERASEBKGND:
      return EraseBackground(*window, wParam);
    case WM_CLOSE:
      DestroyWindow(handle);
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam)) SetFocus(handle);
      return 0;
    case WM_SETICON:
      return SetIcon(*window, wParam, lParam);
    default:
      return 0;
  }
}

void Control::Tell(int code) const {
  SendMessageA(window_.parent, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(window_.id), code),
               reinterpret_cast<LPARAM>(window_.handle));
}

LRESULT Control::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(window_.font);
  if (message != WM_SETFONT) return DefWindowProcA(window_.handle, message, wParam, lParam);
  window_.font = reinterpret_cast<HFONT>(wParam);
  if (lParam) Repaint();
  return 0;
}
