#include <gtest/gtest.h>

#include "document/composition.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"
#include "support/picture_difference.h"
#include "support/sprite.h"

namespace {

using RoundTripTest = EditorFixture;

// Of 16 colours in blocks, whose components are multiples of 4, as a palette file keeps them.
ImageClass Blocks(int32_t width, int32_t height, uint32_t mark) {
  return MakePicture(width, height, [mark](int32_t x, int32_t y) {
    const auto column = static_cast<uint32_t>(x / 45 % 4), row = static_cast<uint32_t>(y / 37 % 4);
    return mark << 16 | column << 12 | row << 6;
  });
}

TEST_F(RoundTripTest, DocumentComesBackFromSpriteAndPalette) {
  doc.worldMap = Blocks(911, 613, 0x10);
  doc.sideOverlay = Blocks(200, 150, 0xB0);
  doc.worldMap2x = Blocks(450, 400, 0x20);
  doc.largeTargetBox = Blocks(295, 289, 0x30);
  doc.smallTargetBox = Blocks(60, 58, 0x40);
  doc.screenshot = Blocks(234, 232, 0x60);
  ImageClass composed;
  composed.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&composed);

  user.ChooseFile("Save As", AppPath("picture.shp"));
  user.When("SHP save options", [this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("picture.pal"));
    Press(dialog, IDOK);
  });
  Command(IDM_SAVE_AS_SHP);
  const ImageClass expected = MakePicture(
      800, 520, [&composed](int32_t x, int32_t y) { return composed.ReadPixel(x, y) & 0xFCFCFC; });
  const std::string shp = ReadContent(File("picture.shp")), pal = ReadContent(File("picture.pal"));
  EXPECT_EQ("", Difference(expected, ReadSprite(shp, pal)));
}

}  // namespace
