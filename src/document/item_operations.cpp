#include "document/item_operations.h"

#include <algorithm>

#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "resources/resource.h"

namespace {

void EnableDeleteItem(bool enabled) { EnableCommand(kEditPopup, IDM_DELETE_ITEM, enabled); }

void ClearMarks() {
  for (ItemClass& item : doc.items.elements) item.selected = 0;
}

}  // namespace

void AddItem(const ImageClass& picture, int32_t x, int32_t y, uint32_t colour) {
  ItemClass item;
  item.x = x;
  item.y = y;
  item.image = picture;
  item.colour = colour;
  doc.items.Add(item);
  EnableDeleteItem(true);
}

void SelectItem(int32_t index) {
  ClearMarks();
  doc.items.At(index).selected = 1;
  EnableDeleteItem(true);
  doc.selectedItem = index;
  RepaintView();
}

void UnselectItems() {
  ClearMarks();
  EnableDeleteItem(false);
  doc.selectedItem = -1;
  RepaintView();
}

void SelectNextItem() {
  std::vector<ItemClass>& items = doc.items.elements;
  const auto marked = std::find_if(items.begin(), items.end(),
                                   [](const ItemClass& item) { return item.selected == 1; });
  int32_t next = 0;
  if (marked != items.end()) {
    marked->selected = 0;
    next = static_cast<int32_t>(marked - items.begin()) + 1;
    if (next == doc.items.Count()) next = 0;
  }
  doc.items.At(next).selected = 1;
  doc.selectedItem = next;
}

void DeleteSelectedItem() {
  if (doc.selectedItem == -1) return;
  doc.items.Remove(doc.selectedItem);
  if (doc.items.Count() == 0) EnableDeleteItem(false);
  doc.selectedItem = -1;
  // The items behind the removed one have moved up: a drag that went on would move another item.
  doc.draggedItem = -1;
  RepaintView();
}

int32_t HitTest(int32_t px, int32_t py) {
  for (int32_t i = 0; i < doc.items.Count(); ++i) {
    const ItemClass& item = doc.items.At(i);
    if (px >= item.x && px <= item.x + item.image.width && py >= item.y &&
        py <= item.y + item.image.height) {
      return i;
    }
  }
  return -1;
}

void MoveItemTo(int32_t index, int32_t x, int32_t y) {
  if (!doc.items.Contains(index)) return;
  ItemClass& item = doc.items.At(index);
  item.x = std::max(x, 0);
  item.y = std::max(y, 0);
  if (item.x >= kPictureWidth - item.image.width) item.x = kPictureWidth - 1 - item.image.width;
  if (item.y >= kPictureHeight - item.image.height) {
    item.y = kPictureHeight - 2 - item.image.height;
  }
}

int32_t ItemX(int32_t index) { return doc.items.Contains(index) ? doc.items.At(index).x : 0; }

int32_t ItemY(int32_t index) { return doc.items.Contains(index) ? doc.items.At(index).y : 0; }
