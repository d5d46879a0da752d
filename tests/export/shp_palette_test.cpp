#include "export/shp_palette.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Row {
  const char* name;
  std::vector<uint32_t> entries;  // 0x00RRGGBB; black follows
  int32_t n;
  uint32_t pixel;
  int32_t nearest;
};

const Row kRows[] = {
    {"OwnColour", {0x000000, 0xFFFFFF, 0x0A141E}, 3, 0x0A141E, 2},
    {"FarthestButOne", {0xFFFFFF, 0xFFFFFE}, 2, 0x000000, 1},
    {"OnlyTheFirstEntries", {0x00FF00, 0xFF0000, 0x000000}, 2, 0x000000, 1},
    {"LastOfAllIsNearer", std::vector<uint32_t>(255, 0xFFFFFF), 256, 0x707070, 255},
    {"TieToTheLower", {0x000000, 0x0A0000}, 2, 0x050000, 0},
    {"BelowAndAbove", {0x646464, 0x6A6A6A}, 2, 0x686868, 1},
    // Weights 30, 59 and 11: 30 x 49 = 1470, 59 x 25 = 1475 and so on.
    {"RedWeighsLessThanGreen", {0x000500, 0x070000}, 2, 0x000000, 1},
    {"ButNotMuchLess", {0x490000, 0x003400}, 2, 0x000000, 1},
    {"BlueWeighsLessThanGreen", {0x001300, 0x00002C}, 2, 0x000000, 1},
    {"BlueWeighsEnough", {0x000007, 0x000300}, 2, 0x000000, 1},
};

ShpPalette PaletteWith(const std::vector<uint32_t>& colours) {
  uint32_t table[kPaletteEntries] = {};
  std::copy(colours.begin(), colours.end(), table);
  return PaletteOf(table);
}

TEST(ShpPaletteTest, NearestEntryIsTheFirstOfTheLeastWeightedDistance) {
  for (const Row& row : kRows) {
    const auto part = [&row](int shift) { return static_cast<int32_t>(row.pixel >> shift & 0xFF); };
    EXPECT_EQ(row.nearest,
              NearestColor(PaletteWith(row.entries), part(16), part(8), part(0), row.n))
        << row.name;
  }
}

TEST(ShpPaletteTest, EveryPixelIsMappedByItsLow24Bits) {
  const ShpPalette palette = PaletteWith({0x000000, 0xF80000, 0x00F800, 0x0000F8, 0x00F7F8});
  const uint32_t pixels[] = {0xFF000000, 0xFF0000, 0x00FF00, 0x0000FF, 0xAB00FF01, 0x00FFFF, 0};
  uint8_t indices[7] = {9, 9, 9, 9, 9, 9, 9};
  MapToPalette(pixels, 6, palette, 4, indices);
  EXPECT_EQ(std::vector<uint8_t>({0, 1, 2, 3, 2, 2, 9}),
            std::vector<uint8_t>(indices, indices + 7));
}

}  // namespace
