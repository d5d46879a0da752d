#include "dialogs/dialog.h"

#include <algorithm>

INT_PTR RunDialog(int templateId, HWND owner, DLGPROC procedure, LPARAM parameter) {
  const INT_PTR result = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(templateId),
                                         owner, procedure, parameter);
  return std::max<INT_PTR>(result, 0);
}

WNDPROC ReplaceWindowProc(HWND control, WNDPROC procedure) {
  return reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

std::string TemplatePath(const char* folder, const char* fileName) {
  std::string path = std::string(folder) + "Templates\\" + fileName;
  if (path.size() >= MAX_PATH) path.clear();
  return path;
}

SIZE ClientSize(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right - client.left, client.bottom - client.top};
}
