// The frame of the control procedures: what all controls have in common.
#pragma once

#include "platform/standin/window.h"

namespace standin {

// What stands behind a control's window, and goes with it.
class Control {
 public:
  explicit Control(Window& window) : window_(window) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // Answers a message. This one does what all controls do: it keeps the font, and has
  // DefWindowProcA do the rest.
  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

 protected:
  bool Has(DWORD style) const { return window_.style & style; }
  // Tells the parent: WM_COMMAND with the control's number and the code.
  void Tell(int code) const;
  void Repaint() const { InvalidateRect(window_.handle, nullptr, TRUE); }

  Window& window_;
};

// The window procedure of a control class: its object is made by the first message.
template <class Class>
LRESULT ControlProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  if (message == WM_KEYDOWN && window->keyFilter && window->keyFilter(wParam)) return 0;
  if (!window->control) window->control = std::make_shared<Class>(*window);
  return window->control->Handle(message, wParam, lParam);
}

LRESULT ButtonProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT EditProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT StaticProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
// List boxes and combo boxes.
LRESULT ListProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT StatusBarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT TrackbarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT UpDownProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT ProgressBarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace standin
