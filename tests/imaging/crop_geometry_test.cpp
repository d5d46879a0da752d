#include "imaging/crop_geometry.h"

#include <gtest/gtest.h>

#include "support/template_pictures.h"

namespace {

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
