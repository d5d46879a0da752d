#include "platform/standin/dialog.h"

namespace standin {
namespace {

constexpr int kIconId = 20;
constexpr int kTextId = 0xFFFF;

INT_PTR MessageBoxProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SendDlgItemMessageA(dialog, kIconId, STM_SETICON, static_cast<WPARAM>(lParam), 0);
    return TRUE;
  }
  if (message != WM_COMMAND) return FALSE;
  int id = LOWORD(wParam);
  // The close box and Escape are as good as the one button; a question they leave open.
  if (id == IDCANCEL && GetDlgItem(dialog, IDOK)) id = IDOK;
  if (GetDlgItem(dialog, id)) EndDialog(dialog, id);
  return TRUE;
}

LPCSTR IconName(UINT type) {
  switch (type & MB_ICONMASK) {
    case MB_ICONHAND:
      return IDI_HAND;
    case MB_ICONQUESTION:
      return IDI_QUESTION;
    case MB_ICONEXCLAMATION:
      return IDI_EXCLAMATION;
    default:
      return nullptr;
  }
}

void AddButton(DialogTemplate& box, const char* text, int id, bool first) {
  const DWORD style =
      WS_CHILD | WS_VISIBLE | WS_TABSTOP | (first ? BS_DEFPUSHBUTTON | WS_GROUP : BS_PUSHBUTTON);
  box.controls.push_back({"Button", text, id, style, 0, first ? 50 : 110, 50, 50, 14});
}

}  // namespace
}  // namespace standin

using namespace standin;

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
  const LPCSTR icon = IconName(type);
  const UINT buttons = type & MB_TYPEMASK;
  const UINT known = MB_TYPEMASK | MB_ICONMASK;
  if ((type & ~known) || (buttons != MB_OK && buttons != MB_YESNO) ||
      (!icon && (type & MB_ICONMASK))) {
    SetLastError(ERROR_INVALID_MSGBOX_STYLE);
    return 0;
  }
  DialogTemplate box;
  box.style = DS_SETFONT | DS_MODALFRAME | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU;
  box.caption = caption ? caption : "Error";
  box.width = 210;
  box.height = 70;
  box.fontSize = 8;
  box.fontName = "MS Shell Dlg";
  if (icon)
    box.controls.push_back(
        {"Static", "", kIconId, WS_CHILD | WS_VISIBLE | SS_ICON, 0, 7, 7, 20, 20});
  box.controls.push_back(
      {"Static", text ? text : "", kTextId, WS_CHILD | WS_VISIBLE, 0, 35, 7, 168, 36});
  if (buttons == MB_OK) {
    AddButton(box, "OK", IDOK, true);
  } else {
    AddButton(box, "Yes", IDYES, true);
    AddButton(box, "No", IDNO, false);
  }
  const HICON picture = icon ? LoadIconA(nullptr, icon) : nullptr;
  return static_cast<int>(RunDialog(box, owner, MessageBoxProc, reinterpret_cast<LPARAM>(picture)));
}
