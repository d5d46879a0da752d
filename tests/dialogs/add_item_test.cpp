#include "dialogs/add_item.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"
#include "support/surface_text.h"

namespace {

constexpr char kCaption[] = "Add new item";
using Lines = std::vector<std::string>;

const Legend& ItemLegend() {
  static const Legend legend = {{'K', 0x0000FF}, {'Y', 0xFFFF00}, {'n', 0x0000FE}, {'g', 0x00C000},
                                {'A', 0x6150FF}, {'S', 0xCE0000}, {'U', 0xCE1EFA}};
  return legend;
}

class AddItemTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    ImageClass picture;
    Draw(picture, "KYn|gYK|KKK|KKK|KKK", ItemLegend());
    WritePng("Templates\\mark.png", picture);
  }

  // The preview around the upper rows of mark.png in its middle.
  static std::string Preview(HWND dialog) {
    const HWND control = GetDlgItem(dialog, IDC_ADD_PREVIEW);
    const int left = (ClientSize(control).cx - 3) / 2 - 1;
    const int top = (ClientSize(control).cy - 5) / 2 - 1;
    Legend legend = ItemLegend();
    legend['.'] = FaceColour();
    const auto pixel = [=](int x, int y) { return WindowPixel(control, left + x, top + y); };
    return Drawn(MakePicture(5, 4, pixel), legend);
  }
};

TEST_F(AddItemTest, ListsTheEntriesInReverse) {
  // A value ends after 255 characters, which leaves the last file's name without its last letter.
  const auto entry = [](char letter, size_t length) {
    return letter + ("=" + std::string(length - 9, letter)) + ",mark.png\n";
  };
  WriteSettings("[SymbolsList]\n1=B,x\n2=Mark, mark.png\n3=bad\n4=A,z\n4=A,z\n" + entry('c', 255) +
                entry('d', 256));
  WithDialog(kCaption, IDM_ADD_ITEM, [](HWND dialog) {
    EXPECT_EQ(Lines({std::string(247, 'd'), std::string(246, 'c'), "A", "A", "Mark", "B"}),
              Items(dialog, IDC_ADD_LIST));
    EXPECT_EQ(GetDlgItem(dialog, IDC_ADD_LIST), GetFocus());
    for (const auto& [line, found] : {std::pair(1, 1), std::pair(0, 0), std::pair(4, 0)}) {
      Choose(dialog, IDC_ADD_LIST, line);
      EXPECT_EQ(found, doc.itemPreview.valid) << line << ": spaces belong to a file's name";
    }
  });
}

TEST_F(AddItemTest, PreviewFollowsListAndColourAndOkAddsWhatItShows) {
  enum { kLost, kMark };  // the list shows the last entry first
  WriteSettings("[SymbolsList]\n1=Mark,mark.png\n2=Lost,lost.png\n");
  WithDialog(kCaption, IDM_ADD_ITEM, [](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_ADD_ALLIED));
    Press(dialog, IDC_ADD_ALLIED);
    EXPECT_EQ(0, doc.itemPreview.valid) << "nothing is selected, nothing is shown";
    Choose(dialog, IDC_ADD_LIST, kMark);
    EXPECT_EQ(Rows(".....|..An.|.gA..|....."), Preview(dialog));
    Press(dialog, IDC_ADD_YURI);
    EXPECT_FALSE(IsChecked(dialog, IDC_ADD_ALLIED));
    EXPECT_EQ(Rows(".....|..Un.|.gU..|....."), Preview(dialog));
    Choose(dialog, IDC_ADD_LIST, kLost);
    EXPECT_EQ(Rows(".....|.....|.....|....."), Preview(dialog));
    Press(dialog, IDC_ADD_SOVIET);
    Press(dialog, IDOK);
  });
  WithDialog(kCaption, IDM_ADD_ITEM, [](HWND dialog) { Press(dialog, IDOK); });
  EXPECT_EQ(0, doc.items.Count()) << "OK adds nothing that can't be read or is not selected";
  EnableMenuItem(GetMenu(doc.mainWindow), IDM_DELETE_ITEM, MF_BYCOMMAND | MF_GRAYED);
  WithDialog(kCaption, IDM_ADD_ITEM, [](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_ADD_SOVIET)) << "the colour survives, the selection not";
    EXPECT_EQ(-1, Selected(dialog, IDC_ADD_LIST));
    Choose(dialog, IDC_ADD_LIST, kMark);
    PressKey(GetFocus(), VK_RETURN);
  });
  EXPECT_EQ(0, doc.itemPreview.valid) << "released between openings";
  ASSERT_EQ(1, doc.items.Count());
  const ItemClass& item = doc.items.At(0);
  EXPECT_EQ(Rows("KSn|gSK|KKK|KKK|KKK"), Drawn(item.image, ItemLegend()));
  EXPECT_EQ(std::pair(100, 100), std::pair(item.x, item.y));
  EXPECT_EQ(0xCE0000U, item.colour);
  EXPECT_EQ(-1, doc.selectedItem);
  EXPECT_EQ(0xCE0000U, CanvasPixel(101, 100)) << "the view shows it at once";
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
}

}  // namespace
