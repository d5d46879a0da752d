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

class LoadScreenSettingsDialog final : public Dialog {
 private:
  INT_PTR OnInit() override;
  INT_PTR OnCommand(int id, UINT notification) override;
  void FillLists() const;
  void ShowChoices() const;
  void EnableThirdList(bool enabled) const { EnableWindow(Control(IDC_SETTINGS_ICON3), enabled); }
  void ChooseIconCount(int32_t count) const;
  void ChooseIcon(int slot) const;
  void RefuseIcon(int slot, const char* text, UINT icon) const;
  void OnBrowse() const;

  std::vector<CatalogueEntry> cameos;  // the lists' item data point at their file names
};

INT_PTR LoadScreenSettingsDialog::OnInit() {
  if (!LoadCatalogue(Window(), "CameosList", LeadingSpaces::kSkip, cameos)) return TRUE;
  FillLists();
  ShowChoices();
  return TRUE;
}

INT_PTR LoadScreenSettingsDialog::OnCommand(int id, UINT notification) {
  switch (id) {
    case IDC_SETTINGS_TWO:
    case IDC_SETTINGS_THREE:
      ChooseIconCount(id == IDC_SETTINGS_TWO ? 2 : 3);
      break;
    case IDC_SETTINGS_ALLIED:
    case IDC_SETTINGS_SOVIET:
    case IDC_SETTINGS_YURI:
      SetSide(id - IDC_SETTINGS_ALLIED);
      RepaintView();
      break;
    case IDC_SETTINGS_ICON1:
    case IDC_SETTINGS_ICON2:
    case IDC_SETTINGS_ICON3:
      if (notification == CBN_SELCHANGE) ChooseIcon(id - IDC_SETTINGS_ICON1);
      break;
    case IDC_SETTINGS_BROWSE:
      OnBrowse();
      break;
    case IDCANCEL:
      SendMessageA(Window(), WM_CLOSE, 0, 0);
      break;
  }
  return FALSE;
}

void LoadScreenSettingsDialog::FillLists() const {
  for (const CatalogueEntry& cameo : cameos) {
    for (int id = IDC_SETTINGS_ICON1; id <= IDC_SETTINGS_ICON3; ++id) {
      const LRESULT position =
          Send(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(cameo.text.c_str()));
      Send(id, CB_SETITEMDATA, static_cast<WPARAM>(position),
           reinterpret_cast<LPARAM>(cameo.fileName.c_str()));
    }
  }
}

void LoadScreenSettingsDialog::ShowChoices() const {
  // The third list is of use with three icons only.
  if (doc.iconCount == 2) EnableThirdList(false);
  for (int slot = 0; slot < 3; ++slot) {
    if (doc.iconChoice[slot] == -1) continue;
    // Selects nothing when the catalogue has become shorter than the position.
    Send(IDC_SETTINGS_ICON1 + slot, CB_SETCURSEL, static_cast<WPARAM>(doc.iconChoice[slot]));
  }
  CheckRadioButton(Window(), IDC_SETTINGS_ALLIED, IDC_SETTINGS_YURI,
                   IDC_SETTINGS_ALLIED + doc.side);
  CheckRadioButton(Window(), IDC_SETTINGS_TWO, IDC_SETTINGS_THREE,
                   doc.iconCount == 2 ? IDC_SETTINGS_TWO : IDC_SETTINGS_THREE);
  SetDlgItemTextA(Window(), IDC_SETTINGS_PATH, doc.screenshotPath);
}

void LoadScreenSettingsDialog::ChooseIconCount(int32_t count) const {
  SetIconCount(count);
  EnableThirdList(count == 3);
  RepaintView();
}

void LoadScreenSettingsDialog::ChooseIcon(int slot) const {
  const int list = IDC_SETTINGS_ICON1 + slot;
  const LRESULT position = Send(list, CB_GETCURSEL);
  if (position == CB_ERR) return;
  const LRESULT data = Send(list, CB_GETITEMDATA, static_cast<WPARAM>(position));
  const char* const fileName = reinterpret_cast<const char*>(data);
  if (!fileName) return;
  ImageClass& icon = doc.icons[slot];
  icon.Free();
  if (!TryLoadImageFile(TemplatePath(doc.appDir, fileName).c_str(), icon)) {
    RefuseIcon(slot, "Error: Can't find file!", MB_ICONEXCLAMATION);
    return;
  }
  if (icon.width != kIconWidth || icon.height != kIconHeight) {
    RefuseIcon(slot, "Error: This file isn't valid icon file\nImage size must be 76x60",
               MB_ICONHAND);
    return;
  }
  doc.iconChoice[slot] = static_cast<int32_t>(position);
  RepaintView();
}

void LoadScreenSettingsDialog::RefuseIcon(int slot, const char* text, UINT icon) const {
  doc.icons[slot].Free();
  MessageBoxA(Window(), text, "Corvanta", MB_OK | icon);
}

void LoadScreenSettingsDialog::OnBrowse() const {
  if (!ChooseScreenshot(Window())) return;
  std::strcpy(doc.screenshotPath, doc.lastFilePath);
  SetDlgItemTextA(Window(), IDC_SETTINGS_PATH, doc.screenshotPath);
  RepaintView();
}

}  // namespace

void OpenLoadScreenSettings() {
  LoadScreenSettingsDialog().Run(IDD_LOAD_SCREEN_SETTINGS, doc.mainWindow);
}
