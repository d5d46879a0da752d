#include "export/quantizer.h"

#include <gtest/gtest.h>

#include <vector>

#include "imaging/dib_class.h"
#include "imaging/image_class.h"

namespace {

using Colours = std::vector<uint32_t>;

constexpr uint32_t kUntouched = 0xDEADBEEF;

// One row of the pixels.
ImageClass Picture(const Colours& pixels) {
  ImageClass picture;
  picture.CreateFromPixels(pixels.data(), static_cast<int32_t>(pixels.size()), 1);
  return picture;
}

// The entries that the palette of a picture gets; the rest of the table must stay as it was.
Colours PaletteOf(const BitmapClass& picture, uint32_t colours, uint32_t depth = 8) {
  QuantizerClass quantizer(colours, depth);
  EXPECT_TRUE(quantizer.AddSurface(picture));
  std::vector<uint32_t> table(257, kUntouched);
  quantizer.FillPalette(table.data());
  const auto written = static_cast<ptrdiff_t>(quantizer.EntryCount());
  for (auto entry = table.begin() + written; entry != table.end(); ++entry) {
    EXPECT_EQ(kUntouched, *entry) << "entry " << entry - table.begin();
  }
  return Colours(table.begin(), table.begin() + written);
}

// 300 colours, each its own leaf.
Colours ManyColours() {
  Colours colours;
  for (uint32_t i = 0; i < 300; ++i) colours.push_back((i * 0x01D3) << 8 | (i * 0x1F & 0xFF));
  return colours;
}

TEST(QuantizerTest, OneColourIsOneEntry) {
  EXPECT_EQ(Colours({0x123456}), PaletteOf(Picture(Colours(1000, 0xFF123456)), 256));
}

TEST(QuantizerTest, EmptySurfaceGivesNoEntry) {
  EXPECT_EQ(Colours(), PaletteOf(ImageClass(), 256));
  EXPECT_EQ(Colours(), PaletteOf(ImageClass(), 4));
}

TEST(QuantizerTest, FewColoursAreKeptInTreeOrder) {
  const Colours pixels = {0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000, 0x000000,
                          0x000001, 0x010000, 0x808080, 0x00FFFF, 0x7F7F7F};
  // The top bits of red, green and blue come first, then the next ones.
  const Colours sorted = {0x000000, 0x000001, 0x010000, 0x7F7F7F, 0x0000FF,
                          0x00FF00, 0x00FFFF, 0xFF0000, 0x808080, 0xFFFFFF};
  EXPECT_EQ(sorted, PaletteOf(Picture(pixels), 20));
  EXPECT_EQ(sorted, PaletteOf(Picture(pixels), 256));
  EXPECT_EQ(sorted, PaletteOf(Picture(pixels), 10)) << "fewer than 16, but enough";
}

TEST(QuantizerTest, ThreeColoursOfFiveAreCopied) {
  EXPECT_EQ(Colours({0x101010, 0x202020, 0x303030}),
            PaletteOf(Picture({0x303030, 0x101010, 0x202020}), 5));
}

TEST(QuantizerTest, TopByteSharesTheLeaf) {
  EXPECT_EQ(Colours({0xFF0000}), PaletteOf(Picture({0x00FF0000, 0x12FF0000}), 256));
}

TEST(QuantizerTest, SmallPaletteCombinesConsecutiveLeavesByTheirPixels) {
  // Sixteen greys, the n-th with n pixels.
  Colours pixels;
  for (uint32_t i = 0; i < 16; ++i) pixels.insert(pixels.end(), i + 1, i * 0x101010);
  EXPECT_EQ(Colours({0x202020, 0x5B5B5B, 0x999999, 0xD9D9D9}), PaletteOf(Picture(pixels), 4));
  EXPECT_EQ(Colours({0xA0A0A0}), PaletteOf(Picture(pixels), 1));
}

TEST(QuantizerTest, UnevenGroupsAreCutByTheirShare) {
  // 3 of 5 leaves: 0-0, 1-2, 3-4.
  EXPECT_EQ(Colours({0x000000, 0x181818, 0x383838}),
            PaletteOf(Picture({0x000000, 0x101010, 0x202020, 0x303030, 0x404040}), 3));
}

TEST(QuantizerTest, NewestDeepestBranchIsMergedFirst) {
  // Eight pairs that differ in their last bit fill the tree; the next colour is one too many. Its
  // own branch is the newest, which gains nothing, and then the last pair becomes one colour.
  Colours pixels;
  for (uint32_t grey = 0; grey < 0x100; grey += 0x20) {
    pixels.push_back(grey * 0x010101);
    pixels.push_back((grey + 1) * 0x010101);
  }
  pixels.push_back(0x101010);
  Colours expected = pixels;
  expected.erase(expected.begin() + 15);  // 0xE1E1E1 is in 0xE0E0E0, the average rounded down
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(expected, PaletteOf(Picture(pixels), 16));

  // What comes later goes into the merged colour, never below it.
  pixels.insert(pixels.end(), 3, 0xE1E1E1);
  EXPECT_EQ(expected, PaletteOf(Picture(pixels), 16));
}

TEST(QuantizerTest, MoreColoursThanEntriesEndNearTheLimit) {
  for (const uint32_t colours : {16U, 17U, 100U, 255U, 256U}) {
    const Colours palette = PaletteOf(Picture(ManyColours()), colours);
    EXPECT_LE(palette.size(), colours);
    EXPECT_GE(palette.size(), colours - 6);
  }
  // The tree itself keeps at least 10 of 16 leaves, from which smaller palettes are combined.
  for (uint32_t colours = 1; colours <= 10; ++colours) {
    EXPECT_EQ(colours, PaletteOf(Picture(ManyColours()), colours).size());
  }
}

TEST(QuantizerTest, DepthIsCutToEight) {
  EXPECT_EQ(PaletteOf(Picture(ManyColours()), 256), PaletteOf(Picture(ManyColours()), 256, 12));
}

TEST(QuantizerTest, DepthOneAveragesTheOctants) {
  EXPECT_EQ(
      Colours({0x080808, 0x0000C0, 0xF0F0F0}),
      PaletteOf(Picture({0xE0E0E0, 0xFFFFFF, 0x000000, 0x101010, 0x0000C0, 0xF1F1F1}), 256, 1));
}

TEST(QuantizerTest, RowsAreReadFromTheTopOfBothKinds) {
  const Colours pixels = ManyColours();
  ImageClass image;
  image.CreateFromPixels(pixels.data(), 20, 15);
  DIBClass dib;
  dib.CreateFromPixels(pixels.data(), 20, 15);
  EXPECT_EQ(PaletteOf(Picture(pixels), 32), PaletteOf(image, 32));
  EXPECT_EQ(PaletteOf(Picture(pixels), 32), PaletteOf(dib, 32));
}

TEST(QuantizerTest, WhitePictureDoesNotOverflow) {
  ImageClass white;
  white.Create(800, 520);
  white.Fill(0xFFFFFF);
  EXPECT_EQ(Colours({0xFFFFFF}), PaletteOf(white, 256));
  EXPECT_EQ(Colours({0xFFFFFF}), PaletteOf(white, 1));
  // Two leaves of 208000 pixels each, combined into one.
  for (int32_t y = 0; y < 260; ++y) std::fill_n(white.Row(y), 800, 0xFEFEFEU);
  EXPECT_EQ(Colours({0xFEFEFE}), PaletteOf(white, 1));
}

}  // namespace
