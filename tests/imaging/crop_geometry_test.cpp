#include "imaging/crop_geometry.h"

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/surface_text.h"
#include "support/template_pictures.h"

namespace {

struct MouseCase {
  const char* name;
  int32_t mouse, preview, picture, crop;
  int32_t position;
};

class CropAroundMouseTest : public testing::TestWithParam<MouseCase> {};

TEST_P(CropAroundMouseTest, CentresTheRectangle) {
  const MouseCase& test = GetParam();
  EXPECT_EQ(test.position, CropAroundMouse(test.mouse, test.preview, test.picture, test.crop));
}

INSTANTIATE_TEST_SUITE_P(Clicks, CropAroundMouseTest,
                         testing::Values(MouseCase{"Middle", 256, 512, 1024, 234, 395},
                                         MouseCase{"Enlarged", 512, 1024, 512, 232, 140},
                                         MouseCase{"FractionDropped", 200, 300, 400, 234, 149},
                                         MouseCase{"FractionBelowZero", 115, 300, 301, 233, 0},
                                         MouseCase{"LeftEdge", 0, 512, 1024, 234, 0},
                                         MouseCase{"RightEdge", 511, 512, 1024, 234, 790},
                                         MouseCase{"JustAsLarge", 100, 400, 234, 234, 0},
                                         MouseCase{"HighestMouse", 65535, 1, 16384, 234, 16150},
                                         MouseCase{"NoPreview", 5, 0, 1024, 234, 0},
                                         MouseCase{"NoPicture", 5, 512, 0, 234, 0}),
                         CaseName());

TEST(CropGeometryTest, PositionsStayInsideThePicture) {
  EXPECT_EQ(0, LimitCrop(-1, 300, 234));
  EXPECT_EQ(66, LimitCrop(66, 300, 234));
  EXPECT_EQ(66, LimitCrop(67, 300, 234));
  EXPECT_EQ(66, LimitCrop(INT64_MAX, 300, 234));
  EXPECT_EQ(0, LimitCrop(5, 100, 234));
}

TEST(CropGeometryTest, DimsARectangle) {
  ImageClass picture = PlainPicture(5, 4, 0x808080);
  DimRegion(picture, 1, 1, 3, 2);
  EXPECT_EQ(Rows("#####|#...#|#...#|#####"), Drawn(picture, {{'#', 0x808080}, {'.', 0x404040}}));
}

}  // namespace
