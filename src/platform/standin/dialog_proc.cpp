#include <algorithm>

#include "platform/standin/dialog.h"

namespace standin {
namespace {

// Enter presses the push button that has the focus, otherwise the default button.
void PressDefault(const Window& dialog) {
  const HWND focus = GetFocus();
  const LRESULT code = focus ? SendMessageA(focus, WM_GETDLGCODE, 0, 0) : 0;
  const bool push = code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON);
  const int id = push && IsInside(dialog.handle, focus) ? GetDlgCtrlID(focus)
                 : dialog.dialog->defaultButton         ? dialog.dialog->defaultButton
                                                        : IDOK;
  const HWND button = GetDlgItem(dialog.handle, id);
  if (button && !IsWindowEnabled(button)) return;
  SendMessageA(dialog.handle, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
}

// True when the dialog has taken the key from its control.
bool HandleKey(const Window& dialog, const MSG& message) {
  const LRESULT code =
      SendMessageA(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
  if (code & DLGC_WANTMESSAGE) return false;
  switch (message.wParam) {
    case VK_TAB:
      if (const HWND next = NextTabStop(dialog, GetFocus())) FocusControl(next);
      return true;
    case VK_ESCAPE:
      SendMessageA(dialog.handle, WM_COMMAND, IDCANCEL,
                   reinterpret_cast<LPARAM>(GetDlgItem(dialog.handle, IDCANCEL)));
      return true;
    case VK_RETURN:
      PressDefault(dialog);
      return true;
    default:
      return false;
  }
}

void RestoreFocus(const WindowPtr& window) {
  if (!window->dialog || window->dialog->ended) return;
  HWND target = window->dialog->savedFocus;
  if (!target || !IsInside(window->handle, target) || !IsWindowEnabled(target))
    target = NextTabStop(*window, nullptr);
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

HWND NextTabStop(const Window& dialog, HWND control) {
  std::vector<HWND> order = dialog.children;
  const auto place = std::find(order.begin(), order.end(), control);
  if (place != order.end()) std::rotate(order.begin(), place + 1, order.end());
  constexpr DWORD kReachable = WS_TABSTOP | WS_VISIBLE;
  const auto next = std::find_if(order.begin(), order.end(), [](HWND candidate) {
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(candidate, GWL_STYLE));
    return (style & (kReachable | WS_DISABLED)) == kReachable;
  });
  return next == order.end() ? nullptr : *next;
}

void FocusControl(HWND control) {
  if (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
    SendMessageA(control, EM_SETSEL, 0, -1);
  SetFocus(control);
}

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

using namespace standin;

BOOL IsDialogMessageA(HWND handle, LPMSG message) {
  const auto window = FindWindowPtr(handle);
  if (!window || !message->hwnd || !IsInside(handle, message->hwnd)) return FALSE;
  if (message->message == WM_KEYDOWN && HandleKey(*window, *message)) return TRUE;
  TranslateMessage(message);
  DispatchMessageA(message);
  return TRUE;
}
