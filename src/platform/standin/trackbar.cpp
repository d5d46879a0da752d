#include <algorithm>

#include "platform/standin/controls.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

struct TrackbarState : ControlState {
  int minimum = 0;
  int maximum = 100;
  int position = 0;
};

void SetPosition(TrackbarState& state, int position) {
  state.position = std::clamp(position, state.minimum, std::max(state.minimum, state.maximum));
}

void Tell(const Window& bar, int code) {
  SendMessageA(bar.parent, WM_HSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(bar.handle));
}

// The scroll code of a key and where it takes the thumb; false for other keys.
bool TargetOf(const TrackbarState& state, WPARAM key, int& code, int& position) {
  switch (key) {
    case VK_LEFT:
    case VK_UP:
      code = TB_LINEUP;
      position = state.position - 1;
      return true;
    case VK_RIGHT:
    case VK_DOWN:
      code = TB_LINEDOWN;
      position = state.position + 1;
      return true;
    default:
      return false;
  }
}

void Key(Window& bar, WPARAM key, bool down) {
  TrackbarState& state = StateOf<TrackbarState>(bar);
  int code = 0;
  int position = 0;
  if (!TargetOf(state, key, code, position)) return;
  if (!down) return Tell(bar, TB_ENDTRACK);
  const int before = state.position;
  SetPosition(state, position);
  if (state.position != before) Tell(bar, code);
}

}  // namespace

LRESULT TrackbarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto bar = FindWindowPtr(handle);
  if (!bar) return 0;
  TrackbarState& state = StateOf<TrackbarState>(*bar);
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case TBM_SETRANGE:
      state.minimum = static_cast<SHORT>(LOWORD(lParam));
      state.maximum = static_cast<SHORT>(HIWORD(lParam));
      SetPosition(state, state.position);
      return 0;
    case TBM_GETRANGEMIN:
      return state.minimum;
    case TBM_GETRANGEMAX:
      return state.maximum;
    case TBM_SETPOS:
      SetPosition(state, static_cast<int>(lParam));
      return 0;
    case TBM_GETPOS:
      return state.position;
    case WM_KEYDOWN:
      Key(*bar, wParam, true);
      return 0;
    case WM_KEYUP:
      Key(*bar, wParam, false);
      return 0;
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
