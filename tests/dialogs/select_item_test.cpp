#include "dialogs/select_item.h"

#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Select item";
using Lines = std::vector<std::string>;

using SelectItemTest = EditorFixture;

void AddItemAt(int32_t x, int32_t y) { AddItem(PlainPicture(6, 4, 0x102030), x, y, 0); }

TEST_F(SelectItemTest, LineSelectsItsItemAtOnce) {
  WithDialog(kCaption, IDM_SELECT_ITEM, [](HWND dialog) {
    EXPECT_EQ(GetDlgItem(dialog, IDC_SELECT_LIST), GetFocus());
    Click(GetFocus(), 5, 5);
    PressKey(GetFocus(), VK_DOWN);
  });
  EXPECT_EQ(-1, doc.selectedItem) << "there is nothing to select";
  AddItemAt(5, 0);
  AddItemAt(799, 45);
  AddItemAt(420, 200);
  AddItemAt(-3, 1000);
  WithDialog(kCaption, IDM_SELECT_ITEM, [this](HWND dialog) {
    EXPECT_EQ(Lines({"00 : x = 005 y = 000", "01 : x = 799 y = 045", "02 : x = 420 y = 200",
                     "03 : x = -03 y = 1000"}),
              Items(dialog, IDC_SELECT_LIST));
    EXPECT_EQ(-1, Selected(dialog, IDC_SELECT_LIST));
    Choose(dialog, IDC_SELECT_LIST, 2);
    EXPECT_EQ(2, doc.selectedItem);
    EXPECT_EQ(0xCFDFEFU, CanvasPixel(420, 200)) << "the selection frame shows";
    EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
    Choose(dialog, IDC_SELECT_LIST, 1);
    EXPECT_EQ(1, doc.selectedItem);
    EXPECT_EQ(0x102030U, CanvasPixel(420, 200));
    PressKey(GetFocus(), VK_RETURN);
    EXPECT_TRUE(IsWindowVisible(dialog)) << "Enter leaves the dialog open";
  });
  EXPECT_EQ(1, doc.selectedItem);
}

TEST_F(SelectItemTest, HundredAndFirstItemIsSelectedByItsNumber) {
  for (int i = 0; i <= 100; ++i) AddItemAt(i, 0);
  SelectItem(100);
  WithDialog(kCaption, IDM_SELECT_ITEM, [](HWND dialog) {
    const Lines lines = Items(dialog, IDC_SELECT_LIST);
    ASSERT_EQ(101U, lines.size());
    EXPECT_EQ("100 : x = 100 y = 000", lines[11]);
    EXPECT_EQ(11, Selected(dialog, IDC_SELECT_LIST));
    Choose(dialog, IDC_SELECT_LIST, 12);
    EXPECT_EQ(11, doc.selectedItem);
    Choose(dialog, IDC_SELECT_LIST, 11);
    EXPECT_EQ(100, doc.selectedItem);
  });
}

}  // namespace
