#include "dialogs/dialog.h"

#include <algorithm>

#include "document/load_screen_doc.h"

INT_PTR RunDialog(int templateId, HWND owner, DLGPROC procedure, LPARAM parameter) {
  const INT_PTR result = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(templateId),
                                         owner, procedure, parameter);
  return std::max<INT_PTR>(result, 0);
}

bool LoadCatalogue(HWND dialog, const char* section, LeadingSpaces spaces,
                   std::vector<CatalogueEntry>& entries) {
  SetCurrentDirectoryA(doc.appDir);
  const char* const error = ReadCatalogue("Settings.ini", section, spaces, entries);
  if (error) MessageBoxA(dialog, error, "Error", MB_OK | MB_ICONHAND);
  return !error;
}
