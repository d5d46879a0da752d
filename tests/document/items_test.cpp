#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "support/editor_fixture.h"

namespace {

using Order = std::vector<int32_t>;

Order Positions(const ItemListClass& list) {
  Order positions;
  for (int32_t i = 0; i < list.Count(); ++i) positions.push_back(list.At(i).x);
  return positions;
}

TEST(ItemListTest, KeepsCopiesInTheOrderOfAddingAndADummyOutside) {
  ItemListClass list;
  ItemClass item;
  item.image = PlainPicture(3, 2, 7);
  for (item.x = 1; item.x <= 4; ++item.x) list.Add(item);
  list.At(1).image.Fill(9);
  EXPECT_EQ(7U, list.At(0).image.ReadPixel(2, 1));
  EXPECT_EQ(9U, list.At(1).image.ReadPixel(2, 1));
  for (const int32_t index : {-1, 4, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(&list.dummy, &list.At(index)) << index;
    list.Remove(index);
  }
  EXPECT_EQ(Order({1, 2, 3, 4}), Positions(list));
  const std::pair<int32_t, Order> removals[] = {{1, {1, 3, 4}}, {2, {1, 3}}, {0, {3}}, {0, {}}};
  for (const auto& [index, left] : removals) {
    list.Remove(index);
    EXPECT_EQ(left, Positions(list));
  }
}

// Items of 20 x 10 pixels.
class ItemsTest : public EditorFixture {
 protected:
  static void Add(int32_t x, int32_t y) { AddItem(PlainPicture(20, 10, 0x111111), x, y, 0xFF0000); }

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
  EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
  SelectItem(2);
  EXPECT_EQ(std::pair(Order({0, 0, 1}), 2), Selection());
  SelectItem(1);
  EXPECT_EQ(std::pair(Order({0, 1, 0}), 1), Selection());
  SelectNextItem();
  SelectNextItem();
  EXPECT_EQ(std::pair(Order({1, 0, 0}), 0), Selection());
  SelectItem(0);
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
  EXPECT_EQ(0xEEEEEEU, CanvasPixel(0, 400)) << "shown at once";
  Command(IDM_UNSELECT_ITEM);
  EXPECT_EQ(std::pair(Order({0, 0, 0}), -1), Selection());
  EXPECT_EQ(0x111111U, CanvasPixel(0, 400)) << "shown at once";
}

TEST_F(ItemsTest, DeleteRemovesTheSelectedItemOnly) {
  Command(IDM_DELETE_ITEM);
  for (int i = 0; i < 3; ++i) Add(100 * i, 400);
  SelectItem(5);
  for (int i = 0; i < 2; ++i) Command(IDM_DELETE_ITEM);
  EXPECT_EQ(3, doc.items.Count()) << "nothing is selected";
  SelectItem(1);
  Command(IDM_DELETE_ITEM);
  EXPECT_EQ(Order({0, 200}), Positions(doc.items));
  EXPECT_EQ(std::pair(Order({0, 0}), -1), Selection());
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM)) << "items remain";
  EXPECT_EQ(WorldMapPixel(Allied, 100, 400), CanvasPixel(100, 400)) << "shown at once";
  for (int i = 0; i < 2; ++i) {
    SelectItem(0);
    Command(IDM_DELETE_ITEM);
  }
  EXPECT_EQ(0, doc.items.Count());
  EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_ITEM));
}

TEST_F(ItemsTest, HitTestReachesOnePixelBeyondAndTakesTheFirst) {
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

TEST_F(ItemsTest, MoveStopsAtTheDragLimits) {
  Add(100, 200);
  AddItem(PlainPicture(801, 521, 1), 0, 0, 0);
  const struct {
    const char* name;
    int32_t item, x, y, itemX, itemY;
  } moves[] = {{"inside", 0, 5, 6, 5, 6},
               {"left and up", 0, -7, -8, 0, 0},
               {"last right", 0, 779, 6, 779, 6},
               {"past the right", 0, 780, 6, 779, 6},
               {"last row", 0, 5, 509, 5, 509},
               {"past the bottom", 0, 5, 510, 5, 508},
               {"larger than the picture", 1, 5, 5, -2, -3},
               {"no item", 2, 5, 5, 0, 0},
               {"nothing", -1, 5, 5, 0, 0}};
  for (const auto& move : moves) {
    MoveItemTo(move.item, move.x, move.y);
    EXPECT_EQ(move.itemX, ItemX(move.item)) << move.name;
    EXPECT_EQ(move.itemY, ItemY(move.item)) << move.name;
  }
}

}  // namespace
