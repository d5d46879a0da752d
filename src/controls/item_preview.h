#pragma once

#include <cstdint>

#include "controls/control.h"

// The side colour 0xRRGGBB of an item colour choice, 0 to 2.
uint32_t SideColour(int32_t itemColour);

// The preview of "Add new item": doc.itemPreview, tinted, in the middle of a static control.
class ItemPreview {
 public:
  // The preview must live as long as the control.
  void Attach(HWND control);

  // Loads the picture into doc.itemPreview, tints it in the side colour of doc.itemColour and shows
  // it. A picture that can't be read leaves doc.itemPreview, and the control, empty.
  void Show(const char* path) const;

 private:
  LRESULT OnPaint() const;

  ControlHook hook;
};
