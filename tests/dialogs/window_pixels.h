#pragma once

#include "imaging/memory_dc.h"
#include "imaging/pixel_colour.h"

// What a window shows at a client position, as a pixel 0xRRGGBB, after painting what is due.
inline uint32_t WindowPixel(HWND window, int x, int y) {
  UpdateWindow(window);
  const WindowDc dc(window);
  return SwapRedBlue(GetPixel(dc.get(), x, y));
}

// The dialogs' background, as a pixel.
inline uint32_t FaceColour() { return SwapRedBlue(GetSysColor(COLOR_3DFACE)); }
