#include "export/shp_palette.h"

namespace {

// The channels of a colour 0x00RRGGBB.
ShpColour Channels(uint32_t colour) {
  return {static_cast<uint8_t>(colour >> 16), static_cast<uint8_t>(colour >> 8),
          static_cast<uint8_t>(colour)};
}

}  // namespace

ShpPalette PaletteOf(const uint32_t (&colours)[kPaletteEntries]) {
  ShpPalette palette;
  for (int32_t i = 0; i < kPaletteEntries; ++i) palette.entries[i] = Channels(colours[i]);
  return palette;
}

int32_t NearestColor(const ShpPalette& palette, int32_t red, int32_t green, int32_t blue,
                     int32_t n) {
  int32_t bestDistance = 0x4B76300E;  // far above the largest distance, 6502500
  int32_t best = 0;
  for (int32_t i = 0; i < n; ++i) {
    const ShpColour& entry = palette.entries[i];
    const int32_t dr = entry.red - red, dg = entry.green - green, db = entry.blue - blue;
    const int32_t distance = 30 * dr * dr + 59 * dg * dg + 11 * db * db;
    if (distance < bestDistance) {
      bestDistance = distance;
      best = i;
    }
  }
  return best;
}

void MapToPalette(const uint32_t* pixels, int32_t count, const ShpPalette& palette, int32_t n,
                  uint8_t* indices) {
  for (int32_t i = 0; i < count; ++i) {
    const ShpColour pixel = Channels(pixels[i]);
    indices[i] = static_cast<uint8_t>(NearestColor(palette, pixel.red, pixel.green, pixel.blue, n));
  }
}
