#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "support/editor_fixture.h"

namespace {

using Order = std::vector<int32_t>;

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

}  // namespace
