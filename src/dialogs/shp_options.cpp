#include "dialogs/shp_options.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "dialogs/dialog.h"
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

class ShpOptionsDialog final : public Dialog {
 public:
  explicit ShpOptionsDialog(const char* path) : shpPath(path) {}

 private:
  INT_PTR OnInit() override;
  INT_PTR OnCommand(int id, UINT notification) override;
  INT_PTR OnClose() override;
  void OnNameChange() const;
  void OnBrowse() const;
  void OnPaletteMode(PaletteMode mode) const;
  void KeepColoursInRange() const;
  void ExportShp();
  FailedStep RunExport();
  void DisableInputs() const;
  void EmptyMessageQueue();
  UINT Colours() const { return GetDlgItemInt(Window(), IDC_SHP_COLOURS, nullptr, FALSE); }

  const char* const shpPath;
  bool exporting = false;
  std::optional<int> quitCode;  // of a request to end the editor that came during the export
};

INT_PTR ShpOptionsDialog::OnInit() {
  CheckRadioButton(Window(), IDC_SHP_GENERATE, IDC_SHP_EXISTING,
                   paletteMode == kExistingPalette ? IDC_SHP_EXISTING : IDC_SHP_GENERATE);
  Send(IDC_SHP_COLOURS, EM_LIMITTEXT, 3);
  SetDlgItemInt(Window(), IDC_SHP_COLOURS, kMostColours, FALSE);
  EnableWindow(Control(IDOK), FALSE);
  ShowWindow(Control(IDC_SHP_PROGRESS), SW_HIDE);
  // The default, the first button, is greyed and could not take the keyboard.
  SetFocus(Control(IDC_SHP_NAME));
  return FALSE;
}

INT_PTR ShpOptionsDialog::OnCommand(int id, UINT notification) {
  // The export handles messages while it maps the pixels: none of them may start or end anything.
  if (exporting) return TRUE;
  switch (id) {
    case IDOK:
      ExportShp();
      return TRUE;
    case IDCANCEL:
      End(0);
      return TRUE;
    case IDC_SHP_NAME:
      if (notification == EN_CHANGE) OnNameChange();
      return TRUE;
    case IDC_SHP_BROWSE:
      OnBrowse();
      return TRUE;
    case IDC_SHP_GENERATE:
      OnPaletteMode(kGeneratePalette);
      return TRUE;
    case IDC_SHP_EXISTING:
      OnPaletteMode(kExistingPalette);
      return TRUE;
    case IDC_SHP_COLOURS:
      KeepColoursInRange();
      return TRUE;
  }
  return FALSE;
}

INT_PTR ShpOptionsDialog::OnClose() { return exporting ? TRUE : Dialog::OnClose(); }

// OK is offered while the palette's folder exists, or the palette itself when it is to be read.
void ShpOptionsDialog::OnNameChange() const {
  const HWND ok = Control(IDOK);
  if (GetWindowTextLengthA(Control(IDC_SHP_NAME)) >= MAX_PATH) {
    EnableWindow(ok, FALSE);
    return;
  }
  char text[255];
  GetDlgItemTextA(Window(), IDC_SHP_NAME, text, sizeof text);
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

void ShpOptionsDialog::OnBrowse() const {
  if (!AskSaveName(Window(), palettePath, kPaletteFilter, "pal")) return;
  SetDlgItemTextA(Window(), IDC_SHP_NAME, palettePath);
}

void ShpOptionsDialog::OnPaletteMode(PaletteMode mode) const {
  paletteMode = mode;
  EnableWindow(Control(IDC_SHP_NAME), TRUE);
  EnableWindow(Control(IDC_SHP_BROWSE), TRUE);
}

void ShpOptionsDialog::KeepColoursInRange() const {
  const UINT colours = Colours();
  const UINT corrected = std::clamp(colours, 1U, kMostColours);
  if (corrected == colours) return;
  SetDlgItemInt(Window(), IDC_SHP_COLOURS, corrected, FALSE);
  // What is typed next replaces the correction instead of adding digits to it.
  Send(IDC_SHP_COLOURS, EM_SETSEL, 0, -1);
}

void ShpOptionsDialog::ExportShp() {
  exporting = true;
  ShowWindow(Control(IDC_SHP_PROGRESS), SW_SHOW);
  DisableInputs();
  Send(IDC_SHP_PROGRESS, PBM_SETRANGE, 0, MAKELPARAM(0, kProgressRange));
  Send(IDC_SHP_PROGRESS, PBM_SETSTEP, 1);
  GetDlgItemTextA(Window(), IDC_SHP_NAME, palettePath, MAX_PATH);
  if (const FailedStep failed = RunExport()) {
    MessageBoxA(Window(), failed, "Error", MB_OK | MB_ICONERROR);
  }
  exporting = false;
  // What ends the editor is for its own loop; before the export's end it would come back at once.
  if (quitCode) PostQuitMessage(*quitCode);
  SendMessageA(Window(), WM_CLOSE, 0, 0);
}

FailedStep ShpOptionsDialog::RunExport() {
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&picture);
  Send(IDC_SHP_PROGRESS, PBM_STEPIT);
  const ShpExport request = {shpPath, paletteMode, palettePath, static_cast<int32_t>(Colours())};
  return RunShpExport(picture, request, [this](ExportStep step) {
    Send(IDC_SHP_PROGRESS, PBM_STEPIT);
    if (step == ExportStep::RowsMapped) EmptyMessageQueue();
  });
}

void ShpOptionsDialog::DisableInputs() const {
  for (const int id : {IDOK, IDCANCEL, IDC_SHP_BROWSE, IDC_SHP_GENERATE, IDC_SHP_EXISTING,
                       IDC_SHP_SHP16, IDC_SHP_COLOURS, IDC_SHP_NAME}) {
    EnableWindow(Control(id), FALSE);
  }
}

void ShpOptionsDialog::EmptyMessageQueue() {
  MSG message{};
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) quitCode = static_cast<int>(message.wParam);
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

}  // namespace

void OpenShpOptions(const char* shpPath) {
  ShpOptionsDialog(shpPath).Run(IDD_SHP_OPTIONS, doc.mainWindow);
}
