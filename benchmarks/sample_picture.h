#pragma once

#include <cstdint>

#include "imaging/bitmap_class.h"

// Fills a surface with a repeatable picture of smooth areas and noise, as a map with text has them.
inline void PaintSample(BitmapClass& surface) {
  uint32_t noise = 12345;
  for (int32_t y = 0; y < surface.height; ++y) {
    uint32_t* row = surface.Row(y);
    for (int32_t x = 0; x < surface.width; ++x) {
      noise = noise * 1664525 + 1013904223;
      const auto red = static_cast<uint32_t>(x * 255 / surface.width);
      const auto green = static_cast<uint32_t>(y * 255 / surface.height);
      const uint32_t blue = noise >> 28;
      row[x] = red << 16 | green << 8 | (blue + 64);
    }
  }
}
