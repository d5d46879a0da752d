#include "imaging/pixel_colour.h"

#include <gtest/gtest.h>

#include "imaging/image_class.h"
#include "support/surface_text.h"

namespace {

TEST(PixelColourTest, SwapRedBlueClearsTheTopByte) {
  EXPECT_EQ(0x0C0B0AU, SwapRedBlue(0x0A0B0C));
  EXPECT_EQ(0x0C0B0AU, SwapRedBlue(0xFF0A0B0C));
}

TEST(PixelColourTest, ChannelsMoveTowardsWhiteBlackAndGrey) {
  const auto grey = [](uint32_t colour, uint32_t) { return Greyscale(colour); };
  const struct {
    uint32_t (*change)(uint32_t, uint32_t);
    uint32_t colour, amount, result;
  } cases[] = {
      {Lighten, 0x000000, 256, 0xFFFFFF},
      {Lighten, 0x808080, 128, 0xBFBFBF},
      {Lighten, 0x12345678, 0, 0x345678},
      {Lighten, 0x00FF80, 1, 0x00FF80},
      {Lighten, 0x010203, 255, 0xFEFEFE},
      {Lighten, 0x12345678, 257, 0x12345678},
      {Lighten, 0x12345678, 0xFFFFFFFF, 0x12345678},
      // Never black.
      {Darken, 0xFFFFFF, 255, 0x010101},
      {Darken, 0xFF0001, 255, 0x010001},
      {Darken, 0xFFFFFF, 128, 0x808080},
      {Darken, 0x808080, 128, 0x404040},
      {Darken, 0x010305, 128, 0x010203},
      {Darken, 0x12345678, 0, 0x345678},
      {Darken, 0x12345678, 256, 0x12345678},
      {grey, 0xFFFFFF, 0, 0xFEFEFE},
      {grey, 0xFF0000, 0, 0x4B4B4B},
      {grey, 0x00FF00, 0, 0x969696},
      {grey, 0x0000FF, 0, 0x1B1B1B},
      {grey, 0xFF010203, 0, 0x010101},
      {grey, 0x000000, 0, 0x000000},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(row.result, row.change(row.colour, row.amount))
        << "row " << &row - cases << ": " << std::hex << row.colour;
  }
}

TEST(PixelColourTest, ScaleChannelsMultipliesIn256ths) {
  EXPECT_EQ(0x7F3F00U, ScaleChannels(0xFFFF7F, 128, 64, 1));
  EXPECT_EQ(0xFEFEFEU, ScaleChannels(0xFFFFFFFF, 255, 255, 255));
  EXPECT_EQ(0x000000U, ScaleChannels(0xFFFFFF, 0, 0, 0));
}

TEST(PixelColourTest, ReplaceColorComparesAll32Bits) {
  ImageClass picture;
  Draw(picture, "ab.|aab", {{'.', 0}, {'a', 0xFFFF00}, {'b', 0x01FFFF00}});
  ReplaceColor(picture, 0xFFFF00, 2);
  EXPECT_EQ(Rows("2b.|22b"), Drawn(picture, {{'.', 0}, {'2', 2}, {'b', 0x01FFFF00}}));
}

TEST(PixelColourTest, EmptySurfaceStaysEmpty) {
  ImageClass empty;
  ReplaceColor(empty, 0, 1);
  EXPECT_FALSE(IsValid(empty));
  Draw(empty, "#");
  EXPECT_TRUE(IsValid(empty));
}

}  // namespace
