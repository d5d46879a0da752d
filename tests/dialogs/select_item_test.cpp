#include "dialogs/select_item.h"

#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Select item";
using Lines = std::vector<std::string>;

class SelectItemTest : public EditorFixture {
 protected:
  // Opens the dialog and plays the step, which closes it.
  void Open(const std::function<void(HWND)>& step) {
    user.When(kCaption, step);
    Command(IDM_SELECT_ITEM);
  }
  void AddItemAt(int32_t x, int32_t y) { AddItem(PlainPicture(6, 4, 0x102030), x, y, 0); }
};

TEST_F(SelectItemTest, EmptyListSelectsNothing) {
  Open([](HWND dialog) {
    EXPECT_EQ(Lines(), Items(dialog, IDC_SELECT_LIST));
    EXPECT_EQ(GetDlgItem(dialog, IDC_SELECT_LIST), GetFocus());
    Click(GetDlgItem(dialog, IDC_SELECT_LIST), 5, 5);
    PressKey(GetFocus(), VK_DOWN);
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(-1, doc.selectedItem);
}

TEST_F(SelectItemTest, ShowsNumberAndPositionOfEveryItem) {
  AddItemAt(5, 0);
  AddItemAt(799, 45);
  AddItemAt(-3, 1000);
  Open([](HWND dialog) {
    EXPECT_EQ(Lines({"00 : x = 005 y = 000", "01 : x = 799 y = 045", "02 : x = -03 y = 1000"}),
              Items(dialog, IDC_SELECT_LIST));
    EXPECT_EQ(-1, Selected(dialog, IDC_SELECT_LIST));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(SelectItemTest, OpensWithTheSelectedItem) {
  for (int i = 0; i < 3; ++i) AddItemAt(10 * i, 0);
  SelectItem(1);
  Open([](HWND dialog) {
    EXPECT_EQ(1, Selected(dialog, IDC_SELECT_LIST));
    PressKey(GetFocus(), VK_ESCAPE);
  });
  EXPECT_EQ(1, doc.selectedItem) << "closing keeps the selection";
}

TEST_F(SelectItemTest, LineSelectsItsItemAtOnce) {
  AddItemAt(400, 200);
  AddItemAt(420, 200);
  UnselectItems();
  Open([this](HWND dialog) {
    const uint32_t before = CanvasPixel(420, 200);
    Choose(dialog, IDC_SELECT_LIST, 1);
    EXPECT_EQ(1, doc.selectedItem);
    EXPECT_NE(before, CanvasPixel(420, 200)) << "the selection frame shows";
    EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
    Choose(dialog, IDC_SELECT_LIST, 0);
    EXPECT_EQ(0, doc.selectedItem);
    EXPECT_EQ(before, CanvasPixel(420, 200));
    PressKey(GetFocus(), VK_RETURN);
    EXPECT_TRUE(IsWindow(dialog)) << "Enter leaves the dialog open";
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(0, doc.selectedItem);
}

TEST_F(SelectItemTest, HundredAndFirstItemIsSelectedByItsNumber) {
  for (int i = 0; i <= 100; ++i) AddItemAt(i, 0);
  SelectItem(100);
  Open([](HWND dialog) {
    const Lines lines = Items(dialog, IDC_SELECT_LIST);
    ASSERT_EQ(101U, lines.size());
    EXPECT_EQ("100 : x = 100 y = 000", lines[11]);
    EXPECT_EQ(11, Selected(dialog, IDC_SELECT_LIST));
    Choose(dialog, IDC_SELECT_LIST, 12);
    EXPECT_EQ(11, doc.selectedItem);
    Choose(dialog, IDC_SELECT_LIST, 11);
    EXPECT_EQ(100, doc.selectedItem);
    SendMessageA(dialog, WM_CLOSE, 0, 0);
  });
}

}  // namespace
