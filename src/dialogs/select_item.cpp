#include "dialogs/select_item.h"

#include <cstdio>

#include "dialogs/dialog.h"
#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "resources/resource.h"

namespace {

void AddLine(HWND list, int32_t index) {
  char text[64];
  std::snprintf(text, sizeof text, "%02d : x = %03d y = %03d", index, ItemX(index), ItemY(index));
  const LRESULT line = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(line), index);
}

// The list is sorted by text: from the 101st item on lines and items differ in order.
void SelectLineOf(HWND list, int32_t index) {
  const LRESULT count = SendMessageA(list, LB_GETCOUNT, 0, 0);
  for (LRESULT line = 0; line < count; ++line) {
    const WPARAM position = static_cast<WPARAM>(line);
    if (SendMessageA(list, LB_GETITEMDATA, position, 0) != index) continue;
    SendMessageA(list, LB_SETCURSEL, position, 0);
    return;
  }
}

void OnLineSelected(HWND list) {
  const LRESULT line = SendMessageA(list, LB_GETCURSEL, 0, 0);
  if (line == LB_ERR) return;
  const LRESULT index = SendMessageA(list, LB_GETITEMDATA, static_cast<WPARAM>(line), 0);
  if (doc.items.Contains(static_cast<int32_t>(index))) SelectItem(static_cast<int32_t>(index));
}

class SelectItemDialog final : public Dialog {
 private:
  INT_PTR OnInit() override {
    const HWND list = Control(IDC_SELECT_LIST);
    for (int32_t i = 0; i < doc.items.Count(); ++i) AddLine(list, i);
    if (doc.selectedItem != -1) SelectLineOf(list, doc.selectedItem);
    SetFocus(list);
    return FALSE;
  }

  INT_PTR OnCommand(int id, UINT notification) override {
    if (id == IDC_SELECT_LIST && notification == LBN_SELCHANGE) OnLineSelected(Control(id));
    if (id == IDCANCEL) End(0);
    return FALSE;
  }
};

}  // namespace

void OpenSelectItem() { SelectItemDialog().Run(IDD_SELECT_ITEM, doc.mainWindow); }
