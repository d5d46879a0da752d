#include "export/shp_palette.h"

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
