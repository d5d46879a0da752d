#pragma once

#include <cstdint>

// One entry of a palette on the full 8-bit scale.
struct ShpColour {
  uint8_t red = 0;
  uint8_t green = 0;
  uint8_t blue = 0;
};

inline constexpr int32_t kPaletteEntries = 256;

// The palette of an export, 768 bytes.
struct ShpPalette {
  ShpColour entries[kPaletteEntries];
};
static_assert(sizeof(ShpPalette) == 768);

// The palette of a table of colours 0x00RRGGBB.
ShpPalette PaletteOf(const uint32_t (&colours)[kPaletteEntries]);

// The first of the palette's first n entries that is nearest to a colour, by the squared channel
// differences weighted 30, 59 and 11 (the share of red, green and blue in brightness, in
// hundredths). n is at least 1; channels are 0 to 255.
int32_t NearestColor(const ShpPalette& palette, int32_t red, int32_t green, int32_t blue,
                     int32_t n);

// Writes for each of `count` pixels 0x00RRGGBB the index that NearestColor gives it.
void MapToPalette(const uint32_t* pixels, int32_t count, const ShpPalette& palette, int32_t n,
                  uint8_t* indices);
