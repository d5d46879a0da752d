#include "imaging/pixel_colour.h"

#include <gtest/gtest.h>

#include "imaging/image_class.h"
#include "support/surface_text.h"

namespace {

TEST(PixelColourTest, SwapRedBlueClearsTheTopByte) {
  EXPECT_EQ(0x0C0B0AU, SwapRedBlue(0x0A0B0C));
  EXPECT_EQ(0x0C0B0AU, SwapRedBlue(0xFF0A0B0C));
}

struct Change {
  uint32_t colour, amount, result;
};

TEST(PixelColourTest, LightenMovesChannelsTowardsWhite) {
  for (const Change& change : {Change{0x000000, 256, 0xFFFFFF}, Change{0x808080, 128, 0xBFBFBF},
                               Change{0x12345678, 0, 0x345678}, Change{0x00FF80, 1, 0x00FF80},
                               Change{0x010203, 255, 0xFEFEFE}, Change{0x12345678, 257, 0x12345678},
                               Change{0x12345678, 0xFFFFFFFF, 0x12345678}}) {
    EXPECT_EQ(change.result, Lighten(change.colour, change.amount))
        << std::hex << change.colour << " by " << change.amount;
  }
}

TEST(PixelColourTest, DarkenNeverReachesBlack) {
  for (const Change& change : {Change{0xFFFFFF, 255, 0x010101}, Change{0xFF0001, 255, 0x010001},
                               Change{0xFFFFFF, 128, 0x808080}, Change{0x808080, 128, 0x404040},
                               Change{0x010305, 128, 0x010203}, Change{0x12345678, 0, 0x345678},
                               Change{0x12345678, 256, 0x12345678}}) {
    EXPECT_EQ(change.result, Darken(change.colour, change.amount))
        << std::hex << change.colour << " by " << change.amount;
  }
}

TEST(PixelColourTest, GreyscaleWeighsTheChannels) {
  for (const auto& [colour, grey] :
       {std::pair{0xFFFFFFU, 0xFEFEFEU}, std::pair{0xFF0000U, 0x4B4B4BU},
        std::pair{0x00FF00U, 0x969696U}, std::pair{0x0000FFU, 0x1B1B1BU},
        std::pair{0xFF010203U, 0x010101U}, std::pair{0x000000U, 0x000000U}}) {
    EXPECT_EQ(grey, Greyscale(colour)) << std::hex << colour;
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
