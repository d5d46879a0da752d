#include "imaging/crop_geometry.h"

#include <gtest/gtest.h>

#include "support/template_pictures.h"

namespace {

TEST(CropGeometryTest, ClickCentresTheRectangleInsideThePicture) {
  EXPECT_EQ(395, CropAroundMouse(256, 512, 1024, 234)) << "in the middle";
  EXPECT_EQ(140, CropAroundMouse(512, 1024, 512, 232)) << "on an enlarged preview";
  EXPECT_EQ(149, CropAroundMouse(200, 300, 400, 234)) << "fractions are dropped";
  EXPECT_EQ(0, CropAroundMouse(115, 300, 301, 233)) << "a fraction below 0";
  EXPECT_EQ(790, CropAroundMouse(511, 512, 1024, 234)) << "at the edge";
  EXPECT_EQ(16150, CropAroundMouse(65535, 1, 16384, 234)) << "the highest mouse position";
  EXPECT_EQ(0, CropAroundMouse(5, 0, 1024, 234)) << "without a preview";
  EXPECT_EQ(0, CropAroundMouse(5, 512, 0, 234)) << "without a picture";
  EXPECT_EQ(0, LimitCrop(-1, 300, 234));
  EXPECT_EQ(66, LimitCrop(INT64_MAX, 300, 234));
  EXPECT_EQ(0, LimitCrop(5, 100, 234)) << "a picture that is too small";
}

TEST(CropGeometryTest, DimsARectangleAndGivesItsPixelsBack) {
  ImageClass picture = PlainPicture(5, 4, 0xFF0403);
  picture.PutPixel(2, 1, 0x00FFFE);
  DimRegion(picture, 1, 1, 3, 2);
  EXPECT_EQ(0xFF0403U, picture.Row(1)[0]) << "beside the rectangle";
  EXPECT_EQ(0x800202U, picture.Row(1)[1] & 0xFFFFFF);
  EXPECT_EQ(0x00807FU, picture.Row(1)[2] & 0xFFFFFF);
  UndimRegion(picture, 1, 1, 2, 1);
  EXPECT_EQ(0xFF0403U, picture.Row(1)[1]);
  EXPECT_EQ(0x00FFFEU, picture.Row(1)[2]);
  EXPECT_EQ(0x800202U, picture.Row(2)[3] & 0xFFFFFF) << "still dimmed";
}

}  // namespace
