#include "platform/standin/dialog.h"
#include "platform/standin/failure.h"

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
  switch (type & ~UINT{MB_YESNO}) {
    case MB_ICONHAND:
      return IDI_HAND;
    case MB_ICONQUESTION:
      return IDI_QUESTION;
    case MB_ICONEXCLAMATION:
      return IDI_EXCLAMATION;
    default:
      Unsupported("a message box of type " + std::to_string(type));
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
  const HICON picture = LoadIconA(nullptr, IconName(type));
  DialogTemplate box = SystemDialog(caption, 210, 70);
  box.style |= DS_CENTER;
  box.controls = {{"Static", "", kIconId, WS_CHILD | WS_VISIBLE | SS_ICON, 0, 7, 7, 20, 20},
                  {"Static", text, kTextId, WS_CHILD | WS_VISIBLE, 0, 35, 7, 168, 36}};
  const bool question = type & MB_YESNO;
  AddButton(box, question ? "Yes" : "OK", question ? IDYES : IDOK, true);
  if (question) AddButton(box, "No", IDNO, false);
  return static_cast<int>(RunDialog(box, owner, MessageBoxProc, reinterpret_cast<LPARAM>(picture)));
}
