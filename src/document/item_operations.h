#pragma once

#include <cstdint>

#include "imaging/image_class.h"

// What menu, keys, mouse and dialogs do with the document's items. The Edit menu's "Delete item"
// follows as each operation says.

// Appends an unselected item with a copy of the picture and enables "Delete item". Does not
// repaint.
void AddItem(const ImageClass& picture, int32_t x, int32_t y, uint32_t colour);

// Selects one item and no other, enables "Delete item" and repaints.
void SelectItem(int32_t index);

// Selects nothing, greys "Delete item" and repaints.
void UnselectItems();

// Selects the item after the selected one, the first after the last. Neither changes the menu nor
// repaints.
void SelectNextItem();

// Removes the selected item, after which none is selected, greys "Delete item" when it was the
// last, and repaints. A drag of any item ends. Nothing when none is selected.
void DeleteSelectedItem();

// The first item in list order that has the canvas point within its picture or on the column and
// row next to it at the right and bottom; -1 for none.
int32_t HitTest(int32_t px, int32_t py);

// Moves an item while it is dragged, inside the picture but for the last row: at most
// 799 - width and 518 - height. Nothing for an index outside the list.
void MoveItemTo(int32_t index, int32_t x, int32_t y);

// Position of an item, 0 for an index outside the list.
int32_t ItemX(int32_t index);
int32_t ItemY(int32_t index);
