#include "imaging/screenshot_adjustment.h"

#include <gtest/gtest.h>

#include "imaging/pixel_colour.h"
#include "support/surface_text.h"
#include "support/template_pictures.h"

namespace {

TEST(ScreenshotAdjustmentTest, ChangesEveryPixel) {
  const struct {
    const char* name;
    ScreenshotAdjustment adjustment;  // red, green, blue, lightness, greyscale
    uint32_t before, after;
  } rows[] = {{"NeutralDropsOne", {}, 0xFF808080, 0x7F7F7F},
              {"NeutralKeepsZero", {}, 0x000100, 0x000000},
              {"EachChannelItsFactor", {128, 64, 32, 255, false}, 0xFF80FF, 0x7F201F},
              {"WhiteOfAnyColour", {0, 0, 0, 511, false}, 0x123456, 0xFFFFFF},
              {"GreyOfWhite", {0, 0, 0, 255, true}, 0xFFFFFF, 0xFEFEFE},
              {"GreyOfRed", {0, 0, 0, 255, true}, 0xFF0000, 0x4B4B4B},
              {"GreyOfGreen", {0, 0, 0, 255, true}, 0x00FF00, 0x969696},
              {"GreyOfBlue", {0, 0, 0, 255, true}, 0x0000FF, 0x1B1B1B},
              {"HalfLighter", {255, 255, 255, 383, false}, 0x000000, 0x7F7F7F},
              {"HalfDarker", {255, 255, 255, 127, false}, 0xFFFFFF, 0x7F7F7F},
              {"NearlyBlack", {255, 255, 255, 0, false}, 0xFF0201, 0x010100}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.after, AdjustColour(row.before, row.adjustment)) << row.name;
    ImageClass picture = PlainPicture(3, 2, row.before);
    AdjustColours(picture, row.adjustment);
    EXPECT_EQ(Rows("aaa|aaa"), Drawn(picture, {{'a', row.after}})) << row.name;
  }
  EXPECT_EQ(0x12345678U, Lighten(0x12345678, 257)) << "too much changes nothing";
  EXPECT_EQ(0x12345678U, Darken(0x12345678, 256));
}

}  // namespace
