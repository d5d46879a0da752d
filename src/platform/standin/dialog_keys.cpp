#include <algorithm>

#include "platform/standin/dialog.h"

namespace standin {
namespace {

bool CanHaveFocus(const Window& control) {
  return (control.style & WS_VISIBLE) && !(control.style & WS_DISABLED);
}

// The neighbour of a control among those of its group, round the group's end, that may have the
// focus; the control itself when it is alone.
HWND NextInGroup(const Window& dialog, HWND control, bool previous) {
  const auto& controls = dialog.children;
  const auto startsGroup = [&](size_t i) {
    const auto found = FindWindowPtr(controls[i]);
    return found && (found->style & WS_GROUP);
  };
  const auto place = std::find(controls.begin(), controls.end(), control);
  if (place == controls.end()) return nullptr;
  size_t first = static_cast<size_t>(place - controls.begin());
  while (first > 0 && !startsGroup(first)) --first;
  size_t end = static_cast<size_t>(place - controls.begin()) + 1;
  while (end < controls.size() && !startsGroup(end)) ++end;
  const size_t count = end - first;
  size_t i = static_cast<size_t>(place - controls.begin()) - first;
  for (size_t step = 0; step < count; ++step) {
    i = (i + (previous ? count - 1 : 1)) % count;
    const auto found = FindWindowPtr(controls[first + i]);
    if (found && CanHaveFocus(*found)) return found->handle;
  }
  return control;
}

void MoveInGroup(const Window& dialog, HWND control, bool previous) {
  const HWND next = NextInGroup(dialog, control, previous);
  if (!next) return;
  FocusControl(next);
  const bool radio = SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON;
  if (radio && SendMessageA(next, BM_GETCHECK, 0, 0) != BST_CHECKED)
    SendMessageA(next, BM_CLICK, 0, 0);
}

// Enter presses the push button that has the focus, otherwise the default button.
void PressDefault(HWND handle) {
  const HWND focus = GetFocus();
  const LRESULT code = focus ? SendMessageA(focus, WM_GETDLGCODE, 0, 0) : 0;
  const bool push = code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON);
  int id = IDOK;
  if (push && IsInside(handle, focus)) {
    id = GetDlgCtrlID(focus);
  } else if (const LRESULT given = SendMessageA(handle, DM_GETDEFID, 0, 0)) {
    id = LOWORD(given);
  }
  const HWND button = GetDlgItem(handle, id);
  if (button && !IsWindowEnabled(button)) {
    MessageBeep(MB_OK);
    return;
  }
  SendMessageA(handle, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

bool HandleKey(const Window& dialog, const MSG& message) {
  const HWND handle = dialog.handle;
  const LRESULT code =
      SendMessageA(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
  if (code & DLGC_WANTMESSAGE) return false;
  switch (message.wParam) {
    case VK_TAB:
      if (code & DLGC_WANTTAB) return false;
      SendMessageA(handle, WM_NEXTDLGCTL, (GetAsyncKeyState(VK_SHIFT) & 0x8000) != 0, FALSE);
      return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
      if (code & DLGC_WANTARROWS) return false;
      MoveInGroup(dialog, message.hwnd, message.wParam == VK_LEFT || message.wParam == VK_UP);
      return true;
    case VK_ESCAPE:
      SendMessageA(handle, WM_COMMAND, IDCANCEL,
                   reinterpret_cast<LPARAM>(GetDlgItem(handle, IDCANCEL)));
      return true;
    case VK_RETURN:
      PressDefault(handle);
      return true;
    default:
      return false;
  }
}

}  // namespace

HWND NextTabStop(const Window& dialog, HWND control, bool previous) {
  std::vector<HWND> order = dialog.children;
  if (previous) std::reverse(order.begin(), order.end());
  const auto place = std::find(order.begin(), order.end(), control);
  if (place != order.end()) std::rotate(order.begin(), place + 1, order.end());
  for (const HWND candidate : order) {
    const auto found = FindWindowPtr(candidate);
    if (found && (found->style & WS_TABSTOP) && CanHaveFocus(*found)) return candidate;
  }
  return nullptr;
}

void FocusControl(HWND control) {
  if (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
    SendMessageA(control, EM_SETSEL, 0, -1);
  SetFocus(control);
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
