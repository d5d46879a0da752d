#include <algorithm>
#include <utility>

#include "platform/standin/controls.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

struct ProgressBarState : ControlState {
  int minimum = 0;
  int maximum = 100;
  int position = 0;
  int step = 10;
};

LRESULT SetRange(ProgressBarState& state, LPARAM range) {
  const LRESULT before = MAKELONG(state.minimum, state.maximum);
  state.minimum = LOWORD(range);
  state.maximum = HIWORD(range);
  state.position =
      std::clamp(state.position, state.minimum, std::max(state.minimum, state.maximum));
  return before;
}

// A step past the end begins again with what is left over.
LRESULT Step(ProgressBarState& state) {
  const int before = state.position;
  state.position += state.step;
  const int length = state.maximum - state.minimum;
  if (state.position > state.maximum && length > 0)
    state.position = state.minimum + (state.position - state.minimum) % length;
  return before;
}

}  // namespace

LRESULT ProgressBarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto bar = FindWindowPtr(handle);
  if (!bar) return 0;
  ProgressBarState& state = StateOf<ProgressBarState>(*bar);
  switch (message) {
    case PBM_SETRANGE:
      return SetRange(state, lParam);
    case PBM_SETSTEP:
      return std::exchange(state.step, static_cast<int>(wParam));
    case PBM_STEPIT:
      InvalidateRect(handle, nullptr, TRUE);
      return Step(state);
    case PBM_GETPOS:
      return state.position;
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
