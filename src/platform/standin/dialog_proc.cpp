#include "platform/standin/dialog.h"

namespace standin {
namespace {

void RestoreFocus(const WindowPtr& window) {
  if (!window->dialog || window->dialog->ended) return;
  HWND target = window->dialog->savedFocus;
  if (!target || !IsInside(window->handle, target) || !IsWindowEnabled(target))
    target = NextTabStop(*window, nullptr, false);
  window->dialog->savedFocus = nullptr;
  SetFocus(target ? target : window->handle);
}

void SaveFocus(const WindowPtr& window) {
  const HWND focus = GetFocus();
  if (focus && focus != window->handle && IsInside(window->handle, focus))
    window->dialog->savedFocus = focus;
}

// The close box and Alt+F4: the Cancel button decides.
void CloseByCancel(HWND handle) {
  const HWND cancel = GetDlgItem(handle, IDCANCEL);
  if (cancel && !IsWindowEnabled(cancel)) return;
  PostMessageA(handle, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(cancel));
}

// What a dialog does with the messages that its procedure leaves alone.
LRESULT DefaultOf(const WindowPtr& window, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND handle = window->handle;
  switch (message) {
    case WM_ERASEBKGND: {
      RECT client{};
      GetClientRect(handle, &client);
      FillRect(reinterpret_cast<HDC>(wParam), &client, GetSysColorBrush(COLOR_3DFACE));
      return 1;
    }
    case WM_NCDESTROY:
      if (window->dialog->font) DeleteObject(window->dialog->font);
      break;
    case WM_SHOWWINDOW:
      if (!wParam) SaveFocus(window);
      break;
    case WM_ACTIVATE:
      if (!LOWORD(wParam)) SaveFocus(window);
      return 0;
    case WM_SETFOCUS:
      RestoreFocus(window);
      return 0;
    case WM_CLOSE:
      CloseByCancel(handle);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(handle, message, wParam, lParam);
}

}  // namespace

LRESULT DialogWindowProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  // Before the template has been read there is no procedure to ask.
  if (!window->dialog) return DefWindowProcA(handle, message, wParam, lParam);
  window->dialog->result = 0;
  const INT_PTR handled =
      window->dialog->proc ? window->dialog->proc(handle, message, wParam, lParam) : FALSE;
  if (!IsWindow(handle)) return handled;
  if (message == WM_INITDIALOG) return handled;
  return handled ? window->dialog->result : DefaultOf(window, message, wParam, lParam);
}

}  // namespace standin
