#include "export/palette_mapping.h"

void MapToPalette(const uint32_t* pixels, int32_t count, const ShpPalette& palette, int32_t n,
                  uint8_t* indices) {
  for (int32_t i = 0; i < count; ++i) {
    const uint32_t pixel = pixels[i];
    indices[i] = static_cast<uint8_t>(NearestColor(
        palette, static_cast<int32_t>(pixel >> 16 & 0xFF), static_cast<int32_t>(pixel >> 8 & 0xFF),
        static_cast<int32_t>(pixel & 0xFF), n));
  }
}
