#include "dialogs/select_item.h"

#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Select item";
using Lines = std::vector<std::string>;

using SelectItemTest = EditorFixture;

TEST_F(SelectItemTest, LineSelectsItsItemAtOnce) {
  const auto add = [](int32_t x, int32_t y) { AddItem(PlainPicture(6, 4, 0x102030), x, y, 0); };
  WithDialog(kCaption, IDM_SELECT_ITEM, [](HWND dialog) {
    EXPECT_EQ(GetDlgItem(dialog, IDC_SELECT_LIST), GetFocus());
    Click(GetFocus(), 5, 5);
  });
  EXPECT_EQ(-1, doc.selectedItem) << "there is nothing to select";
  add(799, 45);
  add(420, 200);
  add(-3, 1000);
  WithDialog(kCaption, IDM_SELECT_ITEM, [this](HWND dialog) {
    EXPECT_EQ(Lines({"00 : x = 799 y = 045", "01 : x = 420 y = 200", "02 : x = -03 y = 1000"}),
              Items(dialog, IDC_SELECT_LIST));
    EXPECT_EQ(-1, Selected(dialog, IDC_SELECT_LIST));
    Choose(dialog, IDC_SELECT_LIST, 1);
    EXPECT_EQ(1, doc.selectedItem);
    EXPECT_EQ(0xCFDFEFU, CanvasPixel(420, 200)) << "the selection frame shows";
    PressKey(GetFocus(), VK_RETURN);
    EXPECT_TRUE(IsWindowVisible(dialog)) << "Enter leaves the dialog open";
  });
  for (int i = 3; i <= 100; ++i) add(i, 0);
  SelectItem(100);
  WithDialog(kCaption, IDM_SELECT_ITEM, [](HWND dialog) {
    EXPECT_EQ(11, Selected(dialog, IDC_SELECT_LIST)) << "lines are sorted by their text";
    Choose(dialog, IDC_SELECT_LIST, 12);
    EXPECT_EQ(11, doc.selectedItem);
    Choose(dialog, IDC_SELECT_LIST, 11);
    EXPECT_EQ(100, doc.selectedItem);
  });
}

}  // namespace
