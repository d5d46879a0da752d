#include "dialogs/load_screen_settings.h"

#include <cstring>
#include <string>
#include <vector>

#include "dialogs/choose_screenshot.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "files/template_path.h"
#include "imaging/image_files.h"
#include "resources/resource.h"

namespace {

constexpr int32_t kIconWidth = 76;
constexpr int32_t kIconHeight = 60;

// The entries of the open dialog's lists; their item data point at the file names.
std::vector<CatalogueEntry> cameos;

void FillLists(HWND dialog) {
  for (const CatalogueEntry& cameo : cameos) {
    for (int id = IDC_SETTINGS_ICON1; id <= IDC_SETTINGS_ICON3; ++id) {
      const LRESULT position = SendDlgItemMessageA(dialog, id, CB_ADDSTRING, 0,
                                                   reinterpret_cast<LPARAM>(cameo.text.c_str()));
      SendDlgItemMessageA(dialog, id, CB_SETITEMDATA, static_cast<WPARAM>(position),
                          reinterpret_cast<LPARAM>(cameo.fileName.c_str()));
    }
  }
}

// The third list is of use with three icons only.
void EnableThirdList(HWND dialog, bool enabled) {
  EnableWindow(GetDlgItem(dialog, IDC_SETTINGS_ICON3), enabled);
}

void ShowChoices(HWND dialog) {
  if (doc.iconCount == 2) EnableThirdList(dialog, false);
  for (int slot = 0; slot < 3; ++slot) {
    if (doc.iconChoice[slot] == -1) continue;
    // Selects nothing when the catalogue has become shorter than the position.
    SendDlgItemMessageA(dialog, IDC_SETTINGS_ICON1 + slot, CB_SETCURSEL,
                        static_cast<WPARAM>(doc.iconChoice[slot]), 0);
  }
  CheckRadioButton(dialog, IDC_SETTINGS_ALLIED, IDC_SETTINGS_YURI, IDC_SETTINGS_ALLIED + doc.side);
  CheckRadioButton(dialog, IDC_SETTINGS_TWO, IDC_SETTINGS_THREE,
                   doc.iconCount == 2 ? IDC_SETTINGS_TWO : IDC_SETTINGS_THREE);
  SetDlgItemTextA(dialog, IDC_SETTINGS_PATH, doc.screenshotPath);
}

INT_PTR OnInitDialog(HWND dialog) {
  if (!LoadCatalogue(dialog, "CameosList", LeadingSpaces::kSkip, cameos)) return TRUE;
  FillLists(dialog);
  ShowChoices(dialog);
  return TRUE;
}

void ChooseIconCount(HWND dialog, int32_t count) {
  SetIconCount(count);
  EnableThirdList(dialog, count == 3);
  RepaintView();
}

void ChooseSide(int32_t side) {
  SetSide(side);
  RepaintView();
}

void RefuseIcon(HWND dialog, int slot, const char* text, UINT icon) {
  doc.icons[slot].Free();
  MessageBoxA(dialog, text, "Corvanta", MB_OK | icon);
}

void ChooseIcon(HWND dialog, int slot) {
  const HWND list = GetDlgItem(dialog, IDC_SETTINGS_ICON1 + slot);
  const LRESULT position = SendMessageA(list, CB_GETCURSEL, 0, 0);
  if (position == CB_ERR) return;
  const LRESULT data = SendMessageA(list, CB_GETITEMDATA, static_cast<WPARAM>(position), 0);
  const char* const fileName = reinterpret_cast<const char*>(data);
  if (!fileName) return;
  ImageClass& icon = doc.icons[slot];
  icon.Free();
  if (!LoadImageFile(TemplatePath(doc.appDir, fileName).c_str(), icon)) {
    RefuseIcon(dialog, slot, "Error: Can't find file!", MB_ICONEXCLAMATION);
    return;
  }
  if (icon.width != kIconWidth || icon.height != kIconHeight) {
    RefuseIcon(dialog, slot, "Error: This file isn't valid icon file\nImage size must be 76x60",
               MB_ICONHAND);
    return;
  }
  doc.iconChoice[slot] = static_cast<int32_t>(position);
  RepaintView();
}

void OnBrowse(HWND dialog) {
  if (!ChooseScreenshot(dialog)) return;
  std::strcpy(doc.screenshotPath, doc.lastFilePath);
  SetDlgItemTextA(dialog, IDC_SETTINGS_PATH, doc.screenshotPath);
  RepaintView();
}

void OnCommand(HWND dialog, int id, UINT notification) {
  switch (id) {
    case IDC_SETTINGS_TWO:
    case IDC_SETTINGS_THREE:
      ChooseIconCount(dialog, id == IDC_SETTINGS_TWO ? 2 : 3);
      break;
    case IDC_SETTINGS_ALLIED:
    case IDC_SETTINGS_SOVIET:
    case IDC_SETTINGS_YURI:
      ChooseSide(id - IDC_SETTINGS_ALLIED);
      break;
    case IDC_SETTINGS_ICON1:
    case IDC_SETTINGS_ICON2:
    case IDC_SETTINGS_ICON3:
      if (notification == CBN_SELCHANGE) ChooseIcon(dialog, id - IDC_SETTINGS_ICON1);
      break;
    case IDC_SETTINGS_BROWSE:
      OnBrowse(dialog);
      break;
    case IDCANCEL:
      SendMessageA(dialog, WM_CLOSE, 0, 0);
      break;
  }
}

INT_PTR CALLBACK LoadScreenSettingsProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG:
      return OnInitDialog(dialog);
    case WM_COMMAND:
      OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
      break;
    case WM_CLOSE:
      EndDialog(dialog, 0);
      return TRUE;
    case WM_DESTROY:
      cameos.clear();
      break;
  }
  return FALSE;
}

}  // namespace

void OpenLoadScreenSettings() {
  RunDialog(IDD_LOAD_SCREEN_SETTINGS, doc.mainWindow, LoadScreenSettingsProc);
}
