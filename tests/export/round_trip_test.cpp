#include <gtest/gtest.h>

#include "document/composition.h"
#include "document/item_operations.h"
#include "document/shell_calls.h"
#include "imaging/image_files.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"
#include "support/picture_difference.h"
#include "support/sprite.h"

namespace {

// A picture of 16 colours in blocks, whose components are multiples of 4, as a palette file keeps
// them.
ImageClass Blocks(int32_t width, int32_t height, uint32_t mark) {
  return MakePicture(width, height, [mark](int32_t x, int32_t y) {
    const uint32_t column = static_cast<uint32_t>(x / 45) % 4,
                   row = static_cast<uint32_t>(y / 37) % 4;
    return mark << 16 | column << 12 | row << 6;
  });
}

// The reference document: every field that shows differs from its start value.
void MakeReferenceDocument() {
  SetSide(Yuri);
  SetIconCount(3);
  doc.worldMap = Blocks(911, 613, 0x10);
  doc.sideOverlay = MakePicture(790, 500, [](int32_t x, int32_t y) {
    return (x / 50 + y / 50) % 7 == 0 ? 0xB0C040U : kKeyColour;
  });
  doc.worldMap2x = Blocks(450, 400, 0x20);
  doc.largeTargetBox = Blocks(295, 289, 0x30);
  doc.smallTargetBox = MakePicture(
      60, 58, [](int32_t x, int32_t y) { return x % 9 && y % 9 ? kKeyColour : 0x404000U; });
  for (uint32_t i = 0; i < 3; ++i) doc.icons[i] = PlainPicture(76, 60, 0x500000 + i * 0x1000);
  doc.screenshot = Blocks(234, 232, 0x60);
  doc.worldMapX = 500;
  doc.worldMapY = 333;
  doc.worldMap2xX = 401;
  doc.worldMap2xY = 222;
  doc.targetBoxY = 211;
  AddItem(Blocks(40, 30, 0x70), 20, 30, 0x0000F0);
  AddItem(PlainPicture(50, 20, 0x80F000), 44, 44, 0xF00000);
  AddItem(PlainPicture(33, 22, 0x900000), 700, 480, 0xF000F0);
  SelectItem(1);
}

class RoundTripTest : public EditorFixture {
 protected:
  // Saves as an image and as a sprite with a generated palette, and reads both back.
  ImageClass ThroughImage() {
    user.ChooseFile("Save As", AppPath("picture.png"));
    Command(IDM_SAVE_AS_IMAGE);
    ImageClass picture;
    EXPECT_EQ(1, LoadImageFile(AppPath("picture.png").c_str(), picture));
    return picture;
  }
  ImageClass ThroughSprite() {
    user.ChooseFile("Save As", AppPath("picture.shp"));
    user.When("SHP save options", [this](HWND dialog) {
      Type(dialog, IDC_SHP_NAME, AppPath("picture.pal"));
      Press(dialog, IDOK);
    });
    Command(IDM_SAVE_AS_SHP);
    return ReadSprite(ReadContent(File("picture.shp")), ReadContent(File("picture.pal")));
  }

  // Both files hold the picture; the sprite without the two low bits of each component.
  void ExpectRoundTrip() {
    ImageClass expected;
    expected.Create(kPictureWidth, kPictureHeight);
    ComposeLoadScreen(&expected);
    EXPECT_EQ("", Difference(expected, ThroughImage()));
    const auto kept = [&](int32_t x, int32_t y) { return expected.ReadPixel(x, y) & 0xFCFCFC; };
    EXPECT_EQ("", Difference(MakePicture(800, 520, kept), ThroughSprite()));
  }
};

TEST_F(RoundTripTest, ReferenceDocumentComesBackFromBothFiles) {
  MakeReferenceDocument();
  ExpectRoundTrip();
}

TEST_F(RoundTripTest, BottomLayerComesBackAlone) {
  MakeReferenceDocument();
  Command(IDM_VIEW_TOP_LAYER);
  ExpectRoundTrip();
}

}  // namespace
