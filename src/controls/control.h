#pragma once

#include <functional>

#include "platform/win32.h"

// The size of a window's client area in pixels.
SIZE ClientSize(HWND window);

// Another window procedure for a control, which keeps its user data for this. The hook must live
// as long as the control.
class ControlHook {
 public:
  using Handler = std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)>;

  ControlHook() = default;
  ControlHook(const ControlHook&) = delete;
  ControlHook& operator=(const ControlHook&) = delete;

  // From now on the handler gets the control's messages.
  void Attach(HWND control, Handler handler);

  HWND Control() const { return control_; }
  // What the control itself does with a message.
  LRESULT PassOn(UINT message, WPARAM wParam, LPARAM lParam) const {
    return CallWindowProcA(former_, control_, message, wParam, lParam);
  }

 private:
  static LRESULT CALLBACK Proc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

  HWND control_ = nullptr;
  WNDPROC former_ = nullptr;
  Handler handler_;
};
