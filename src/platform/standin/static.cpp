#include <utility>

#include "platform/standin/controls.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

struct StaticState : ControlState {
  HICON icon = nullptr;
};

}  // namespace

LRESULT StaticProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto control = FindWindowPtr(handle);
  if (!control) return 0;
  StaticState& state = StateOf<StaticState>(*control);
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_STATIC;
    case STM_GETICON:
      return reinterpret_cast<LRESULT>(state.icon);
    case STM_SETICON:
      return reinterpret_cast<LRESULT>(std::exchange(state.icon, reinterpret_cast<HICON>(wParam)));
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
