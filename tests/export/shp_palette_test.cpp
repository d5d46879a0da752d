#include "export/shp_palette.h"

#include <gtest/gtest.h>

namespace {

ShpPalette PaletteOf(std::initializer_list<ShpColour> colours) {
  ShpPalette palette;
  std::copy(colours.begin(), colours.end(), palette.entries);
  return palette;
}

TEST(NearestColorTest, TieGoesToTheLowerEntry) {
  EXPECT_EQ(0, NearestColor(PaletteOf({{0, 0, 0}, {10, 0, 0}}), 5, 0, 0, 2));
  EXPECT_EQ(1, NearestColor(PaletteOf({{1, 2, 3}, {7, 7, 7}, {7, 7, 7}}), 7, 7, 7, 3));
}

// The distances as sums of differences, told once more.
int32_t SlowNearest(const ShpPalette& palette, uint32_t pixel, int32_t n) {
  int64_t best = INT64_MAX;
  int32_t index = 0;
  for (int32_t i = 0; i < n; ++i) {
    const int64_t red = palette.entries[i].red - static_cast<int64_t>(pixel >> 16 & 0xFF);
    const int64_t green = palette.entries[i].green - static_cast<int64_t>(pixel >> 8 & 0xFF);
    const int64_t blue = palette.entries[i].blue - static_cast<int64_t>(pixel & 0xFF);
    const int64_t distance = red * red * 30 + green * green * 59 + blue * blue * 11;
    if (distance < best) best = distance, index = i;
  }
  return index;
}

TEST(PaletteMappingTest, EveryPixelGetsItsNearestEntry) {
  uint32_t random = 1;
  const auto next = [&random] { return random = random * 1664525 + 1013904223; };
  for (const int32_t n : {1, 2, 3, 15, 16, 17, 100, 255, 256}) {
    ShpPalette palette;
    for (ShpColour& entry : palette.entries) {
      const uint32_t colour = next();
      entry = {static_cast<uint8_t>(colour >> 24), static_cast<uint8_t>(colour >> 16),
               static_cast<uint8_t>(colour >> 8)};
    }
    // Extremes, an entry's own colour and a top byte, which plays no part.
    std::vector<uint32_t> pixels = {0, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xAB123456};
    while (pixels.size() < 803) pixels.push_back(next());
    std::vector<uint8_t> indices(pixels.size() + 1, 0xEE);
    MapToPalette(pixels.data(), static_cast<int32_t>(pixels.size()), palette, n, indices.data());
    for (size_t i = 0; i < pixels.size(); ++i) {
      ASSERT_EQ(SlowNearest(palette, pixels[i], n), indices[i]) << "pixel " << i << " of " << n;
    }
    EXPECT_EQ(0xEE, indices.back());
  }
}

}  // namespace
