#include "export/shp_palette.h"

#include <gtest/gtest.h>

namespace {

ShpPalette PaletteOf(std::initializer_list<ShpColour> colours) {
  ShpPalette palette;
  std::copy(colours.begin(), colours.end(), palette.entries);
  return palette;
}

struct Nearest {
  const char* name;
  ShpPalette palette;
  ShpColour colour;
  int32_t n, index;
};

const Nearest kNearest[] = {
    {"TieKeepsTheLowerIndex", PaletteOf({{0, 0, 0}, {10, 0, 0}}), {5, 0, 0}, 2, 0},
    {"NearerSecond", PaletteOf({{0, 0, 0}, {10, 0, 0}}), {6, 0, 0}, 2, 1},
    {"GreenWeighsTwiceRed", PaletteOf({{0, 0, 0}, {0, 10, 0}}), {7, 0, 0}, 2, 0},
    {"BlueWeighsLeast", PaletteOf({{5, 0, 0}, {0, 0, 8}}), {0, 0, 0}, 2, 1},
    {"RedOverBlue", PaletteOf({{0, 0, 9}, {5, 0, 0}}), {0, 0, 0}, 2, 1},
    {"GreenOverRed", PaletteOf({{0, 5, 0}, {7, 0, 0}}), {0, 0, 0}, 2, 1},
    {"FarthestOfAll", PaletteOf({{0, 0, 0}}), {255, 255, 255}, 1, 0},
    {"OnlyTheFirstEntriesCount",
     PaletteOf({{0, 0, 0}, {9, 9, 9}, {200, 200, 200}}),
     {200, 200, 200},
     2,
     1},
    {"EqualEntriesGiveTheFirst", PaletteOf({{1, 2, 3}, {7, 7, 7}, {7, 7, 7}}), {7, 7, 7}, 3, 1},
};

TEST(NearestColorTest, FindsTheFirstNearestEntry) {
  for (const Nearest& test : kNearest) {
    EXPECT_EQ(test.index, NearestColor(test.palette, test.colour.red, test.colour.green,
                                       test.colour.blue, test.n))
        << test.name;
  }
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
