#include "document/composition.h"

#include <gtest/gtest.h>

#include <functional>

#include "document/item_operations.h"
#include "document/shell_calls.h"
#include "support/case_name.h"
#include "support/editor_fixture.h"

namespace {

// The picture that the document stands for, pixel by pixel and told in positions instead of copies.
// The fans and the items are not in it.
uint32_t ExpectedBottom(int32_t x, int32_t y) {
  if (x >= 542 && x < 776 && y >= 267 && y < 499 && doc.screenshot.valid) {
    return doc.screenshot.ReadPixel(x - 542, y - 267);
  }
  const int32_t iconX[][3] = {{311, 405, -1}, {256, 350, 444}};
  for (int i = 0; i < doc.iconCount; ++i) {
    const int32_t left = iconX[doc.iconCount - 2][i];
    if (x >= left && x < left + 76 && y >= 380 && y < 440 && doc.icons[i].valid) {
      return doc.icons[i].ReadPixel(x - left, y - 380);
    }
  }
  const uint32_t overlay = OverlayPixel(doc.side, doc.iconCount, x, y);
  if (overlay != kKeyColour) return overlay;
  return WorldMapPixel(doc.side, (doc.worldMapX + x) % 900, (doc.worldMapY + y) % 600);
}

uint32_t ExpectedPixel(int32_t x, int32_t y) {
  if (doc.showTopLayer) {
    const int32_t boxX = x - doc.targetBoxX, boxY = y - doc.targetBoxY;
    if (boxX >= 0 && boxX < 60 && boxY >= 0 && boxY < 58 &&
        TargetBoxPixel(boxX, boxY) != kKeyColour) {
      return TargetBoxPixel(boxX, boxY);
    }
    if (x >= 353 && x < 634 && y >= 58 && y < 335) {
      return ZoomedMapPixel((doc.worldMap2xX + x - 353) % 700, (doc.worldMap2xY + y - 58) % 500);
    }
    if (x >= 346 && x < 641 && y >= 52 && y < 341) return FramePixel(x - 346, y - 52);
  }
  return doc.showBottomLayer ? ExpectedBottom(x, y) : 0;
}

class CompositionTest : public EditorFixture {
 protected:
  // Composes into both kinds of surface and compares every pixel that no line of a fan can touch.
  static void ExpectPicture(const std::string& name) {
    DIBClass dib(kPictureWidth, kPictureHeight);
    ImageClass image;
    image.Create(kPictureWidth, kPictureHeight);
    ComposeLoadScreen(&dib);
    ComposeLoadScreen(&image);
    for (int32_t y = 0; y < kPictureHeight; ++y) {
      for (int32_t x = 0; x < kPictureWidth; ++x) {
        if (doc.showTopLayer && OnFan(x, y)) continue;
        const uint32_t expected = ExpectedPixel(x, y);
        if (dib.ReadPixel(x, y) == expected && image.ReadPixel(x, y) == expected) continue;
        FAIL() << name << ": " << std::hex << dib.ReadPixel(x, y) << " and "
               << image.ReadPixel(x, y) << " instead of " << expected << std::dec << " at " << x
               << ", " << y;
      }
    }
  }

  // Between the box's left columns and the frame's, above its top or below its bottom row.
  static bool OnFan(int32_t x, int32_t y) {
    if (x < doc.targetBoxX || x > 350) return false;
    return (y >= 52 && y <= doc.targetBoxY) || (y >= doc.targetBoxY + 58 && y <= 337);
  }

  static ImageClass Composed() {
    ImageClass image;
    image.Create(kPictureWidth, kPictureHeight);
    ComposeLoadScreen(&image);
    return image;
  }
};

ImageClass Icon(uint32_t mark) {
  return MakePicture(76, 60, [mark](int32_t x, int32_t y) {
    return mark << 20 | static_cast<uint32_t>(y << 8 | x);
  });
}

struct Setting {
  const char* name;
  std::function<void()> make;
};

const Setting kSettings[] = {
    {"AtStart", [] {}},
    {"ThreeIconsNoneChosen", [] { SetIconCount(3); }},
    {"TwoIconsOfThreeLoaded",
     [] {
       SetIconCount(2);
       for (uint32_t i = 0; i < 3; ++i) doc.icons[i] = Icon(0xC + i);
     }},
    {"ThreeIcons",
     [] {
       SetIconCount(3);
       for (uint32_t i = 0; i < 3; ++i) doc.icons[i] = Icon(0xC + i);
     }},
    {"OnlyTheMiddleIcon",
     [] {
       SetIconCount(3);
       doc.icons[1] = Icon(0xD);
     }},
    {"Screenshot",
     [] {
       doc.screenshot = MakePicture(234, 232, [](int32_t x, int32_t y) {
         return 0xF00000 | static_cast<uint32_t>(y << 8 | x);
       });
     }},
    {"MapAtItsLastColumnAndRow", [] { doc.worldMapX = 899, doc.worldMapY = 599; }},
    {"MapWrappedInBothDirections", [] { doc.worldMapX = 123, doc.worldMapY = 456; }},
    {"MapJustNotWrapped", [] { doc.worldMapX = 100, doc.worldMapY = 80; }},
    {"ZoomedMapWrapped", [] { doc.worldMap2xX = 699, doc.worldMap2xY = 499; }},
    {"ZoomedMapInsideItsEdge", [] { doc.worldMap2xX = 419, doc.worldMap2xY = 223; }},
    {"BoxAtTheTop", [] { doc.targetBoxY = 56; }},
    {"BoxAtTheBottom", [] { doc.targetBoxY = 289 - 58 + 48; }},
    {"BottomLayerOnly", [] { SetLayers(0, 1); }},
    {"TopLayerOnly", [] { SetLayers(1, 0); }},
    {"NoLayer", [] { SetLayers(0, 0); }},
    {"Yuri", [] { SetSide(Yuri); }},
};

class CompositionSettingTest : public CompositionTest,
                               public testing::WithParamInterface<Setting> {};

TEST_P(CompositionSettingTest, EveryPixelIsInItsPlace) {
  GetParam().make();
  ExpectPicture(GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(All, CompositionSettingTest, testing::ValuesIn(kSettings), CaseName());

TEST_F(CompositionTest, NoTargetIsNoError) { ComposeLoadScreen(nullptr); }

// The fans start at columns 232 to 236 of the box's top row and of the row below it, and end at
// columns 346 to 350 of rows 52 and 337.
TEST_F(CompositionTest, FansJoinTheBoxToTheFrame) {
  const ImageClass image = Composed();
  const uint32_t upper[] = {0xC0C0C0, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xC0C0C0};
  const uint32_t lower[] = {0x969696, 0xC8C8C8, 0xC8C8C8, 0xC8C8C8, 0x969696};
  for (int32_t i = 0; i < 5; ++i) {
    EXPECT_EQ(upper[i], image.ReadPixel(232 + i, 103)) << i;
    EXPECT_EQ(upper[i], image.ReadPixel(346 + i, 52)) << i;
    EXPECT_EQ(lower[i], image.ReadPixel(346 + i, 337)) << i;
    // The line from (232 + i, 161) is a steep one: only its own colour lies in its first row.
    EXPECT_EQ(lower[i], image.ReadPixel(232 + i, 161)) << i;
    // Nothing but the canvas has the lines' last points.
    EXPECT_EQ(FramePixel(i, 0), CanvasPixel(346 + i, 52)) << i;
    EXPECT_EQ(upper[i], CanvasPixel(232 + i, 103)) << i;
    EXPECT_EQ(FramePixel(i, 285), CanvasPixel(346 + i, 337)) << i;
  }
  EXPECT_NE(lower[0], image.ReadPixel(231, 161));
  EXPECT_NE(lower[4], image.ReadPixel(237, 161));
}

TEST_F(CompositionTest, FanLinesAreStraight) {
  doc.targetBoxY = 57;  // 5 rows above 114 columns
  const ImageClass image = Composed();
  // Half way, between the steps: row 54 or 55.
  EXPECT_EQ(0xC0C0C0U, image.ReadPixel(232 + 57, 55));
  int points = 0;
  for (int32_t x = 232; x <= 346; ++x) {
    for (int32_t y = 52; y <= 57; ++y) {
      const uint32_t pixel = image.ReadPixel(x, y);
      if (pixel == 0xC0C0C0 || pixel == 0xFFFFFF) ++points;
    }
  }
  EXPECT_GE(points, 115) << "every column from the box to the frame is crossed";
}

TEST_F(CompositionTest, ItemsAreDrawnInTheirOrderWithoutTheirKeyPixels) {
  const ImageClass back = MakePicture(
      4, 4, [](int32_t x, int32_t y) { return x == 1 && y == 1 ? kKeyColour : 0x111111U; });
  AddItem(back, 10, 400, 0);
  AddItem(PlainPicture(4, 4, 0x222222), 12, 402, 0);
  RepaintView();
  EXPECT_EQ(0x111111U, CanvasPixel(10, 400));
  EXPECT_EQ(WorldMapPixel(Allied, 11, 401), CanvasPixel(11, 401));
  EXPECT_EQ(0x222222U, CanvasPixel(12, 402)) << "the later item covers the earlier one";
  SetLayers(0, 1);
  EXPECT_EQ(WorldMapPixel(Allied, 12, 402), CanvasPixel(12, 402));
}

TEST_F(CompositionTest, SelectionFrameIsCoveredByLaterItems) {
  AddItem(PlainPicture(4, 4, 0x102030), 10, 400, 0);
  AddItem(PlainPicture(4, 4, 0x222222), 12, 402, 0);
  SelectItem(0);
  EXPECT_EQ(0xCFDFEFU, CanvasPixel(10, 400)) << "inverted, red and blue exchanged";
  EXPECT_EQ(0xCFDFEFU, CanvasPixel(13, 401));
  EXPECT_EQ(0x102030U, CanvasPixel(11, 401)) << "inside the frame";
  EXPECT_EQ(0x222222U, CanvasPixel(13, 403));
  SelectItem(1);
  EXPECT_EQ(0x102030U, CanvasPixel(10, 400));
  EXPECT_EQ(0xDDDDDDU, CanvasPixel(12, 402));
}

TEST_F(CompositionTest, ItemThatDoesNotFitKeepsItsSelectionFrame) {
  AddItem(PlainPicture(10, 10, 0x111111), 795, 400, 0);
  SelectItem(0);
  EXPECT_EQ(WorldMapPixel(Allied, 797, 405), CanvasPixel(797, 405)) << "not drawn";
  const uint32_t map = WorldMapPixel(Allied, 795, 400), inverted = ~map;
  EXPECT_EQ((inverted & 0xFF) << 16 | (inverted & 0xFF00) | (inverted >> 16 & 0xFF),
            CanvasPixel(795, 400));
  doc.items.At(0).x = -1;
  RepaintView();
  EXPECT_EQ(WorldMapPixel(Allied, 0, 400), CanvasPixel(0, 400)) << "no frame either";
}

TEST_F(CompositionTest, OffsetBeyondTheMapDrawsNoMap) {
  doc.worldMapX = 905;
  for (const POINT beyond : {POINT{701, 0}, POINT{0, 501}}) {
    doc.worldMap2xX = beyond.x;
    doc.worldMap2xY = beyond.y;
    const ImageClass image = Composed();
    EXPECT_EQ(0U, image.ReadPixel(0, 0));
    EXPECT_EQ(0U, image.ReadPixel(700, 500));
    EXPECT_EQ(FramePixel(100, 100), image.ReadPixel(446, 152)) << "the frame shows through";
    EXPECT_EQ(FramePixel(6, 5), image.ReadPixel(352, 57)) << "nothing beside the window";
  }
}

struct Oddity {
  const char* name;
  TemplateSizes sizes;
};

const Oddity kOddities[] = {
    {"OnePixelMaps", {{1, 1}, {1, 1}, {295, 289}, {60, 58}, {800, 520}}},
    {"OnePixelEach", {{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}}},
    {"MapOneShort", {{799, 519}, {280, 276}, {295, 289}, {60, 58}, {800, 520}}},
    {"BoxLargerThanTheFrame", {{900, 600}, {700, 500}, {10, 10}, {500, 400}, {800, 520}}},
    {"FrameLargerThanThePicture", {{900, 600}, {700, 500}, {500, 510}, {60, 58}, {801, 521}}},
};

// Templates of sizes that no one should make: nothing outside a surface is touched.
class OddTemplatesTest : public EditorFixture, public testing::WithParamInterface<Oddity> {
 protected:
  TemplateSizes Sizes() const override { return GetParam().sizes; }
};

TEST_P(OddTemplatesTest, EditorStaysInsideItsPictures) {
  for (const UINT mode : {IDM_MOVE_SMALL_MAP, IDM_MOVE_LARGE_MAP, IDM_MOVE_TARGET_BOX}) {
    Command(mode);
    for (const int key : {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
      const HoldKeys fast({VK_CONTROL, VK_SHIFT});
      for (int i = 0; i < 3; ++i) Key(key);
    }
  }
  SetIconCount(3);
  SetSide(Yuri);
  ImageClass image;
  image.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&image);
  EXPECT_EQ(800, doc.canvas.width);
  EXPECT_GE(doc.worldMapX, 0);
  EXPECT_LT(doc.worldMapX, doc.worldMap.width);
}

INSTANTIATE_TEST_SUITE_P(All, OddTemplatesTest, testing::ValuesIn(kOddities), CaseName());

}  // namespace
