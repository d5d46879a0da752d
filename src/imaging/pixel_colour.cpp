#include "imaging/pixel_colour.h"

#include <algorithm>

namespace {

// Builds a pixel from change(channel) of each of the three channels.
template <class Change>
uint32_t ForChannels(uint32_t colour, Change change) {
  return change(colour >> 16 & 0xFF) << 16 | change(colour >> 8 & 0xFF) << 8 |
         change(colour & 0xFF);
}

}  // namespace

void ReplaceColor(BitmapClass& surface, uint32_t from, uint32_t to) {
  if (!surface.valid) return;
  for (int32_t y = 0; y < surface.height; ++y) {
    uint32_t* row = surface.Row(y);
    std::replace(row, row + surface.width, from, to);
  }
}

uint32_t SwapRedBlue(uint32_t colour) {
  return (colour >> 16 & 0xFF) | (colour & 0x00FF00) | (colour & 0xFF) << 16;
}

uint32_t Lighten(uint32_t colour, uint32_t amount) {
  if (amount > 256) return colour;
  return ForChannels(colour, [amount](uint32_t v) { return v + (255 - v) * amount / 256; });
}

uint32_t Darken(uint32_t colour, uint32_t amount) {
  if (amount > 255) return colour;
  return ForChannels(colour, [amount](uint32_t v) { return v - v * amount / 256; });
}

uint32_t Greyscale(uint32_t colour) {
  const uint32_t grey =
      (76 * (colour >> 16 & 0xFF) + 151 * (colour >> 8 & 0xFF) + 28 * (colour & 0xFF)) >> 8;
  return grey * 0x010101;
}

uint32_t ScaleChannels(uint32_t colour, uint32_t red, uint32_t green, uint32_t blue) {
  return ((colour >> 16 & 0xFF) * red / 256) << 16 | ((colour >> 8 & 0xFF) * green / 256) << 8 |
         (colour & 0xFF) * blue / 256;
}

bool IsValid(const BitmapClass& surface) { return surface.valid != 0; }
