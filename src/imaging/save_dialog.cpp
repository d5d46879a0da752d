#include "imaging/save_dialog.h"

bool AskSaveName(HWND owner, char (&path)[MAX_PATH], const char* filter,
                 const char* defaultExtension) {
  OPENFILENAMEA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.hInstance = GetModuleHandleA(nullptr);
  dialog.lpstrFilter = filter;
  dialog.lpstrFile = path;
  dialog.nMaxFile = MAX_PATH;
  dialog.lpstrDefExt = defaultExtension;
  dialog.Flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_EXPLORER | OFN_ENABLESIZING;
  if (GetSaveFileNameA(&dialog)) return true;
  // The dialog leaves the size that it needs in place of a path.
  if (CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) path[0] = '\0';
  return false;
}
