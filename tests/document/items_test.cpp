#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "support/editor_fixture.h"

namespace {

ItemClass ItemAt(int32_t x, uint32_t colour) {
  ItemClass item;
  item.x = x;
  item.colour = colour;
  item.image = PlainPicture(3, 2, colour);
  return item;
}

std::vector<int32_t> Positions(const ItemListClass& list) {
  std::vector<int32_t> positions;
  for (int32_t i = 0; i < list.Count(); ++i) positions.push_back(list.At(i).x);
  return positions;
}

using Order = std::vector<int32_t>;

TEST(ItemListTest, KeepsTheOrderOfAdding) {
  ItemListClass list;
  EXPECT_EQ(0, list.Count());
  for (int32_t x = 1; x <= 4; ++x) list.Add(ItemAt(x, 7));
  EXPECT_EQ(Order({1, 2, 3, 4}), Positions(list));
  list.Remove(1);
  EXPECT_EQ(Order({1, 3, 4}), Positions(list));
  list.Remove(2);
  list.Remove(0);
  EXPECT_EQ(Order({3}), Positions(list));
  list.Remove(0);
  EXPECT_EQ(0, list.Count());
}

TEST(ItemListTest, IndexOutsideReachesTheDummy) {
  ItemListClass list;
  list.At(0).x = 55;
  EXPECT_EQ(55, list.dummy.x);
  list.Add(ItemAt(1, 7));
  for (const int32_t index : {-1, 1, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(&list.dummy, &list.At(index)) << index;
    list.Remove(index);
  }
  EXPECT_EQ(Order({1}), Positions(list));
}

TEST(ItemListTest, EveryItemHasItsOwnPicture) {
  ItemListClass list;
  ItemClass item = ItemAt(1, 7);
  list.Add(item);
  item.image.Fill(8);
  list.Add(list.At(0));
  list.At(0).image.Fill(9);
  EXPECT_EQ(9U, list.At(0).image.ReadPixel(2, 1));
  EXPECT_EQ(7U, list.At(1).image.ReadPixel(2, 1));
  EXPECT_EQ(8U, item.image.ReadPixel(2, 1));
}

// Items of 20 x 10 pixels.
class ItemsTest : public EditorFixture {
 protected:
  void Add(int32_t x, int32_t y) { AddItem(PlainPicture(20, 10, 0x111111), x, y, 0xFF0000); }

  // The selected marks of all items, and the index that the document holds.
  static std::pair<Order, int32_t> Selection() {
    Order marks;
    for (const ItemClass& item : doc.items.elements) {
      marks.push_back(static_cast<int32_t>(item.selected));
    }
    return {marks, doc.selectedItem};
  }
};

TEST_F(ItemsTest, SelectMarksOneItemAndEnablesDelete) {
  for (int i = 0; i < 3; ++i) Add(100 * i, 400);
  Command(IDM_UNSELECT_ITEM);
  SelectItem(2);
  EXPECT_EQ(std::pair(Order({0, 0, 1}), 2), Selection());
  SelectItem(0);
  EXPECT_EQ(std::pair(Order({1, 0, 0}), 0), Selection());
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
  EXPECT_EQ(0xEEEEEEU, CanvasPixel(0, 400)) << "shown at once";
  UnselectItems();
  EXPECT_EQ(std::pair(Order({0, 0, 0}), -1), Selection());
  EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
  EXPECT_EQ(0x111111U, CanvasPixel(0, 400)) << "shown at once";
}

TEST_F(ItemsTest, SelectNextCyclesThroughTheList) {
  for (int i = 0; i < 3; ++i) Add(100 * i, 400);
  SelectNextItem();
  EXPECT_EQ(std::pair(Order({1, 0, 0}), 0), Selection());
  SelectNextItem();
  EXPECT_EQ(std::pair(Order({0, 1, 0}), 1), Selection());
  SelectNextItem();
  SelectNextItem();
  EXPECT_EQ(std::pair(Order({1, 0, 0}), 0), Selection());
}

TEST_F(ItemsTest, SelectNextOnAnEmptyListMarksTheDummy) {
  SelectNextItem();
  EXPECT_EQ(0, doc.selectedItem);
  EXPECT_EQ(1U, doc.items.dummy.selected);
  EXPECT_EQ(0, doc.items.Count());
}

TEST_F(ItemsTest, DeleteRemovesTheSelectedItemOnly) {
  DeleteSelectedItem();
  for (int i = 0; i < 3; ++i) Add(100 * i, 400);
  DeleteSelectedItem();
  EXPECT_EQ(3, doc.items.Count()) << "nothing is selected";
  SelectItem(1);
  Command(IDM_DELETE_ITEM);
  EXPECT_EQ(Order({0, 200}), Positions(doc.items));
  EXPECT_EQ(std::pair(Order({0, 0}), -1), Selection());
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM)) << "items remain";
  EXPECT_EQ(WorldMapPixel(Allied, 100, 400), CanvasPixel(100, 400)) << "shown at once";
  SelectItem(0);
  Command(IDM_DELETE_ITEM);
  SelectItem(0);
  Command(IDM_DELETE_ITEM);
  EXPECT_EQ(0, doc.items.Count());
  EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
}

TEST_F(ItemsTest, StaleSelectionDeletesNothing) {
  Add(10, 400);
  SelectItem(5);
  EXPECT_EQ(std::pair(Order({0}), 5), Selection());
  DeleteSelectedItem();
  EXPECT_EQ(1, doc.items.Count());
  EXPECT_EQ(-1, doc.selectedItem);
}

struct Point {
  const char* name;
  int32_t x, y, hit;
};

TEST_F(ItemsTest, HitTestReachesOnePixelBeyondAndTakesTheFirst) {
  EXPECT_EQ(-1, HitTest(0, 0));
  Add(100, 200);
  Add(300, 300);
  Add(110, 205);
  for (const Point& point :
       {Point{"Corner", 100, 200, 0}, Point{"LeftOf", 99, 200, -1}, Point{"Above", 100, 199, -1},
        Point{"RightColumn", 120, 200, 0}, Point{"BottomRow", 100, 210, 0},
        Point{"BeyondTheCorner", 120, 210, 0}, Point{"FurtherRight", 121, 204, -1},
        Point{"FurtherDown", 100, 211, -1}, Point{"OnBoth", 115, 207, 0},
        Point{"OnTheThird", 125, 212, 2}, Point{"OnTheSecond", 300, 300, 1}}) {
    EXPECT_EQ(point.hit, HitTest(point.x, point.y)) << point.name;
  }
}

struct Move {
  const char* name;
  int32_t x, y, itemX, itemY;
};

TEST_F(ItemsTest, MoveStopsAtTheDragLimits) {
  Add(100, 200);
  for (const Move& move :
       {Move{"Inside", 5, 6, 5, 6}, Move{"LeftAndUp", -7, -8, 0, 0},
        Move{"LastRight", 779, 6, 779, 6}, Move{"PastTheRight", 780, 6, 779, 6},
        Move{"LastBottom", 5, 508, 5, 508}, Move{"LastRow", 5, 509, 5, 509},
        Move{"PastTheBottom", 5, 510, 5, 508}, Move{"FarAway", 30000, 30000, 779, 508}}) {
    MoveItemTo(0, move.x, move.y);
    EXPECT_EQ(move.itemX, ItemX(0)) << move.name;
    EXPECT_EQ(move.itemY, ItemY(0)) << move.name;
  }
}

TEST_F(ItemsTest, ItemLargerThanThePictureEndsAtANegativePosition) {
  AddItem(PlainPicture(801, 521, 1), 0, 0, 0);
  MoveItemTo(0, 5, 5);
  EXPECT_EQ(-2, ItemX(0));
  EXPECT_EQ(-3, ItemY(0));
}

TEST_F(ItemsTest, IndexOutsideTheListIsHarmless) {
  Add(100, 200);
  for (const int32_t index : {-1, 1}) {
    MoveItemTo(index, 5, 5);
    EXPECT_EQ(0, ItemX(index));
    EXPECT_EQ(0, ItemY(index));
  }
  EXPECT_EQ(100, ItemX(0));
}

}  // namespace
