#include "dialogs/file_dialogs.h"

#include <cstring>

#include "imaging/image_files.h"

OPENFILENAMEA FileDialog(HWND owner, char (&path)[MAX_PATH], const char* filter,
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
  return dialog;
}

bool AskSaveName(HWND owner, char (&path)[MAX_PATH], const char* filter,
                 const char* defaultExtension) {
  // The system does not even open the dialog for a proposal that no file can have.
  const size_t length = std::strlen(path);
  if (std::strpbrk(path, "*?\"<>|") || (length && std::strchr("\\/:", path[length - 1]))) {
    path[0] = '\0';
  }
  OPENFILENAMEA dialog = FileDialog(owner, path, filter, defaultExtension);
  if (GetSaveFileNameA(&dialog)) return true;
  // The dialog leaves the size that it needs in place of a path.
  if (CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) path[0] = '\0';
  return false;
}

int SaveImageFileAs(HWND owner, char (&path)[MAX_PATH], const BitmapClass& surface) {
  if (!AskSaveName(owner, path, imageFilter, "bmp")) return 0;
  return SaveImageFile(path, surface);
}
