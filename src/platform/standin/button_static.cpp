#include <utility>

#include "platform/standin/control.h"

namespace standin {
namespace {

class Button : public Control {
 public:
  using Control::Control;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  DWORD Type() const { return window_.style & BS_TYPEMASK; }
  LRESULT DialogCode() const;
  void SetCheck(bool check);
  void UncheckOthers() const;
  void Push();
  void Release();
  void Clicked();

  bool checked_ = false;
  bool pushed_ = false;
};

LRESULT Button::DialogCode() const {
  switch (Type()) {
    case BS_PUSHBUTTON:
      return DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON:
      return DLGC_DEFPUSHBUTTON;
    case BS_AUTORADIOBUTTON:
      return DLGC_RADIOBUTTON;
    default:
      return 0;
  }
}

void Button::UncheckOthers() const {
  for (const HWND handle : GroupOf(window_)) {
    if (handle == window_.handle) continue;
    if (SendMessageA(handle, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)
      SendMessageA(handle, BM_SETCHECK, BST_UNCHECKED, 0);
  }
}

void Button::SetCheck(bool check) {
  checked_ = check;
  if (Type() != BS_AUTORADIOBUTTON) return;
  // Tab reaches the checked button of a group.
  const DWORD tabStop = WS_TABSTOP;
  window_.style = check ? window_.style | tabStop : window_.style & ~tabStop;
  if (check) UncheckOthers();
}

void Button::Push() {
  SetCapture(window_.handle);
  SetFocus(window_.handle);
  pushed_ = true;
}

void Button::Release() {
  if (!std::exchange(pushed_, false)) return;
  if (GetCapture() == window_.handle) ReleaseCapture();
  Clicked();
}

void Button::Clicked() {
  if (Type() == BS_AUTOCHECKBOX) SetCheck(!checked_);
  if (Type() == BS_AUTORADIOBUTTON) SetCheck(true);
  Tell(BN_CLICKED);
}

LRESULT Button::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DialogCode();
    case BM_GETCHECK:
      return checked_ ? BST_CHECKED : BST_UNCHECKED;
    case BM_SETCHECK:
      SetCheck(wParam == BST_CHECKED);
      return 0;
    case BM_CLICK:
      SendMessageA(window_.handle, WM_LBUTTONDOWN, 0, 0);
      SendMessageA(window_.handle, WM_LBUTTONUP, 0, 0);
      return 0;
    case WM_LBUTTONDOWN:
      Push();
      return 0;
    case WM_LBUTTONUP:
      Release();
      return 0;
    default:
      return Control::Handle(message, wParam, lParam);
  }
}

// A text, a frame or an icon.
class Static : public Control {
 public:
  using Control::Control;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case STM_GETICON:
        return icon_;
      case STM_SETICON:
        return std::exchange(icon_, static_cast<LRESULT>(wParam));
      default:
        return Control::Handle(message, wParam, lParam);
    }
  }

 private:
  LRESULT icon_ = 0;
};

}  // namespace

LRESULT ButtonProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<Button>(handle, message, wParam, lParam);
}

LRESULT StaticProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<Static>(handle, message, wParam, lParam);
}

}  // namespace standin
