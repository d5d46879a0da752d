#include <cstdio>
#include <cstring>
#include <string>

#include "platform/standin/dialog.h"
#include "platform/standin/failure.h"
#include "platform/standin/testing.h"

namespace standin {
namespace {

constexpr DWORD kKnownFlags = OFN_HIDEREADONLY | OFN_ENABLEHOOK | OFN_ENABLETEMPLATE |
                              OFN_FILEMUSTEXIST | OFN_EXPLORER | OFN_ENABLESIZING;
constexpr int kHeight = 120;  // dialog units; an extension makes the dialog higher and wider
constexpr int kWidth = 280;

DWORD extendedError = 0;

struct FileDialog {
  OPENFILENAMEA* request;
  bool open;           // otherwise it saves
  std::string folder;  // in which names without a folder are meant; ends in a backslash
};

std::string FolderPart(const std::string& path) {
  const size_t end = path.find_last_of("\\/");
  return end == std::string::npos ? "" : path.substr(0, end + 1);
}

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// Where the dialog opens: the proposed file's folder, else the one asked for, else the current one.
std::string FirstFolder(const OPENFILENAMEA& request) {
  std::string proposed = FolderPart(request.lpstrFile);
  if (IsFolder(proposed)) return proposed;
  char folder[MAX_PATH];
  GetCurrentDirectoryA(MAX_PATH, folder);
  std::string first = request.lpstrInitialDir ? request.lpstrInitialDir : folder;
  if (first.empty() || first.back() != '\\') first += '\\';
  return first;
}

FileDialog& StateOfDialog(HWND dialog) {
  return *reinterpret_cast<FileDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

std::string FullPath(HWND dialog) {
  char name[MAX_PATH];
  GetDlgItemTextA(dialog, cmb13, name, MAX_PATH);
  return FolderPart(name).empty() && *name ? StateOfDialog(dialog).folder + name : name;
}

// What CDM_GETFILEPATH gives: without a name it is the folder.
std::string SelectedPath(HWND dialog) {
  const std::string path = FullPath(dialog);
  const std::string& folder = StateOfDialog(dialog).folder;
  return path.empty() ? folder.substr(0, folder.size() - 1) : path;
}

// The hook and its template make a child dialog that fills the dialog behind its own controls.
void CreateChild(HWND dialog, OPENFILENAMEA& request) {
  if (!(request.Flags & OFN_ENABLETEMPLATE)) return;
  const auto& dialogs = ProgramResources().dialogs;
  const auto found = dialogs.find(ResourceNumber(request.lpTemplateName));
  if (found == dialogs.end()) Unsupported("the file dialog's template is missing");
  static LPOFNHOOKPROC hook;
  hook = request.lpfnHook;
  const DLGPROC proc = [](HWND child, UINT message, WPARAM wParam, LPARAM lParam) {
    return static_cast<INT_PTR>(hook(child, message, wParam, lParam));
  };
  const HWND child = CreateDialogFromTemplate(found->second, dialog, proc,
                                              reinterpret_cast<LPARAM>(&request), false);
  RECT client{};
  GetClientRect(dialog, &client);
  SetWindowPos(child, HWND_BOTTOM, 0, 0, client.right, client.bottom, SWP_NOACTIVATE);
  ShowWindow(child, SW_SHOW);
}

void Initialise(HWND dialog, LPARAM param) {
  SetWindowLongPtrA(dialog, DWLP_USER, param);
  FileDialog& state = StateOfDialog(dialog);
  state.folder = FirstFolder(*state.request);
  const std::string proposed = state.request->lpstrFile;
  SetDlgItemTextA(dialog, cmb13, proposed.substr(FolderPart(proposed).size()).c_str());
  CreateChild(dialog, *state.request);
}

bool HasExtension(const std::string& path) {
  return path.find('.', FolderPart(path).size()) != std::string::npos;
}

// The first file type's first pattern says which extension a name gets; for any file it is the
// default one.
std::string ExtensionOf(const OPENFILENAMEA& request) {
  std::string pattern = request.lpstrFilter + std::strlen(request.lpstrFilter) + 1;
  pattern = pattern.substr(pattern.find('.'), pattern.find(';') - pattern.find('.'));
  return pattern == ".*" ? std::string(".") + request.lpstrDefExt : pattern;
}

// Hands the name over. False when it does not fit into the caller's buffer, which gets the size
// that it would need instead.
bool Deliver(OPENFILENAMEA& request, const std::string& path) {
  if (path.size() >= request.nMaxFile) {
    extendedError = FNERR_BUFFERTOOSMALL;
    const auto needed = static_cast<WORD>(path.size() + 1);
    std::memcpy(request.lpstrFile, &needed, sizeof needed);
    return false;
  }
  std::memcpy(request.lpstrFile, path.c_str(), path.size() + 1);
  SetCurrentDirectoryA(FolderPart(path).c_str());
  return true;
}

void Accept(HWND dialog) {
  FileDialog& state = StateOfDialog(dialog);
  OPENFILENAMEA& request = *state.request;
  std::string path = FullPath(dialog);
  if (path.empty() || IsFolder(path)) return;
  if (!HasExtension(path)) path += ExtensionOf(request);
  const bool exists = GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
  if (!IsFolder(FolderPart(path)) || (state.open && !exists)) return;
  EndDialog(dialog, Deliver(request, path));
}

INT_PTR FileDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      Initialise(dialog, lParam);
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK) Accept(dialog);
      if (LOWORD(wParam) == IDCANCEL) EndDialog(dialog, FALSE);
      return TRUE;
    case CDM_SETCONTROLTEXT:
      SetDlgItemTextA(dialog, static_cast<int>(wParam), reinterpret_cast<const char*>(lParam));
      return TRUE;
    case CDM_GETFILEPATH: {
      const std::string path = SelectedPath(dialog);
      std::snprintf(reinterpret_cast<char*>(lParam), wParam, "%s", path.c_str());  // cut to fit
      SetWindowLongPtrA(dialog, DWLP_MSGRESULT, static_cast<LONG_PTR>(path.size() + 1));
      return TRUE;
    }
    default:
      return FALSE;
  }
}

bool RunFileDialog(OPENFILENAMEA* request, bool open) {
  extendedError = 0;
  if (request->lStructSize != sizeof *request) Unsupported("a file dialog of another size");
  if (request->Flags & ~kKnownFlags) Unsupported("a file dialog flag that is not known here");
  const auto visible = static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP);
  const int parts = request->Flags & OFN_ENABLETEMPLATE ? 2 : 1;
  const char* title = request->lpstrTitle ? request->lpstrTitle : open ? "Open" : "Save As";
  DialogTemplate dialog = SystemDialog(title, parts * kWidth, parts * kHeight);
  dialog.style |= WS_THICKFRAME | WS_CLIPCHILDREN;
  dialog.controls = {
      {"Edit", "", cmb13, visible | WS_BORDER | ES_AUTOHSCROLL, 0, 60, 80, 150, 12},
      {"Button", open ? "&Open" : "&Save", IDOK, visible | BS_DEFPUSHBUTTON, 0, 220, 80, 50, 14},
      {"Button", "Cancel", IDCANCEL, visible | BS_PUSHBUTTON, 0, 220, 98, 50, 14}};
  FileDialog state{request, open, ""};
  return RunDialog(dialog, request->hwndOwner, FileDialogProc, reinterpret_cast<LPARAM>(&state)) ==
         TRUE;
}

}  // namespace
}  // namespace standin

BOOL GetOpenFileNameA(LPOPENFILENAMEA request) { return standin::RunFileDialog(request, true); }

BOOL GetSaveFileNameA(LPOPENFILENAMEA request) { return standin::RunFileDialog(request, false); }

DWORD CommDlgExtendedError() { return standin::extendedError; }
