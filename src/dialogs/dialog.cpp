#include "dialogs/dialog.h"

#include <algorithm>

#include "document/load_screen_doc.h"

INT_PTR Dialog::Run(int templateId, HWND owner) {
  const INT_PTR result = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(templateId),
                                         owner, Proc, reinterpret_cast<LPARAM>(this));
  return std::max<INT_PTR>(result, 0);
}

INT_PTR Dialog::OnClose() {
  End(0);
  return TRUE;
}

INT_PTR Dialog::OnMessage(UINT, WPARAM, LPARAM) { return FALSE; }

INT_PTR CALLBACK Dialog::Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) SetWindowLongPtrA(window, DWLP_USER, lParam);
  const auto dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrA(window, DWLP_USER));
  if (!dialog) return FALSE;  // the controls already send messages while they are made
  switch (message) {
    case WM_INITDIALOG:
      dialog->window_ = window;
      return dialog->OnInit();
    case WM_COMMAND:
    case WM_CLOSE:
      // Another program's message must not end the dialog below the one that it has opened.
      if (!IsWindowEnabled(window)) return TRUE;
      return message == WM_CLOSE ? dialog->OnClose()
                                 : dialog->OnCommand(LOWORD(wParam), HIWORD(wParam));
  }
  return dialog->OnMessage(message, wParam, lParam);
}

bool LoadCatalogue(HWND dialog, const char* section, LeadingSpaces spaces,
                   std::vector<CatalogueEntry>& entries) {
  SetCurrentDirectoryA(doc.appDir);
  const char* const error = ReadCatalogue("Settings.ini", section, spaces, entries);
  if (error) MessageBoxA(dialog, error, "Error", MB_OK | MB_ICONHAND);
  return !error;
}
