#include <algorithm>

#include "platform/standin/controls.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

struct ButtonState : ControlState {
  bool checked = false;
  bool pushed = false;
};

DWORD TypeOf(const Window& button) { return button.style & BS_TYPEMASK; }

LRESULT DialogCode(const Window& button) {
  switch (TypeOf(button)) {
    case BS_PUSHBUTTON:
      return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON:
      return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_AUTORADIOBUTTON:
      return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX:
      return DLGC_STATIC;
    default:
      return DLGC_BUTTON;
  }
}

// One radio button of a group is checked: the others, from one WS_GROUP to the next, are not.
void UncheckOthers(const Window& button) {
  const std::vector<HWND> siblings = SiblingsOf(button);
  const auto startsGroup = [](HWND sibling) {
    return (GetWindowLongPtrA(sibling, GWL_STYLE) & WS_GROUP) != 0;
  };
  auto first = std::find(siblings.begin(), siblings.end(), button.handle);
  auto end = std::find_if(first + 1, siblings.end(), startsGroup);
  while (first != siblings.begin() && !startsGroup(*first)) --first;
  for (; first != end; ++first) {
    const auto other = FindWindowPtr(*first);
    if (other && other->handle != button.handle && other->windowClass == button.windowClass &&
        TypeOf(*other) == BS_AUTORADIOBUTTON)
      SendMessageA(other->handle, BM_SETCHECK, BST_UNCHECKED, 0);
  }
}

void SetCheck(Window& button, bool check) {
  const DWORD type = TypeOf(button);
  if (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON || type == BS_GROUPBOX) return;
  StateOf<ButtonState>(button).checked = check;
  if (type != BS_AUTORADIOBUTTON) return;
  // Tab reaches the checked button of a group.
  button.style = check ? button.style | WS_TABSTOP : button.style & ~static_cast<DWORD>(WS_TABSTOP);
  if (check) UncheckOthers(button);
}

void Clicked(Window& button) {
  switch (TypeOf(button)) {
    case BS_AUTOCHECKBOX:
      SetCheck(button, !StateOf<ButtonState>(button).checked);
      break;
    case BS_AUTORADIOBUTTON:
      SetCheck(button, true);
      break;
    default:
      break;
  }
  NotifyParent(button, BN_CLICKED);
}

void Release(Window& button, LPARAM place) {
  ButtonState& state = StateOf<ButtonState>(button);
  if (!state.pushed) return;
  state.pushed = false;
  if (GetCapture() == button.handle) ReleaseCapture();
  const int x = static_cast<SHORT>(LOWORD(place));
  const int y = static_cast<SHORT>(HIWORD(place));
  if (x >= 0 && y >= 0 && x < button.ClientWidth() && y < button.ClientHeight()) Clicked(button);
}

}  // namespace

LRESULT ButtonProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto button = FindWindowPtr(handle);
  if (!button) return 0;
  ButtonState& state = StateOf<ButtonState>(*button);
  switch (message) {
    case WM_GETDLGCODE:
      return DialogCode(*button);
    case BM_GETCHECK:
      return state.checked ? BST_CHECKED : BST_UNCHECKED;
    case BM_SETCHECK:
      SetCheck(*button, wParam == BST_CHECKED);
      return 0;
    case BM_CLICK:
      SendMessageA(handle, WM_LBUTTONDOWN, 0, 0);
      SendMessageA(handle, WM_LBUTTONUP, 0, 0);
      return 0;
    case WM_LBUTTONDOWN:
      SetCapture(handle);
      SetFocus(handle);
      state.pushed = true;
      return 0;
    case WM_LBUTTONUP:
      Release(*button, lParam);
      return 0;
    case WM_KEYDOWN:
      if (wParam == VK_SPACE) state.pushed = true;
      return 0;
    case WM_KEYUP:
      if (wParam == VK_SPACE) Release(*button, 0);
      return 0;
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
