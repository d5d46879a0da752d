#include "dialogs/open_image.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "controls/image_preview.h"
#include "dialogs/file_dialogs.h"
#include "imaging/image_files.h"
#include "resources/resource.h"

namespace {

// How much the frame and the preview stay below the height of the extended dialog.
constexpr int kBelowFrame = 100;
constexpr int kBelowPreview = 120;
constexpr int kFrameWidth = 230;
constexpr int kPreviewWidth = 210;

void AddStyle(HWND window, int index, LONG_PTR bits) {
  SetWindowLongPtrA(window, index, GetWindowLongPtrA(window, index) | bits);
}

// The selected file's picture, in the dialog's user data for as long as the dialog is open; null in
// a pane whose making was broken off.
DIBClass* PreviewOf(HWND pane) {
  return reinterpret_cast<DIBClass*>(GetWindowLongPtrA(pane, DWLP_USER));
}

void OnInitDialog(HWND pane, const OPENFILENAMEA& dialog) {
  SetWindowLongPtrA(pane, DWLP_USER, dialog.lCustData);
  AddStyle(GetParent(pane), GWL_STYLE, WS_OVERLAPPEDWINDOW);
  // The frame draws its edges only, and the pane leaves out its children's areas when it erases
  // its background: without this the frame stays black inside.
  AddStyle(GetDlgItem(pane, IDC_OPEN_FRAME), GWL_EXSTYLE, WS_EX_TRANSPARENT);
}

// Wine gives the focus to the pane's first control; Windows gives it to the name field by itself.
void OnShown(HWND pane) {
  if (GetParent(GetFocus()) != pane) return;
  const HWND box = GetDlgItem(GetParent(pane), cmb13);
  SetFocus(box ? box : GetDlgItem(GetParent(pane), edt1));
}

void Resize(HWND pane, int id, int width, int height) {
  SetWindowPos(GetDlgItem(pane, id), nullptr, 0, 0, width, std::max(height, 0),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void OnSize(HWND pane, int height) {
  Resize(pane, IDC_OPEN_FRAME, kFrameWidth, height - kBelowFrame);
  Resize(pane, IDC_OPEN_PREVIEW, kPreviewWidth, height - kBelowPreview);
}

BOOL CALLBACK FindList(HWND window, LPARAM found) {
  char name[32] = "";
  GetClassNameA(window, name, sizeof name);
  if (std::strcmp(name, "SysListView32") != 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

// Whether the list's selected line is a folder, for which Wine goes on telling the path of the file
// chosen before. A file's line may lack the ending of its name, which a folder may have as well.
bool IsFolderSelected(HWND dialog, std::string_view path) {
  HWND list = nullptr;
  EnumChildWindows(dialog, FindList, reinterpret_cast<LPARAM>(&list));
  const LRESULT line =
      list ? SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) : -1;
  if (line < 0) return false;
  char folder[MAX_PATH] = "", name[MAX_PATH] = "";
  LVITEMA item{};
  item.pszText = name;
  item.cchTextMax = MAX_PATH;
  SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&item));
  SendMessageA(dialog, CDM_GETFOLDERPATH, MAX_PATH, reinterpret_cast<LPARAM>(folder));
  const std::string selected = std::string(folder) + "\\" + name;
  const DWORD kind = GetFileAttributesA(selected.c_str());
  return !path.starts_with(selected) && kind != INVALID_FILE_ATTRIBUTES &&
         (kind & FILE_ATTRIBUTE_DIRECTORY);
}

void OnSelectionChanged(HWND pane) {
  char path[MAX_PATH] = "";
  const LRESULT needed =
      SendMessageA(GetParent(pane), CDM_GETFILEPATH, MAX_PATH - 1, reinterpret_cast<LPARAM>(path));
  // A path that is cut short would be another file's.
  if (needed > MAX_PATH - 1 || IsFolderSelected(GetParent(pane), path)) path[0] = '\0';
  DIBClass* const preview = PreviewOf(pane);
  preview->Free();
  const bool loaded = TryLoadImageFile(path, *preview) != 0;
  ShowPreviewPicture(GetDlgItem(pane, IDC_OPEN_PREVIEW), loaded ? preview : nullptr);
}

void OnNotice(HWND pane, UINT code) {
  if (code == CDN_INITDONE) OnShown(pane);
  if (code == CDN_SELCHANGE) OnSelectionChanged(pane);
}

UINT_PTR CALLBACK OpenPreviewHook(HWND pane, UINT message, WPARAM, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      OnInitDialog(pane, *reinterpret_cast<const OPENFILENAMEA*>(lParam));
      return 1;
    case WM_SIZE:
      OnSize(pane, HIWORD(lParam));
      return 1;
    case WM_NOTIFY:
      OnNotice(pane, reinterpret_cast<const NMHDR*>(lParam)->code);
      return 1;
    case WM_DESTROY:
      if (DIBClass* const preview = PreviewOf(pane)) preview->Free();
      return 1;
  }
  return 0;
}

// The path's folder with its backslash; a path without a backslash whole.
std::string FolderOf(const char* path) {
  std::string folder = path;
  const size_t backslash = folder.rfind('\\');
  if (backslash != std::string::npos) folder.resize(backslash + 1);
  return folder;
}

}  // namespace

int OpenImageWithPreview(HWND owner, char (&path)[MAX_PATH], BitmapClass& surface) {
  const std::string folder = FolderOf(path);
  DIBClass preview;
  path[0] = '\0';
  OPENFILENAMEA dialog = FileDialog(owner, path, imageFilter, "bmp");
  dialog.lpstrInitialDir = folder.c_str();
  dialog.lpstrTitle = "Choose file to open";
  dialog.lpTemplateName = MAKEINTRESOURCEA(IDD_OPEN_PREVIEW);
  dialog.lpfnHook = OpenPreviewHook;
  dialog.lCustData = reinterpret_cast<LPARAM>(&preview);
  dialog.Flags |= OFN_ENABLEHOOK | OFN_ENABLETEMPLATE;
  if (!GetOpenFileNameA(&dialog)) {
    // A buffer that is too small comes back with the needed size in place of a path.
    path[0] = '\0';
    return 0;
  }
  return TryLoadImageFile(path, surface);
}
