#include "dialogs/shp_options.h"

#include <cstring>
#include <optional>

#include "dialogs/file_dialogs.h"
#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "export/shp_export.h"
#include "resources/resource.h"

int paletteMode = kGeneratePalette;
char palettePath[MAX_PATH] = "";

namespace {

constexpr UINT kMostColours = 256;
constexpr int kProgressRange = 13;
constexpr char kPaletteFilter[] = "C&C PAL files(*.pal)\0*.pal\0All Files (*.*)\0*.*\0";

const char* shpPath = nullptr;  // of the open dialog
bool exporting = false;
std::optional<int> quitCode;  // of a request to end the editor that came during an export

INT_PTR OnInitDialog(HWND dialog, LPARAM path) {
  shpPath = reinterpret_cast<const char*>(path);
  CheckRadioButton(dialog, IDC_SHP_GENERATE, IDC_SHP_EXISTING,
                   paletteMode == kExistingPalette ? IDC_SHP_EXISTING : IDC_SHP_GENERATE);
  SendDlgItemMessageA(dialog, IDC_SHP_COLOURS, EM_LIMITTEXT, 3, 0);
  SetDlgItemInt(dialog, IDC_SHP_COLOURS, kMostColours, FALSE);
  EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
  ShowWindow(GetDlgItem(dialog, IDC_SHP_PROGRESS), SW_HIDE);
  // The default, the first button, is greyed and could not take the keyboard.
  SetFocus(GetDlgItem(dialog, IDC_SHP_NAME));
  return FALSE;
}

// OK is offered while the palette's folder exists, or the palette itself when it is to be read.
void OnNameChange(HWND dialog) {
  const HWND ok = GetDlgItem(dialog, IDOK);
  if (GetWindowTextLengthA(GetDlgItem(dialog, IDC_SHP_NAME)) >= MAX_PATH) {
    EnableWindow(ok, FALSE);
    return;
  }
  char text[255];
  GetDlgItemTextA(dialog, IDC_SHP_NAME, text, sizeof text);
  if (paletteMode == kGeneratePalette) {
    if (char* backslash = std::strrchr(text, '\\')) *backslash = '\0';
  }
  SetLastError(ERROR_SUCCESS);
  if (GetFileAttributesA(text) != INVALID_FILE_ATTRIBUTES) {
    EnableWindow(ok, TRUE);
  } else if (GetLastError() != ERROR_SUCCESS) {
    EnableWindow(ok, FALSE);
  }
}

void OnBrowse(HWND dialog) {
  if (!AskSaveName(dialog, palettePath, kPaletteFilter, "pal")) return;
  SetDlgItemTextA(dialog, IDC_SHP_NAME, palettePath);
}

void OnPaletteMode(HWND dialog, PaletteMode mode) {
  paletteMode = mode;
  EnableWindow(GetDlgItem(dialog, IDC_SHP_NAME), TRUE);
  EnableWindow(GetDlgItem(dialog, IDC_SHP_BROWSE), TRUE);
}

void KeepColoursInRange(HWND dialog) {
  const UINT colours = GetDlgItemInt(dialog, IDC_SHP_COLOURS, nullptr, FALSE);
  if (colours > kMostColours) SetDlgItemInt(dialog, IDC_SHP_COLOURS, kMostColours, FALSE);
  if (colours < 1) SetDlgItemInt(dialog, IDC_SHP_COLOURS, 1, FALSE);
}

void EmptyMessageQueue() {
  MSG message{};
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) quitCode = static_cast<int>(message.wParam);
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

// What ends the editor is for its own loop; before the export's end it would come back at once.
void PassOnQuit() {
  if (quitCode) PostQuitMessage(*quitCode);
  quitCode.reset();
}

void DisableInputs(HWND dialog) {
  for (const int id : {IDOK, IDCANCEL, IDC_SHP_BROWSE, IDC_SHP_GENERATE, IDC_SHP_EXISTING,
                       IDC_SHP_SHP16, IDC_SHP_COLOURS, IDC_SHP_NAME}) {
    EnableWindow(GetDlgItem(dialog, id), FALSE);
  }
}

void ExportShp(HWND dialog) {
  exporting = true;
  const HWND progressBar = GetDlgItem(dialog, IDC_SHP_PROGRESS);
  ShowWindow(progressBar, SW_SHOW);
  DisableInputs(dialog);
  SendMessageA(progressBar, PBM_SETRANGE, 0, MAKELPARAM(0, kProgressRange));
  SendMessageA(progressBar, PBM_SETSTEP, 1, 0);
  GetDlgItemTextA(dialog, IDC_SHP_NAME, palettePath, MAX_PATH);
  const ShpExport request = {
      shpPath, paletteMode, palettePath,
      static_cast<int32_t>(GetDlgItemInt(dialog, IDC_SHP_COLOURS, nullptr, FALSE))};
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&picture);
  SendMessageA(progressBar, PBM_STEPIT, 0, 0);
  const FailedStep failed = RunShpExport(picture, request, [progressBar](ExportStep step) {
    SendMessageA(progressBar, PBM_STEPIT, 0, 0);
    if (step == ExportStep::RowsMapped) EmptyMessageQueue();
  });
  if (failed) MessageBoxA(dialog, failed, "Error", MB_OK | MB_ICONERROR);
  exporting = false;
  PassOnQuit();
  SendMessageA(dialog, WM_CLOSE, 0, 0);
}

INT_PTR OnCommand(HWND dialog, int id, UINT notification) {
  // The export handles messages while it maps the pixels: none of them may start or end anything.
  if (exporting) return TRUE;
  switch (id) {
    case IDOK:
      ExportShp(dialog);
      return TRUE;
    case IDCANCEL:
      EndDialog(dialog, 0);
      return TRUE;
    case IDC_SHP_NAME:
      if (notification == EN_CHANGE) OnNameChange(dialog);
      return TRUE;
    case IDC_SHP_BROWSE:
      OnBrowse(dialog);
      return TRUE;
    case IDC_SHP_GENERATE:
      OnPaletteMode(dialog, kGeneratePalette);
      return TRUE;
    case IDC_SHP_EXISTING:
      OnPaletteMode(dialog, kExistingPalette);
      return TRUE;
    case IDC_SHP_COLOURS:
      KeepColoursInRange(dialog);
      return TRUE;
  }
  return FALSE;
}

}  // namespace

INT_PTR CALLBACK ShpOptionsProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      return OnInitDialog(dialog, lParam);
    case WM_COMMAND:
      return OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
    case WM_CLOSE:
      if (!exporting) EndDialog(dialog, 0);
      return TRUE;
  }
  return FALSE;
}
