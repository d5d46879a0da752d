// The controls with a position in a range: progress bar, trackbar and up-down control.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/standin/control.h"
#include "platform/standin/failure.h"

namespace standin {
namespace {

class RangeControl : public Control {
 public:
  using Control::Control;

 protected:
  // Keeps a position that the new range lets out within it.
  void SetRange(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = maximum;
    MoveTo(position_);
  }
  void MoveTo(int position) {
    position_ = std::clamp(position, minimum_, std::max(minimum_, maximum_));
  }

  int minimum_ = 0;
  int maximum_ = 100;
  int position_ = 0;
};

class ProgressBar : public RangeControl {
 public:
  using RangeControl::RangeControl;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case PBM_SETRANGE:
        SetRange(LOWORD(lParam), HIWORD(lParam));
        return 0;
      case PBM_SETSTEP:
        return std::exchange(step_, static_cast<int>(wParam));
      case PBM_STEPIT:
        MoveTo(position_ + step_);
        return 0;
      default:
        return Control::Handle(message, wParam, lParam);
    }
  }

 private:
  int step_ = 10;
};

class Trackbar : public RangeControl {
 public:
  using RangeControl::RangeControl;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case TBM_SETRANGE:
        SetRange(static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam)));
        return 0;
      case TBM_GETRANGEMIN:
        return minimum_;
      case TBM_GETRANGEMAX:
        return maximum_;
      case TBM_SETPOS:
        MoveTo(static_cast<int>(lParam));
        return 0;
      case TBM_GETPOS:
        return position_;
      case WM_KEYDOWN:
        if (wParam == VK_LEFT || wParam == VK_RIGHT) Step(wParam == VK_LEFT ? -1 : 1);
        return 0;
      default:
        return Control::Handle(message, wParam, lParam);
    }
  }

 private:
  void Step(int distance) {
    MoveTo(position_ + distance);
    SendMessageA(window_.parent, WM_HSCROLL, 0, reinterpret_cast<LPARAM>(window_.handle));
  }
};

// Two arrows for the number in the edit control made before them, whose arrow keys they take over.
class UpDown : public RangeControl {
 public:
  using RangeControl::RangeControl;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case WM_CREATE:
        Attach();
        return 0;
      case UDM_SETRANGE:
        SetRange(static_cast<SHORT>(HIWORD(lParam)), static_cast<SHORT>(LOWORD(lParam)));
        return 0;
      default:
        return Control::Handle(message, wParam, lParam);
    }
  }

 private:
  static constexpr DWORD kStyle = UDS_SETBUDDYINT | UDS_AUTOBUDDY | UDS_ARROWKEYS | UDS_NOTHOUSANDS;

  void Attach() {
    if (!Has(UDS_AUTOBUDDY) || (window_.style & kStyle) != kStyle)
      Unsupported("arrows write plain numbers into the control before them and take its keys");
    const auto& siblings = SiblingsOf(window_);
    const auto place = std::find(siblings.begin(), siblings.end(), window_.handle);
    const auto buddy = place == siblings.begin() ? nullptr : FindWindowPtr(*(place - 1));
    if (!buddy) Unsupported("arrows without a control before them");
    buddy_ = buddy->handle;
    buddy->keyFilter = [arrows = window_.handle](WPARAM key) {
      const auto window = FindWindowPtr(arrows);
      if (!window || (key != VK_UP && key != VK_DOWN)) return false;
      static_cast<UpDown&>(*window->control).Press(key == VK_UP);
      return true;
    };
  }

  // What the buddy shows is the position, if it is a number within the range; nothing shown is 0.
  void Press(bool up) {
    char text[32];
    GetWindowTextA(buddy_, text, sizeof text);
    char* end = nullptr;
    const long value = std::strtol(text, &end, 10);
    if (*end == '\0' && value >= minimum_ && value <= maximum_) position_ = static_cast<int>(value);
    MoveTo(position_ + (up ? 1 : -1));
    if (std::to_string(position_) != text)
      SetWindowTextA(buddy_, std::to_string(position_).c_str());
    SendMessageA(window_.parent, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position_),
                 reinterpret_cast<LPARAM>(window_.handle));
  }

  HWND buddy_ = nullptr;
};

}  // namespace

LRESULT ProgressBarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<ProgressBar>(handle, message, wParam, lParam);
}

LRESULT TrackbarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<Trackbar>(handle, message, wParam, lParam);
}

LRESULT UpDownProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<UpDown>(handle, message, wParam, lParam);
}

}  // namespace standin
