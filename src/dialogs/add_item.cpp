#include "dialogs/add_item.h"

#include <string>
#include <vector>

#include "controls/item_preview.h"
#include "dialogs/dialog.h"
#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "files/template_path.h"
#include "imaging/image_files.h"
#include "imaging/pixel_colour.h"
#include "resources/resource.h"

namespace {

constexpr int32_t kNewItemX = 100;
constexpr int32_t kNewItemY = 100;

class AddItemDialog final : public Dialog {
 private:
  INT_PTR OnInit() override;
  INT_PTR OnCommand(int id, UINT notification) override;
  const char* SelectedFile() const;
  void UpdatePreview() const;
  void AddSelectedItem() const;

  std::vector<CatalogueEntry> symbols;  // the list's item data point at their file names
  ItemPreview preview;
};

INT_PTR AddItemDialog::OnInit() {
  if (!LoadCatalogue(Window(), "SymbolsList", LeadingSpaces::kKeep, symbols)) return FALSE;
  for (const CatalogueEntry& symbol : symbols) {
    // Inserted at a position, the text is not sorted: the list shows the last entry first.
    Send(IDC_ADD_LIST, LB_INSERTSTRING, 0, reinterpret_cast<LPARAM>(symbol.text.c_str()));
    Send(IDC_ADD_LIST, LB_SETITEMDATA, 0, reinterpret_cast<LPARAM>(symbol.fileName.c_str()));
  }
  preview.Attach(Control(IDC_ADD_PREVIEW));
  CheckRadioButton(Window(), IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_ALLIED + doc.itemColour);
  SetFocus(Control(IDC_ADD_LIST));
  return FALSE;
}

INT_PTR AddItemDialog::OnCommand(int id, UINT notification) {
  switch (id) {
    case IDC_ADD_LIST:
      if (notification == LBN_SELCHANGE) UpdatePreview();
      break;
    case IDC_ADD_ALLIED:
    case IDC_ADD_SOVIET:
    case IDC_ADD_YURI:
      doc.itemColour = id - IDC_ADD_ALLIED;
      UpdatePreview();
      break;
    case IDOK:
      AddSelectedItem();
      End(0);
      break;
    case IDCANCEL:
      End(0);
      break;
  }
  return FALSE;
}

// File name of the selected entry, null for none.
const char* AddItemDialog::SelectedFile() const {
  const LRESULT line = Send(IDC_ADD_LIST, LB_GETCURSEL);
  if (line == LB_ERR) return nullptr;
  return reinterpret_cast<const char*>(
      Send(IDC_ADD_LIST, LB_GETITEMDATA, static_cast<WPARAM>(line)));
}

void AddItemDialog::UpdatePreview() const {
  if (const char* fileName = SelectedFile()) preview.Show(TemplatePath("", fileName).c_str());
}

void AddItemDialog::AddSelectedItem() const {
  const char* fileName = SelectedFile();
  if (!fileName) return;
  ImageClass picture;
  if (!TryLoadImageFile(TemplatePath("", fileName).c_str(), picture)) {
    InvalidateRect(Control(IDC_ADD_PREVIEW), nullptr, TRUE);
    return;
  }
  const uint32_t colour = SideColour(doc.itemColour);
  ReplaceColor(picture, kSideMarker, colour);
  AddItem(picture, kNewItemX, kNewItemY, colour);
  RepaintView();
}

}  // namespace

void OpenAddItem() {
  AddItemDialog().Run(IDD_ADD_ITEM, doc.mainWindow);
  doc.itemPreview.Free();
}
