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

// The entries of the open dialog's list; its item data point at their file names.
std::vector<CatalogueEntry> symbols;

INT_PTR OnInitDialog(HWND dialog) {
  if (!LoadCatalogue(dialog, "SymbolsList", LeadingSpaces::kKeep, symbols)) return FALSE;
  const HWND list = GetDlgItem(dialog, IDC_ADD_LIST);
  for (const CatalogueEntry& symbol : symbols) {
    // Inserted at a position, the text is not sorted: the list shows the last entry first.
    SendMessageA(list, LB_INSERTSTRING, 0, reinterpret_cast<LPARAM>(symbol.text.c_str()));
    SendMessageA(list, LB_SETITEMDATA, 0, reinterpret_cast<LPARAM>(symbol.fileName.c_str()));
  }
  AttachItemPreview(GetDlgItem(dialog, IDC_ADD_PREVIEW));
  CheckRadioButton(dialog, IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_ALLIED + doc.itemColour);
  SetFocus(list);
  return FALSE;
}

// File name of the selected entry, null for none.
const char* SelectedFile(HWND dialog) {
  const HWND list = GetDlgItem(dialog, IDC_ADD_LIST);
  const LRESULT line = SendMessageA(list, LB_GETCURSEL, 0, 0);
  if (line == LB_ERR) return nullptr;
  return reinterpret_cast<const char*>(
      SendMessageA(list, LB_GETITEMDATA, static_cast<WPARAM>(line), 0));
}

void UpdatePreview(HWND dialog) {
  if (const char* fileName = SelectedFile(dialog)) {
    ShowItemPreview(GetDlgItem(dialog, IDC_ADD_PREVIEW), TemplatePath("", fileName).c_str());
  }
}

void ChooseColour(HWND dialog, int32_t colour) {
  doc.itemColour = colour;
  UpdatePreview(dialog);
}

void AddSelectedItem(HWND dialog) {
  const char* fileName = SelectedFile(dialog);
  if (!fileName) return;
  ImageClass picture;
  if (!LoadImageFile(TemplatePath("", fileName).c_str(), picture)) {
    InvalidateRect(GetDlgItem(dialog, IDC_ADD_PREVIEW), nullptr, TRUE);
    return;
  }
  const uint32_t colour = SideColour(doc.itemColour);
  ReplaceColor(picture, kSideMarker, colour);
  AddItem(picture, kNewItemX, kNewItemY, colour);
  RepaintView();
}

void OnCommand(HWND dialog, int id, UINT notification) {
  switch (id) {
    case IDC_ADD_LIST:
      if (notification == LBN_SELCHANGE) UpdatePreview(dialog);
      break;
    case IDC_ADD_ALLIED:
    case IDC_ADD_SOVIET:
    case IDC_ADD_YURI:
      ChooseColour(dialog, id - IDC_ADD_ALLIED);
      break;
    case IDOK:
      AddSelectedItem(dialog);
      EndDialog(dialog, 0);
      break;
    case IDCANCEL:
      EndDialog(dialog, 0);
      break;
  }
}

INT_PTR CALLBACK AddItemProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
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
      symbols.clear();
      break;
  }
  return FALSE;
}

}  // namespace

void OpenAddItem() {
  RunDialog(IDD_ADD_ITEM, doc.mainWindow, AddItemProc);
  doc.itemPreview.Free();
}
