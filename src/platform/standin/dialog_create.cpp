#include <algorithm>

#include "platform/standin/dialog.h"

namespace standin {
namespace {

// One dialog unit is a quarter of the average letter's width and an eighth of its height; for the
// dialogs' font that is 6 x 13 pixels.
constexpr int kBaseWidth = 6;
constexpr int kBaseHeight = 13;

int Rounded(int value, int numerator, int denominator) {
  const int product = value * numerator;
  return (product + (product < 0 ? -denominator : denominator) / 2) / denominator;
}
int PixelsX(int units) { return Rounded(units, kBaseWidth, 4); }
int PixelsY(int units) { return Rounded(units, kBaseHeight, 8); }

// The frame whose client area has the template's size.
RECT FrameOf(const DialogTemplate& dialog, DWORD style, DWORD exStyle, const Window* owner) {
  const int width = PixelsX(dialog.width);
  const int height = PixelsY(dialog.height);
  Window probe;
  probe.style = style;
  probe.exStyle = exStyle;
  probe.frame = {0, 0, 1000, 1000};
  UpdateClient(probe);
  const int fullWidth = width + 1000 - probe.ClientWidth();
  const int fullHeight = height + 1000 - probe.ClientHeight();
  if (dialog.style & DS_CENTER) return CentredOnScreen(fullWidth, fullHeight);
  POINT place{PixelsX(dialog.x), PixelsY(dialog.y)};
  if (owner && !(style & WS_CHILD)) {
    const POINT origin = ClientOrigin(*owner);
    place.x += origin.x;
    place.y += origin.y;
  }
  return {place.x, place.y, place.x + fullWidth, place.y + fullHeight};
}

HFONT MakeFont(const DialogTemplate& dialog) {
  if (!(dialog.style & DS_SETFONT)) return nullptr;
  LOGFONTA font{};
  font.lfHeight = -Rounded(dialog.fontSize, 96, 72);
  return CreateFontIndirectA(&font);
}

void CreateControls(const DialogTemplate& dialog, Window& window) {
  for (const ControlTemplate& control : dialog.controls) {
    const HWND made = CreateWindowExA(
        control.exStyle, control.className.c_str(), control.text.c_str(), control.style,
        PixelsX(control.x), PixelsY(control.y), PixelsX(control.width), PixelsY(control.height),
        window.handle, reinterpret_cast<HMENU>(static_cast<INT_PTR>(control.id)), window.instance,
        nullptr);
    if (window.dialog->font)
      SendMessageA(made, WM_SETFONT, reinterpret_cast<WPARAM>(window.dialog->font), FALSE);
    const LRESULT code = SendMessageA(made, WM_GETDLGCODE, 0, 0);
    if ((code & DLGC_DEFPUSHBUTTON) && !window.dialog->defaultButton)
      window.dialog->defaultButton = control.id;
  }
}

void Initialise(const Window& window, LPARAM param) {
  const HWND handle = window.handle;
  const HWND first = NextTabStop(window, nullptr);
  const bool focus =
      SendMessageA(handle, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), param) != 0;
  if (!IsWindow(handle) || !focus || (window.style & DS_CONTROL)) return;
  // The procedure may have changed which controls are tab stops.
  if (const HWND now = NextTabStop(window, nullptr)) FocusControl(now);
}

}  // namespace

DialogTemplate SystemDialog(const char* caption, int width, int height) {
  DialogTemplate dialog;
  dialog.caption = caption;
  dialog.style = DS_SETFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU;
  dialog.width = width;
  dialog.height = height;
  dialog.fontSize = 8;
  return dialog;
}

HWND CreateDialogFromTemplate(const DialogTemplate& dialog, HWND owner, DLGPROC proc, LPARAM param,
                              bool ownerEnabled) {
  const auto ownerWindow = owner ? FindWindowPtr(owner) : nullptr;
  DWORD style = dialog.style & ~static_cast<DWORD>(WS_VISIBLE);
  DWORD exStyle = dialog.exStyle;
  if (dialog.style & DS_MODALFRAME) exStyle |= WS_EX_DLGMODALFRAME;
  if (dialog.style & DS_CONTROL) {
    style &= ~static_cast<DWORD>(WS_CAPTION | WS_SYSMENU);
    exStyle |= WS_EX_CONTROLPARENT;
  }
  const RECT frame = FrameOf(dialog, style, exStyle, ownerWindow.get());
  const HWND handle =
      CreateWindowExA(exStyle, kDialogClass, dialog.caption.c_str(), style, frame.left, frame.top,
                      frame.right - frame.left, frame.bottom - frame.top, owner, nullptr,
                      GetModuleHandleA(nullptr), nullptr);
  const auto window = FindWindowPtr(handle);
  window->dialog = std::make_unique<DialogState>();
  window->dialog->proc = proc;
  window->dialog->ownerEnabled = ownerEnabled;
  window->dialog->font = MakeFont(dialog);
  if (window->dialog->font)
    SendMessageA(handle, WM_SETFONT, reinterpret_cast<WPARAM>(window->dialog->font), 0);
  CreateControls(dialog, *window);
  Initialise(*window, param);
  if (!IsWindow(handle)) return nullptr;
  if ((dialog.style & WS_VISIBLE)) ShowWindow(handle, SW_SHOWNORMAL);
  return IsWindow(handle) ? handle : nullptr;
}

}  // namespace standin
