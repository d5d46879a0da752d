#include "controls/control.h"

SIZE ClientSize(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right - client.left, client.bottom - client.top};
}

void ControlHook::Attach(HWND control, Handler handler) {
  control_ = control;
  handler_ = std::move(handler);
  SetWindowLongPtrA(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  former_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Proc)));
}

LRESULT CALLBACK ControlHook::Proc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto hook = reinterpret_cast<ControlHook*>(GetWindowLongPtrA(control, GWLP_USERDATA));
  return hook->handler_(message, wParam, lParam);
}
