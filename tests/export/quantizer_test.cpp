#include "export/quantizer.h"

#include <gtest/gtest.h>

#include <vector>

#include "benchmarks/plain_octree.h"
#include "imaging/dib_class.h"
#include "imaging/image_class.h"
#include "support/template_pictures.h"

namespace {

using Colours = std::vector<uint32_t>;

// The entries that the palette of a picture gets; the rest of the table must stay as it was.
Colours PaletteOf(const BitmapClass& picture, uint32_t colours, uint32_t depth = 8) {
  constexpr uint32_t kUntouched = 0xDEADBEEF;
  QuantizerClass quantizer(colours, depth);
  EXPECT_TRUE(quantizer.AddSurface(picture));
  Colours table(257, kUntouched);
  quantizer.FillPalette(table.data());
  const auto written = table.begin() + static_cast<ptrdiff_t>(quantizer.EntryCount());
  EXPECT_EQ(table.end() - written, std::count(written, table.end(), kUntouched));
  return Colours(table.begin(), written);
}

// Sixteen greys, the n-th with n pixels.
Colours WeightedGreys() {
  Colours pixels;
  for (uint32_t i = 0; i < 16; ++i) pixels.insert(pixels.end(), i + 1, i * 0x101010);
  return pixels;
}

const Colours kTenColours = {0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000, 0x000000,
                             0x000001, 0x010000, 0x808080, 0x00FFFF, 0x7F7F7F};
// The top bits of red, green and blue come first, then the next ones.
const Colours kTenInTreeOrder = {0x000000, 0x000001, 0x010000, 0x7F7F7F, 0x0000FF,
                                 0x00FF00, 0x00FFFF, 0xFF0000, 0x808080, 0xFFFFFF};

struct Row {
  const char* name;
  Colours pixels;
  uint32_t colours;
  Colours palette;
  uint32_t depth = 8;
};

const Row kRows[] = {
    {"OneColour", {0xFF123456, 0x00123456, 0x12123456}, 256, {0x123456}},
    {"TreeOrder", kTenColours, 256, kTenInTreeOrder},
    {"CombinedByPixels", WeightedGreys(), 4, {0x202020, 0x5B5B5B, 0x999999, 0xD9D9D9}},
    {"UnevenGroups", {0, 0x101010, 0x202020, 0x303030, 0x404040}, 3, {0, 0x181818, 0x383838}},
    {"Octants", {0xE0E0E0, 0xFFFFFF, 0, 0x101010, 0xC0}, 256, {0x080808, 0xC0, 0xEFEFEF}, 1},
};

// As one row and, since the order of the pixels counts, as the column of a bottom-up bitmap.
TEST(QuantizerTest, KnownPicturesGetKnownPalettes) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const auto count = static_cast<int32_t>(row.pixels.size());
    ImageClass picture;
    picture.CreateFromPixels(row.pixels.data(), count, 1);
    EXPECT_EQ(row.palette, PaletteOf(picture, row.colours, row.depth));
    DIBClass column;
    column.CreateFromPixels(row.pixels.data(), 1, count);
    EXPECT_EQ(row.palette, PaletteOf(column, row.colours, row.depth));
  }
}

// Noise, gradients and repeated colours, whose trees are merged again and again.
TEST(QuantizerTest, RandomPicturesGetThePlainTreesPalette) {
  uint32_t random = 7;
  const auto next = [&random] { return (random = random * 1664525 + 1013904223) >> 8; };
  for (uint32_t i = 0; i < 120; ++i) {
    const uint32_t bits = next();
    const uint32_t mask = i % 4 == 0 ? 0xFFFFFF : bits | next();
    const uint32_t colours = 1 + next() % 256, depth = 1 + next() % 9, few = 2 + next() % 400;
    const ImageClass picture = MakePicture(60, 40, [&](int32_t x, int32_t y) {
      const auto shade = static_cast<uint32_t>(x * 4) << 16 | static_cast<uint32_t>(y * 6);
      return (i % 3 == 0 ? shade : next() % few * 0x9E3779B1) & mask;
    });
    PlainOctree plain(colours, depth);
    plain.AddSurface(picture);
    Colours expected(256);
    plain.FillPalette(expected.data());
    expected.resize(plain.EntryCount());
    ASSERT_EQ(expected, PaletteOf(picture, colours, depth)) << "picture " << i;
  }
}

}  // namespace
