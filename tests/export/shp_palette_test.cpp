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

int32_t Nearest(const ShpPalette& palette, uint32_t pixel, int32_t n) {
  const auto part = [pixel](int shift) { return static_cast<int32_t>(pixel >> shift & 0xFF); };
  return NearestColor(palette, part(16), part(8), part(0), n);
}

TEST(ShpPaletteTest, NearestEntryIsTheFirstOfTheLeastWeightedDistance) {
  for (const Row& row : kRows) {
    EXPECT_EQ(row.nearest, Nearest(PaletteWith(row.entries), row.pixel, row.n)) << row.name;
  }
}

// Random entries and pixels, with extremes, duplicates and entries' own colours among them.
TEST(ShpPaletteTest, EveryPixelIsMappedToItsNearestEntry) {
  uint32_t random = 1;
  const auto next = [&random] { return (random = random * 1664525 + 1013904223) >> 8; };
  for (int32_t n = 1; n <= kPaletteEntries; n = n * 3 / 2 + 1) {
    std::vector<uint32_t> entries(kPaletteEntries), pixels = {0, 0xFFFFFF, 0xFF0000, 0x00FFFF};
    for (uint32_t& entry : entries) entry = next() % 5 ? next() : entries[next() % 256];
    for (int32_t i = 0; i < 900; ++i) pixels.push_back(i % 4 ? next() : entries[next() % 256]);
    pixels.push_back(0xAB000000 | entries[0]);  // the top byte plays no part
    std::vector<uint8_t> indices(pixels.size() + 1, 0xEE);
    const ShpPalette palette = PaletteWith(entries);
    PaletteMapper(palette, n)
        .Map(pixels.data(), static_cast<int32_t>(pixels.size()), indices.data());
    for (size_t i = 0; i < pixels.size(); ++i) {
      ASSERT_EQ(Nearest(palette, pixels[i], n), indices[i]) << "pixel " << i << " of " << n;
    }
    EXPECT_EQ(0xEE, indices.back());
  }
}

}  // namespace
