#include <cstring>

#include "platform/standin/control.h"

namespace standin {
namespace {

constexpr int kHeight = 22;

class StatusBar : public Control {
 public:
  using Control::Control;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  struct Part {
    int right;  // -1: up to the bar's end
    std::string text;
  };

  void Place() const;
  LRESULT SetParts(size_t count, const int* rights);
  LRESULT HandleText(UINT message, size_t part, LPARAM text);

  std::vector<Part> parts_{{-1, ""}};
};

// The bar lays itself along the bottom of its parent's client area.
void StatusBar::Place() const {
  RECT parent{};
  if (!GetClientRect(window_.parent, &parent)) return;
  MoveWindow(window_.handle, 0, parent.bottom - kHeight, parent.right, kHeight, TRUE);
}

LRESULT StatusBar::SetParts(size_t count, const int* rights) {
  parts_.resize(count);
  for (size_t i = 0; i < count; ++i) parts_[i].right = rights[i];
  return TRUE;
}

LRESULT StatusBar::HandleText(UINT message, size_t part, LPARAM text) {
  if (part >= parts_.size()) return FALSE;
  std::string& kept = parts_[part].text;
  if (message == SB_SETTEXTA) {
    kept = reinterpret_cast<const char*>(text);
    Repaint();
    return TRUE;
  }
  std::strcpy(reinterpret_cast<char*>(text), kept.c_str());
  return static_cast<LRESULT>(kept.size());
}

LRESULT StatusBar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
    case WM_SIZE:
      // Its own placing comes back here and finds nothing to change.
      Place();
      return 0;
    case SB_SETPARTS:
      return SetParts(wParam, reinterpret_cast<const int*>(lParam));
    case SB_SETTEXTA:
    case SB_GETTEXTA:
      return HandleText(message, wParam, lParam);
    default:
      return Control::Handle(message, wParam, lParam);
  }
}

}  // namespace

LRESULT StatusBarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<StatusBar>(handle, message, wParam, lParam);
}

}  // namespace standin
