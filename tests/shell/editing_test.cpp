#include "shell/editing.h"

#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "support/editor_fixture.h"

namespace {

// A key that moves something at (x, y); positions count from its room's end when they are negative.
struct MovingKey {
  const char* name;
  int key;
  std::vector<BYTE> held;
  int32_t x, y, newX, newY;
};
using MovingKeys = std::vector<MovingKey>;

class EditingTest : public EditorFixture {
 protected:
  // An item of 20 x 10 pixels.
  static void Add(int32_t x, int32_t y) { AddItem(PlainPicture(20, 10, 0x111111), x, y, 0); }

  // Presses every key on what stands in a room of that size.
  void ExpectMoves(const MovingKeys& keys, int32_t& x, int32_t& y, SIZE room) {
    const auto at = [](int32_t place, LONG size) { return place < 0 ? size + place : place; };
    for (const MovingKey& test : keys) {
      x = at(test.x, room.cx);
      y = at(test.y, room.cy);
      doc.canvas.Fill(1);
      const HoldKeys held(test.held);
      Key(test.key);
      EXPECT_EQ(at(test.newX, room.cx), x) << test.name;
      EXPECT_EQ(at(test.newY, room.cy), y) << test.name;
      EXPECT_NE(1U, CanvasPixel(0, 0)) << test.name << ": repainted whatever the key was";
    }
  }
};

TEST_F(EditingTest, KeysMoveTheModesMapAndWrapToItsEdges) {
  const MovingKeys keys = {
      {"left", VK_LEFT, {}, 10, 20, 9, 20},
      {"right", VK_RIGHT, {}, 10, 20, 11, 20},
      {"up", VK_UP, {}, 10, 20, 10, 19},
      {"down", VK_DOWN, {}, 10, 20, 10, 21},
      {"Shift: two steps", VK_RIGHT, {VK_SHIFT}, 10, 20, 12, 20},
      {"Ctrl: five", VK_DOWN, {VK_CONTROL}, 10, 20, 10, 25},
      {"both: ten", VK_RIGHT, {VK_CONTROL, VK_SHIFT}, 10, 20, 20, 20},
      {"left from the first column", VK_LEFT, {}, 0, 20, -1, 20},
      {"right from the last column", VK_RIGHT, {}, -1, 20, 0, 20},
      {"down from the last row", VK_DOWN, {}, 10, -1, 10, 0},
      {"long step right wraps to the edge", VK_RIGHT, {VK_CONTROL}, -3, 20, 0, 20},
      {"long step up wraps to the edge", VK_UP, {VK_CONTROL, VK_SHIFT}, 10, 9, 10, -1},
      {"long step reaches the last row", VK_DOWN, {VK_CONTROL}, 10, -6, 10, -1},
      {"other key", VK_TAB, {}, 10, 20, 10, 20},
  };
  ExpectMoves(keys, doc.worldMapX, doc.worldMapY, {900, 600});
  ExpectMoves({{"left from beyond the map", VK_LEFT, {}, 950, 20, 949, 20},
               {"up from beyond the map", VK_UP, {VK_CONTROL}, 10, 700, 10, 695},
               {"right from beyond the map", VK_RIGHT, {}, 950, 20, 0, 20}},
              doc.worldMapX, doc.worldMapY, {});
  EXPECT_EQ(std::pair(232, 103), std::pair(doc.worldMap2xX, doc.worldMap2xY));
  Command(IDM_MOVE_LARGE_MAP);
  doc.worldMapX = doc.worldMapY = 0;
  ExpectMoves(keys, doc.worldMap2xX, doc.worldMap2xY, {700, 500});
  Command(IDM_MOVE_TARGET_BOX);
  // 289 - 58 + 48 = 279 is the lowest place.
  ExpectMoves({{"up", VK_UP, {}, 232, 100, 232, 99},
               {"down", VK_DOWN, {}, 232, 100, 232, 101},
               {"past the top", VK_UP, {VK_CONTROL}, 232, 60, 232, 56},
               {"past the bottom", VK_DOWN, {VK_CONTROL, VK_SHIFT}, 232, 270, 232, 279},
               {"left", VK_LEFT, {}, 232, 100, 232, 100},
               {"right", VK_RIGHT, {VK_CONTROL}, 232, 100, 232, 100}},
              doc.targetBoxX, doc.targetBoxY, {});
  EXPECT_EQ(std::pair(0, 0), std::pair(doc.worldMapX, doc.worldMapY));
}

TEST_F(EditingTest, KeysMoveTheSelectedItemInsteadOfTheMap) {
  Add(0, 0);
  SelectItem(0);
  ExpectMoves({{"left", VK_LEFT, {}, 100, 200, 99, 200},
               {"right", VK_RIGHT, {VK_SHIFT}, 100, 200, 102, 200},
               {"up", VK_UP, {VK_CONTROL}, 100, 200, 100, 195},
               {"down", VK_DOWN, {VK_CONTROL, VK_SHIFT}, 100, 200, 100, 210},
               {"left past the edge", VK_LEFT, {VK_CONTROL}, 3, 200, 0, 200},
               {"up past the edge", VK_UP, {VK_CONTROL}, 100, 3, 100, 0},
               {"right to the edge", VK_RIGHT, {}, 778, 200, 779, 200},
               {"right past the edge", VK_RIGHT, {VK_CONTROL}, 778, 200, 779, 200},
               {"down to the edge", VK_DOWN, {}, 100, 508, 100, 509},
               {"down past the edge", VK_DOWN, {VK_CONTROL}, 100, 508, 100, 509}},
              doc.items.At(0).x, doc.items.At(0).y, {});
  EXPECT_EQ(0xEEEEEEU, CanvasPixel(100, 509)) << "shown at once";
  EXPECT_EQ(std::pair(0, 0), std::pair(doc.worldMapX, doc.worldMapY));
}

TEST_F(EditingTest, TabEscapeAndDeleteManageTheItems) {
  for (int i = 0; i < 3; ++i) Add(100 * i, 400);
  Key(VK_TAB);
  EXPECT_EQ(-1, doc.selectedItem) << "without a selection the keys belong to the mode";
  SelectItem(1);
  Key(VK_TAB);
  EXPECT_EQ(2, doc.selectedItem);
  EXPECT_EQ(0xEEEEEEU, CanvasPixel(200, 400));
  Key(VK_TAB);
  EXPECT_EQ(0, doc.selectedItem);
  EXPECT_TRUE(doc.items.At(0).selected && !doc.items.At(1).selected && !doc.items.At(2).selected);
  doc.canvas.Fill(1);
  for (const int key : {int{'A'}, VK_SHIFT, VK_RETURN, VK_SPACE, VK_HOME}) Key(key);
  EXPECT_EQ(1U, CanvasPixel(0, 0)) << "other keys don't even repaint";
  Key(VK_DELETE);
  EXPECT_EQ(2, doc.items.Count());
  EXPECT_EQ(-1, doc.selectedItem);
  for (const auto& unselect : {std::function<void()>([this] { Key(VK_ESCAPE); }),
                               {[this] { Command(IDM_UNSELECT_ITEM); }}}) {
    SelectItem(0);
    EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
    unselect();
    EXPECT_EQ(-1, doc.selectedItem);
    EXPECT_EQ(0U, doc.items.At(0).selected);
    EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
    EXPECT_EQ(0x111111U, CanvasPixel(100, 400)) << "shown at once";
  }
  Key(VK_RIGHT);
  EXPECT_EQ(1, doc.worldMapX) << "the arrow keys are the map's again";
}

TEST_F(EditingTest, DragMovesTheGrabbedItem) {
  Add(100, 200);
  Add(300, 300);
  PressCanvas(305, 308);
  EXPECT_EQ(1, doc.selectedItem);
  EXPECT_EQ(doc.viewWindow, GetCapture());
  EXPECT_EQ(300, ItemX(1)) << "grabbing alone moves nothing";
  MoveCanvas(315, 348);
  EXPECT_EQ(310, ItemX(1));
  EXPECT_EQ(340, ItemY(1));
  EXPECT_EQ(0xEEEEEEU, CanvasPixel(310, 340)) << "shown at once";
  ReleaseCanvas(315, 348);
  EXPECT_EQ(nullptr, GetCapture());
  MoveCanvas(400, 400);
  EXPECT_EQ(310, ItemX(1)) << "the drag is over";
  EXPECT_EQ(1, doc.selectedItem) << "the item stays selected";
  EXPECT_EQ(100, ItemX(0));
  Drag(315, 348, -3000, -500);
  EXPECT_EQ(std::pair(0, 0), std::pair(ItemX(1), ItemY(1))) << "stops at the picture's edges";
  Drag(5, 8, 5, 2000);
  EXPECT_EQ(508, ItemY(1)) << "the keys go one row further";
}

TEST_F(EditingTest, LostCaptureOrItemEndsTheDrag) {
  Add(100, 200);
  Add(300, 300);
  PressCanvas(105, 205);
  ReleaseCapture();
  MoveCanvas(200, 250);
  EXPECT_EQ(100, ItemX(0));
  EXPECT_EQ(0, doc.selectedItem);
  PressCanvas(105, 205);
  Key(VK_DELETE);
  MoveCanvas(200, 250);
  EXPECT_EQ(1, doc.items.Count());
  EXPECT_EQ(300, ItemX(0)) << "no other item moves instead";
  ReleaseCanvas(200, 250);
  EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(EditingTest, HitTestReachesOnePixelBeyondAndTakesTheFirst) {
  Add(100, 200);
  Add(300, 300);
  Add(110, 205);
  const struct {
    const char* name;
    int32_t x, y, hit;
  } points[] = {{"corner", 100, 200, 0},         {"left of", 99, 200, -1},
                {"above", 100, 199, -1},         {"beyond the corner", 120, 210, 0},
                {"further right", 121, 204, -1}, {"further down", 100, 211, -1},
                {"on both", 115, 207, 0},        {"on the third", 125, 212, 2},
                {"on the second", 300, 300, 1}};
  for (const auto& point : points) EXPECT_EQ(point.hit, HitTest(point.x, point.y)) << point.name;
}

TEST_F(EditingTest, ClickOnACentredOrScrolledViewFindsItsItem) {
  Add(300, 400);
  SizeView(1000, 600);
  Click(doc.viewWindow, 399, 440);
  EXPECT_EQ(-1, doc.selectedItem);
  Click(doc.viewWindow, 400, 440);
  EXPECT_EQ(0, doc.selectedItem);
  SizeView(600, 400);
  SendMessageA(doc.viewWindow, WM_HSCROLL, MAKELONG(SB_THUMBPOSITION, 150), 0);
  SendMessageA(doc.viewWindow, WM_VSCROLL, MAKELONG(SB_THUMBPOSITION, 60), 0);
  Click(doc.viewWindow, 149, 340);
  EXPECT_EQ(-1, doc.selectedItem) << "beside every item";
  Click(doc.viewWindow, 150, 340);
  EXPECT_EQ(0, doc.selectedItem);
}

}  // namespace
