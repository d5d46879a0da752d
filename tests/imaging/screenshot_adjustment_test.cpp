#include "imaging/screenshot_adjustment.h"

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/template_pictures.h"

namespace {

struct AdjustCase {
  const char* name;
  ScreenshotAdjustment adjustment;  // red, green, blue, lightness, greyscale
  uint32_t before, after;
};

class AdjustColourTest : public testing::TestWithParam<AdjustCase> {};

TEST_P(AdjustColourTest, ChangesEveryPixel) {
  const AdjustCase& test = GetParam();
  EXPECT_EQ(test.after, AdjustColour(test.before, test.adjustment));
  ImageClass picture = PlainPicture(3, 2, test.before);
  AdjustColours(picture, test.adjustment);
  for (int32_t i = 0; i < 6; ++i) EXPECT_EQ(test.after, picture.ReadPixel(i % 3, i / 3)) << i;
}

INSTANTIATE_TEST_SUITE_P(
    Settings, AdjustColourTest,
    testing::Values(AdjustCase{"NeutralDropsOne", {}, 0x808080, 0x7F7F7F},
                    AdjustCase{"NeutralKeepsZero", {}, 0x000100, 0x000000},
                    AdjustCase{
                        "EachChannelItsFactor", {128, 64, 32, 255, false}, 0xFFFFFF, 0x7F3F1F},
                    AdjustCase{"WhiteOfColour", {0, 0, 0, 511, false}, 0x123456, 0xFFFFFF},
                    AdjustCase{"GreyIgnoresFactors", {0, 0, 0, 255, true}, 0x00FF00, 0x969696},
                    AdjustCase{"HalfLighter", {255, 255, 255, 383, false}, 0x000000, 0x7F7F7F},
                    AdjustCase{"HalfDarker", {255, 255, 255, 127, false}, 0xFFFFFF, 0x7F7F7F}),
    CaseName());

TEST(AdjustColourTest, EmptyPictureStaysEmpty) {
  ImageClass nothing;
  AdjustColours(nothing, {});
  EXPECT_EQ(0, nothing.valid);
}

}  // namespace
