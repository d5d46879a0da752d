#include "document/composition.h"

#include <gtest/gtest.h>

#include <functional>

#include "document/item_operations.h"
#include "document/shell_calls.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"
#include "support/surface_text.h"

namespace {

// Whether a map that begins at its column or row `first` reaches so many pixels on, going round
// once. One that begins beyond its edge is not drawn.
bool Reaches(int32_t first, int32_t pixel, int32_t size) {
  return first < size && first + pixel < 2 * size;
}

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
  const uint32_t overlay =
      doc.sideOverlay.width == 800 ? OverlayPixel(doc.side, doc.iconCount, x, y) : kKeyColour;
  if (overlay != kKeyColour) return overlay;
  const int32_t width = doc.worldMap.width, height = doc.worldMap.height;
  if (!Reaches(doc.worldMapX, x, width) || !Reaches(doc.worldMapY, y, height)) return 0;
  return WorldMapPixel(doc.side, (doc.worldMapX + x) % width, (doc.worldMapY + y) % height);
}

uint32_t ExpectedPixel(int32_t x, int32_t y) {
  if (doc.showTopLayer) {
    const int32_t boxX = x - doc.targetBoxX, boxY = y - doc.targetBoxY;
    if (boxX >= 0 && boxX < 60 && boxY >= 0 && boxY < doc.smallTargetBox.height &&
        TargetBoxPixel(boxX, boxY) != kKeyColour) {
      return TargetBoxPixel(boxX, boxY);
    }
    const int32_t width = doc.worldMap2x.width, height = doc.worldMap2x.height;
    if (x >= 353 && x < 634 && y >= 58 && y < 335 && Reaches(doc.worldMap2xX, x - 353, width) &&
        Reaches(doc.worldMap2xY, y - 58, height)) {
      return ZoomedMapPixel((doc.worldMap2xX + x - 353) % width,
                            (doc.worldMap2xY + y - 58) % height);
    }
    if (x >= 346 && x < 641 && y >= 52 && y < 341) return FramePixel(x - 346, y - 52);
  }
  return doc.showBottomLayer ? ExpectedBottom(x, y) : 0;
}

class CompositionTest : public EditorFixture {
 protected:
  // Compares what is composed into a surface with what is expected; the lines of the fans, which
  // the two kinds of surface draw differently, are left out.
  static void ExpectPicture(BitmapClass& picture, const std::string& name) {
    ComposeLoadScreen(&picture);
    const auto expected = [&picture](int32_t x, int32_t y) {
      return doc.showTopLayer && OnFan(x, y) ? picture.ReadPixel(x, y) : ExpectedPixel(x, y);
    };
    EXPECT_EQ("", Difference(MakePicture(800, 520, expected), picture)) << name;
  }

  // Between the box's left columns and the frame's, above its top or below its bottom row.
  static bool OnFan(int32_t x, int32_t y) {
    if (x < doc.targetBoxX || x > 350) return false;
    const auto [first, last] = std::minmax({doc.targetBoxY + doc.smallTargetBox.height, 337});
    return (y >= 52 && y <= doc.targetBoxY) || (y >= first && y <= last);
  }

  static ImageClass Composed() {
    ImageClass image;
    image.Create(kPictureWidth, kPictureHeight);
    ComposeLoadScreen(&image);
    return image;
  }
};

ImageClass Marked(int32_t width, int32_t height, uint32_t mark) {
  return MakePicture(width, height, [mark](int32_t x, int32_t y) {
    return mark << 20 | static_cast<uint32_t>(y << 8 | x);
  });
}

TEST_F(CompositionTest, EveryPixelIsInItsPlaceAfterEachChange) {
  const struct {
    const char* name;
    std::function<void()> change;
  } changes[] = {
      {"start", [] {}},
      {"three icons, none chosen", [] { SetIconCount(3); }},
      {"middle icon", [] { doc.icons[1] = Marked(76, 60, 0xD); }},
      {"last icon", [] { doc.icons[2] = Marked(76, 60, 0xE); }},
      {"first icon", [] { doc.icons[0] = Marked(76, 60, 0xC); }},
      {"two icons of three", [] { SetIconCount(2); }},
      {"screenshot", [] { doc.screenshot = Marked(234, 232, 0xF); }},
      {"map at its last column and row", [] { doc.worldMapX = 899, doc.worldMapY = 599; }},
      {"map wrapped in both directions", [] { doc.worldMapX = 123, doc.worldMapY = 456; }},
      {"map just not wrapped", [] { doc.worldMapX = 100, doc.worldMapY = 80; }},
      {"zoomed map wrapped", [] { doc.worldMap2xX = 699, doc.worldMap2xY = 499; }},
      {"zoomed map inside its edge", [] { doc.worldMap2xX = 419, doc.worldMap2xY = 223; }},
      {"box at the top", [] { doc.targetBoxY = 56; }},
      {"box at the bottom", [] { doc.targetBoxY = 279; }},
      {"Yuri", [] { SetSide(Yuri); }},
      {"bottom layer only", [] { SetLayers(0, 1); }},
      {"top layer only", [] { SetLayers(1, 0); }},
      {"no layer", [] { SetLayers(0, 0); }},
      {"map from beyond its edge", [] { SetLayers(1, 1), doc.worldMapX = 905; }},
      {"zoomed map from beyond its right edge", [] { doc.worldMap2xX = 701; }},
      {"zoomed map from beyond its bottom", [] { doc.worldMap2xX = 0, doc.worldMap2xY = 501; }},
      {"templates that do not fit",
       [] {
         doc.worldMap =
             MakePicture(390, 300, [](auto x, auto y) { return WorldMapPixel(Yuri, x, y); });
         doc.worldMap2x = MakePicture(200, 130, ZoomedMapPixel);
         doc.smallTargetBox = MakePicture(60, 310, TargetBoxPixel);
         doc.sideOverlay =
             MakePicture(810, 530, [](auto x, auto y) { return OverlayPixel(Yuri, 2, x, y); });
         doc.worldMapX = 10, doc.worldMapY = 20, doc.worldMap2xX = 130, doc.worldMap2xY = 20,
         doc.targetBoxY = 56;
       }},
  };
  DIBClass dib(kPictureWidth, kPictureHeight);
  ImageClass image = Composed();
  for (const auto& step : changes) {
    step.change();
    ExpectPicture(dib, step.name);
    ExpectPicture(image, step.name);
  }
  ComposeLoadScreen(nullptr);
}

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
  doc.targetBoxY = 57;  // 5 rows above 114 columns: half way in row 54 or 55
  EXPECT_EQ(0xC0C0C0U, Composed().ReadPixel(232 + 57, 55));
}

TEST_F(CompositionTest, ItemsAndSelectionFramesAreDrawnInTheListsOrder) {
  ImageClass first;
  Draw(first, "111111|1K1111|111111|111111", {{'1', 0x102030}, {'K', kKeyColour}});
  AddItem(first, 10, 400, 0);
  AddItem(PlainPicture(4, 3, 0x222222), 14, 402, 0);
  SetLayers(1, 0);
  // 'i' and 'j' are inverted, red and blue exchanged.
  const Legend legend = {
      {'1', 0x102030}, {'i', 0xCFDFEF}, {'2', 0x222222}, {'j', 0xDDDDDD}, {'.', 0}};
  const std::pair<int, const char*> pictures[] = {
      {-1, "111111...|1.1111...|11112222.|11112222.|....2222.|........."},
      {0, "iiiiii...|i.111i...|i1112222.|iiii2222.|....2222.|........."},
      {1, "111111...|1.1111...|1111jjjj.|1111j22j.|....jjjj.|........."}};
  for (const auto& [selected, picture] : pictures) {
    if (selected >= 0) SelectItem(selected);
    const auto drawn = [this](int32_t x, int32_t y) { return CanvasPixel(x + 10, y + 400); };
    EXPECT_EQ(Rows(picture), Drawn(MakePicture(9, 6, drawn), legend));
  }
  doc.items.At(1).x = 797;
  RepaintView();
  EXPECT_EQ(0U, CanvasPixel(798, 403)) << "what does not fit is not drawn";
  EXPECT_EQ(0xFFFFFFU, CanvasPixel(797, 402)) << "but its frame is";
  SetLayers(0, 1);
  EXPECT_EQ(WorldMapPixel(Allied, 10, 400), CanvasPixel(10, 400)) << "items are the top layer's";
}

}  // namespace
