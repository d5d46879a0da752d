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
Colours PaletteOf(const BitmapClass& picture, uint32_t colours, uint32_t depth) {
  constexpr uint32_t kUntouched = 0xDEADBEEF;
  QuantizerClass quantizer(colours, depth);
  EXPECT_TRUE(quantizer.AddSurface(picture));
  Colours table(257, kUntouched);
  quantizer.FillPalette(table.data());
  const auto written = table.begin() + static_cast<ptrdiff_t>(quantizer.EntryCount());
  EXPECT_EQ(table.end() - written, std::count(written, table.end(), kUntouched));
  return Colours(table.begin(), written);
}

// Noise, gradients and repeated colours, whose trees are merged again and again, in both kinds of
// surface, since the order of the pixels counts.
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
    DIBClass bottomUp(60, 40);
    bottomUp.Draw(picture, 0, 0);
    ASSERT_EQ(expected, PaletteOf(picture, colours, depth)) << "picture " << i;
    ASSERT_EQ(expected, PaletteOf(bottomUp, colours, depth)) << "picture " << i;
  }
}

}  // namespace
