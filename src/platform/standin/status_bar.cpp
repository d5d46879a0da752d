#include <algorithm>
#include <cstring>

#include "platform/standin/controls.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

constexpr int kHeight = 22;
constexpr size_t kMostParts = 256;

struct Part {
  int right = -1;  // -1: up to the bar's end
  std::string text;
};
struct StatusBarState : ControlState {
  std::vector<Part> parts{1};
};

// The bar lays itself along the bottom of its parent's client area.
void Place(Window& bar) {
  RECT parent{};
  if (!GetClientRect(bar.parent, &parent)) return;
  MoveWindow(bar.handle, 0, parent.bottom - kHeight, parent.right, kHeight, TRUE);
}

LRESULT SetParts(StatusBarState& state, size_t count, const int* rights) {
  if (count == 0 || count > kMostParts) return FALSE;
  state.parts.resize(count);
  for (size_t i = 0; i < count; ++i) state.parts[i].right = rights[i];
  return TRUE;
}

LRESULT GetParts(const StatusBarState& state, size_t count, int* rights) {
  for (size_t i = 0; rights && i < std::min(count, state.parts.size()); ++i)
    rights[i] = state.parts[i].right;
  return static_cast<LRESULT>(state.parts.size());
}

LRESULT SetPartText(Window& bar, size_t part, const char* text) {
  auto& parts = StateOf<StatusBarState>(bar).parts;
  if (part >= parts.size()) return FALSE;
  parts[part].text = text ? text : "";
  InvalidateRect(bar.handle, nullptr, TRUE);
  return TRUE;
}

LRESULT GetPartText(const StatusBarState& state, size_t part, char* buffer) {
  if (part >= state.parts.size()) return 0;
  const std::string& text = state.parts[part].text;
  std::strcpy(buffer, text.c_str());
  return static_cast<LRESULT>(text.size());
}

}  // namespace

LRESULT StatusBarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto bar = FindWindowPtr(handle);
  if (!bar) return 0;
  StatusBarState& state = StateOf<StatusBarState>(*bar);
  switch (message) {
    case WM_CREATE:
    case WM_SIZE:
      // Its own placing comes back here and finds nothing to change.
      Place(*bar);
      return 0;
    case SB_SETPARTS:
      return SetParts(state, wParam, reinterpret_cast<const int*>(lParam));
    case SB_GETPARTS:
      return GetParts(state, wParam, reinterpret_cast<int*>(lParam));
    case SB_SETTEXTA:
      return SetPartText(*bar, wParam, reinterpret_cast<const char*>(lParam));
    case SB_GETTEXTA:
      return GetPartText(state, wParam, reinterpret_cast<char*>(lParam));
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
