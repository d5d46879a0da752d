#include "shell/editing.h"

#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "support/editor_fixture.h"

namespace {

struct MovingKey {
  const char* name;
  int key;
  std::vector<BYTE> held;
  int32_t x, y, newX, newY;
};

// Negative positions count from the map's end: -1 is its last column or row.
const MovingKey kMapKeys[] = {
    {"Left", VK_LEFT, {}, 10, 20, 9, 20},
    {"Right", VK_RIGHT, {}, 10, 20, 11, 20},
    {"Up", VK_UP, {}, 10, 20, 10, 19},
    {"Down", VK_DOWN, {}, 10, 20, 10, 21},
    {"ShiftStepsTwo", VK_RIGHT, {VK_SHIFT}, 10, 20, 12, 20},
    {"CtrlStepsFive", VK_DOWN, {VK_CONTROL}, 10, 20, 10, 25},
    {"CtrlShiftStepsTen", VK_RIGHT, {VK_CONTROL, VK_SHIFT}, 10, 20, 20, 20},
    {"LeftFromTheFirstColumn", VK_LEFT, {}, 0, 20, -1, 20},
    {"UpFromTheFirstRow", VK_UP, {}, 10, 0, 10, -1},
    {"RightFromTheLastColumn", VK_RIGHT, {}, -1, 20, 0, 20},
    {"DownFromTheLastRow", VK_DOWN, {}, 10, -1, 10, 0},
    {"LongStepLeftWrapsToTheEdge", VK_LEFT, {VK_CONTROL}, 2, 20, -1, 20},
    {"LongStepRightWrapsToTheEdge", VK_RIGHT, {VK_CONTROL}, -3, 20, 0, 20},
    {"LongStepUpWrapsToTheEdge", VK_UP, {VK_CONTROL, VK_SHIFT}, 10, 9, 10, -1},
    {"LongStepDownReachesTheLastRow", VK_DOWN, {VK_CONTROL}, 10, -6, 10, -1},
    {"OtherKey", 'A', {}, 10, 20, 10, 20},
    {"Tab", VK_TAB, {}, 10, 20, 10, 20},
    {"Delete", VK_DELETE, {}, 10, 20, 10, 20},
};

// Positions of the table count from the map's end when they are negative.
int32_t At(int32_t position, int32_t size) { return position < 0 ? size + position : position; }

class EditingTest : public EditorFixture {
 protected:
  // An item of 20 x 10 pixels.
  static void Add(int32_t x, int32_t y) { AddItem(PlainPicture(20, 10, 0x111111), x, y, 0); }

  // Presses every key of the table on a map and its offsets.
  void ExpectMapMoves(int32_t& x, int32_t& y, const ImageClass& map) {
    for (const MovingKey& test : kMapKeys) {
      x = At(test.x, map.width);
      y = At(test.y, map.height);
      doc.canvas.Fill(1);
      const HoldKeys keys(test.held);
      Key(test.key);
      EXPECT_EQ(At(test.newX, map.width), x) << test.name;
      EXPECT_EQ(At(test.newY, map.height), y) << test.name;
      EXPECT_NE(1U, CanvasPixel(0, 0)) << test.name << ": repainted whatever the key was";
    }
  }
};

TEST_F(EditingTest, KeysMoveTheWorldMapAndWrapToItsEdges) {
  ExpectMapMoves(doc.worldMapX, doc.worldMapY, doc.worldMap);
  EXPECT_EQ(232, doc.worldMap2xX);
  EXPECT_EQ(103, doc.worldMap2xY);
}

TEST_F(EditingTest, KeysMoveTheZoomedMapAndWrapToItsEdges) {
  Command(IDM_MOVE_LARGE_MAP);
  ExpectMapMoves(doc.worldMap2xX, doc.worldMap2xY, doc.worldMap2x);
  EXPECT_EQ(0, doc.worldMapX);
  EXPECT_EQ(0, doc.worldMapY);
}

struct BoxKey {
  const char* name;
  int key;
  std::vector<BYTE> held;
  int32_t from, to;
};

// 289 - 58 + 48 = 279 is the lowest place.
const BoxKey kBoxKeys[] = {
    {"Up", VK_UP, {}, 100, 99},
    {"Down", VK_DOWN, {}, 100, 101},
    {"UpToTheTop", VK_UP, {}, 57, 56},
    {"UpAtTheTop", VK_UP, {}, 56, 56},
    {"FastUpPastTheTop", VK_UP, {VK_CONTROL}, 60, 56},
    {"DownToTheBottom", VK_DOWN, {}, 278, 279},
    {"DownAtTheBottom", VK_DOWN, {}, 279, 279},
    {"FastDownPastTheBottom", VK_DOWN, {VK_CONTROL, VK_SHIFT}, 270, 279},
    {"Left", VK_LEFT, {}, 100, 100},
    {"Right", VK_RIGHT, {VK_CONTROL}, 100, 100},
};

TEST_F(EditingTest, TargetBoxMovesUpAndDownWithinItsLimits) {
  Command(IDM_MOVE_TARGET_BOX);
  for (const BoxKey& test : kBoxKeys) {
    doc.targetBoxY = test.from;
    const HoldKeys keys(test.held);
    Key(test.key);
    EXPECT_EQ(test.to, doc.targetBoxY) << test.name;
    EXPECT_EQ(232, doc.targetBoxX) << test.name;
  }
  EXPECT_EQ(0, doc.worldMapX);
  EXPECT_EQ(0, doc.worldMapY);
}

const MovingKey kItemKeys[] = {
    {"Left", VK_LEFT, {}, 100, 200, 99, 200},
    {"Right", VK_RIGHT, {VK_SHIFT}, 100, 200, 102, 200},
    {"Up", VK_UP, {VK_CONTROL}, 100, 200, 100, 195},
    {"Down", VK_DOWN, {VK_CONTROL, VK_SHIFT}, 100, 200, 100, 210},
    {"LeftPastTheEdge", VK_LEFT, {VK_CONTROL}, 3, 200, 0, 200},
    {"UpPastTheEdge", VK_UP, {VK_CONTROL}, 100, 3, 100, 0},
    {"RightToTheEdge", VK_RIGHT, {}, 778, 200, 779, 200},
    {"RightPastTheEdge", VK_RIGHT, {VK_CONTROL}, 778, 200, 779, 200},
    {"DownToTheEdge", VK_DOWN, {}, 100, 508, 100, 509},
    {"DownPastTheEdge", VK_DOWN, {VK_CONTROL}, 100, 508, 100, 509},
};

TEST_F(EditingTest, KeysMoveTheSelectedItemInsteadOfTheMap) {
  Add(0, 0);
  SelectItem(0);
  for (const MovingKey& test : kItemKeys) {
    doc.items.At(0).x = test.x;
    doc.items.At(0).y = test.y;
    const HoldKeys keys(test.held);
    Key(test.key);
    EXPECT_EQ(test.newX, ItemX(0)) << test.name;
    EXPECT_EQ(test.newY, ItemY(0)) << test.name;
    EXPECT_EQ(0xEEEEEEU, CanvasPixel(test.newX, test.newY)) << test.name << " is shown at once";
  }
  EXPECT_EQ(0, doc.worldMapX);
  EXPECT_EQ(0, doc.worldMapY);
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
  Key(VK_DELETE);
  EXPECT_EQ(2, doc.items.Count());
  EXPECT_EQ(-1, doc.selectedItem);
  SelectItem(0);
  Key(VK_ESCAPE);
  EXPECT_EQ(-1, doc.selectedItem);
  EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
  Key(VK_RIGHT);
  EXPECT_EQ(1, doc.worldMapX) << "the arrow keys are the map's again";
}

TEST_F(EditingTest, OtherKeysChangeNothingWhileAnItemIsSelected) {
  Add(100, 400);
  SelectItem(0);
  doc.canvas.Fill(1);
  for (const int key : {int{'A'}, VK_SHIFT, VK_CONTROL, VK_RETURN, VK_SPACE, VK_HOME}) Key(key);
  EXPECT_EQ(1U, CanvasPixel(0, 0)) << "no repaint";
  EXPECT_EQ(100, ItemX(0));
  EXPECT_EQ(0, doc.selectedItem);
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
}

TEST_F(EditingTest, DragStopsAtThePicturesEdgesAndKeysGoOneRowFurther) {
  Add(100, 200);
  Drag(119, 209, -3000, -500);
  EXPECT_EQ(0, ItemX(0));
  EXPECT_EQ(0, ItemY(0));
  doc.items.At(0).x = 100;
  doc.items.At(0).y = 200;
  Drag(119, 209, 119, 2000);
  EXPECT_EQ(508, ItemY(0));
  Key(VK_DOWN);
  EXPECT_EQ(509, ItemY(0));
  Key(VK_DOWN);
  EXPECT_EQ(509, ItemY(0));
}

TEST_F(EditingTest, ClickBesideEveryItemUnselects) {
  Add(100, 200);
  ClickCanvas(105, 205);
  EXPECT_EQ(0, doc.selectedItem);
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
  ClickCanvas(50, 50);
  EXPECT_EQ(-1, doc.selectedItem);
  EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
  EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(EditingTest, SecondPressOfADoubleClickDoesNothing) {
  Add(100, 200);
  SendMessageA(doc.viewWindow, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(105, 205));
  EXPECT_EQ(-1, doc.selectedItem);
  EXPECT_EQ(0, doc.dragging);
}

TEST_F(EditingTest, LostCaptureEndsTheDrag) {
  Add(100, 200);
  PressCanvas(105, 205);
  ReleaseCapture();
  EXPECT_EQ(0, doc.dragging);
  EXPECT_EQ(-1, doc.draggedItem);
  MoveCanvas(300, 300);
  EXPECT_EQ(100, ItemX(0));
  EXPECT_EQ(0, doc.selectedItem);
}

TEST_F(EditingTest, DeletingDuringADragMovesNoOtherItem) {
  Add(100, 200);
  Add(300, 300);
  PressCanvas(105, 205);
  Key(VK_DELETE);
  MoveCanvas(200, 250);
  EXPECT_EQ(1, doc.items.Count());
  EXPECT_EQ(300, ItemX(0));
  ReleaseCanvas(200, 250);
  EXPECT_EQ(nullptr, GetCapture());
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
  EXPECT_EQ(-1, doc.selectedItem);
  Click(doc.viewWindow, 150, 340);
  EXPECT_EQ(0, doc.selectedItem);
}

}  // namespace
