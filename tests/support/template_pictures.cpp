#include "support/template_pictures.h"

#include <gtest/gtest.h>

#include "imagelib/imagelib.h"
#include "imaging/image_files.h"

namespace {

constexpr const char* kPrefixes[] = {"all", "sov", "psy"};

// Parts of a position in one pixel, below a mark of the picture.
uint32_t At(uint32_t mark, uint32_t bits, int32_t x, int32_t y) {
  return mark | static_cast<uint32_t>(y) << bits | static_cast<uint32_t>(x);
}

template <class Pixel>
void Write(const std::string& path, PictureSize size, Pixel pixel) {
  EXPECT_TRUE(SaveImageFile(path.c_str(), MakePicture(size.width, size.height, pixel))) << path;
}

}  // namespace

uint32_t WorldMapPixel(int32_t side, int32_t x, int32_t y) {
  return At(static_cast<uint32_t>(side + 1) << 20, 10, x, y);
}

uint32_t ZoomedMapPixel(int32_t x, int32_t y) { return At(4U << 20, 10, x, y); }

uint32_t FramePixel(int32_t x, int32_t y) { return At(0x900000, 9, x, y); }

uint32_t TargetBoxPixel(int32_t x, int32_t y) {
  return (x + y) % 4 == 0 ? kKeyColour : At(0xA00000, 9, x, y);
}

uint32_t OverlayPixel(int32_t side, int32_t iconCount, int32_t x, int32_t y) {
  if (x < 240 || x >= 540 || y < 370 || y >= 450) return kKeyColour;
  return At(0xB00000, 8, iconCount, side);
}

ImageClass PlainPicture(int32_t width, int32_t height, uint32_t colour) {
  return MakePicture(width, height, [colour](int32_t, int32_t) { return colour; });
}

void WriteTemplates(const std::string& folder, const TemplateSizes& sizes) {
  ASSERT_TRUE(ImageInit());
  const std::string start = folder + "\\";
  for (int32_t side = 0; side < 3; ++side) {
    const std::string prefix = start + kPrefixes[side];
    Write(prefix + "_worldmap.png", sizes.worldMap,
          [side](int32_t x, int32_t y) { return WorldMapPixel(side, x, y); });
    for (int32_t count = 2; count <= 3; ++count) {
      Write(prefix + "_" + std::to_string(count) + "icomain.png", sizes.overlay,
            [=](int32_t x, int32_t y) { return OverlayPixel(side, count, x, y); });
    }
  }
  Write(start + "com_worldmap2x.png", sizes.zoomedMap, ZoomedMapPixel);
  Write(start + "com_largetargetbox.png", sizes.frame, FramePixel);
  Write(start + "com_smalltargetbox.png", sizes.targetBox, TargetBoxPixel);
  ImageUnInit();
}
