#pragma once

#include <cstdint>
#include <vector>

#include "imaging/image_class.h"

// A symbol that the user placed on the top layer. Copying it copies the picture.
struct ItemClass {
  int32_t x = 0;  // canvas position of the picture's top-left pixel
  int32_t y = 0;
  ImageClass image;       // pixels of the key colour are transparent
  uint32_t colour = 0;    // side colour 0xRRGGBB that was put into the picture
  uint32_t selected = 0;  // 1 for the selected item
};

// The placed items in the order of adding, which is the order of drawing, of the hit test and of
// the list in the Select item dialog.
class ItemListClass {
 public:
  std::vector<ItemClass> elements;
  ItemClass dummy;  // stands in for any item outside the list; never drawn

  int32_t Count() const { return static_cast<int32_t>(elements.size()); }
  // Whether an item has this index.
  bool Contains(int32_t index) const { return index >= 0 && index < Count(); }
  // The item at the index, or `dummy` when there is none: a stale index reaches no foreign memory.
  ItemClass& At(int32_t index) {
    return Contains(index) ? elements[static_cast<size_t>(index)] : dummy;
  }
  const ItemClass& At(int32_t index) const {
    return Contains(index) ? elements[static_cast<size_t>(index)] : dummy;
  }
  void Add(const ItemClass& item) { elements.push_back(item); }
  // Closes the gap. Nothing for an index outside the list.
  void Remove(int32_t index) {
    if (Contains(index)) elements.erase(elements.begin() + index);
  }
};
