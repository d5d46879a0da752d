#include "dialogs/add_item.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "controls/item_preview.h"
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
    Draw(picture, "KYn|gYK", ItemLegend());
    WritePng("Templates\\mark.png", picture);
    WriteSettings("[SymbolsList]\n1=Mark,mark.png\n2=Lost,lost.png\n");
  }

  // Opens the dialog and plays the step, which closes it.
  void Open(const std::function<void(HWND)>& step) {
    user.When(kCaption, step);
    Command(IDM_ADD_ITEM);
  }

  // What a step shows of the preview, around the picture of mark.png in its middle.
  static std::string Preview(HWND dialog) {
    const HWND control = GetDlgItem(dialog, IDC_ADD_PREVIEW);
    const SIZE size = ClientSize(control);
    ImageClass shown;
    shown.Create(5, 4);
    for (int i = 0; i < 20; ++i) {
      const int x = (size.cx - 3) / 2 - 1 + i % 5;
      shown.PutPixel(i % 5, i / 5, WindowPixel(control, x, (size.cy - 2) / 2 - 1 + i / 5));
    }
    Legend legend = ItemLegend();
    legend['.'] = FaceColour();
    return Drawn(shown, legend);
  }
};

const char kNothing[] = ".....\n.....\n.....\n.....\n";

TEST_F(AddItemTest, ListsTheEntriesInReverse) {
  WriteSettings("[SymbolsList]\n1=B,x\n2=C,y\n3=bad\n4=A,z\n4=A,z\n");
  Open([](HWND dialog) {
    EXPECT_EQ(Lines({"A", "A", "C", "B"}), Items(dialog, IDC_ADD_LIST));
    EXPECT_EQ(-1, Selected(dialog, IDC_ADD_LIST));
    EXPECT_EQ(GetDlgItem(dialog, IDC_ADD_LIST), GetFocus());
    EXPECT_TRUE(IsChecked(dialog, IDC_ADD_ALLIED));
    SendMessageA(dialog, WM_CLOSE, 0, 0);
  });
}

TEST_F(AddItemTest, PreviewFollowsListAndColour) {
  Open([](HWND dialog) {
    EXPECT_EQ(0, doc.itemPreview.valid);
    Choose(dialog, IDC_ADD_LIST, 1);
    EXPECT_EQ(Rows(".....|..An.|.gA..|....."), Preview(dialog));
    Press(dialog, IDC_ADD_SOVIET);
    EXPECT_EQ(Rows(".....|..Sn.|.gS..|....."), Preview(dialog));
    Press(dialog, IDC_ADD_YURI);
    EXPECT_EQ(Rows(".....|..Un.|.gU..|....."), Preview(dialog));
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(0, doc.itemPreview.valid) << "released between openings";
  EXPECT_EQ(0, doc.items.Count());
}

TEST_F(AddItemTest, UnreadablePictureEmptiesThePreview) {
  Open([](HWND dialog) {
    Choose(dialog, IDC_ADD_LIST, 1);
    EXPECT_NE(kNothing, Preview(dialog));
    Choose(dialog, IDC_ADD_LIST, 0);
    EXPECT_EQ(0, doc.itemPreview.valid);
    EXPECT_EQ(kNothing, Preview(dialog));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(0, doc.items.Count()) << "OK adds nothing that can't be read";
}

TEST_F(AddItemTest, PictureLargerThanThePreviewIsClippedAroundItsMiddle) {
  WritePng("Templates\\mark.png", MakePicture(601, 401, [](int32_t x, int32_t y) {
             return x == 300 && y == 200 ? 0xFFFF00U : 0x00C000U;
           }));
  Open([](HWND dialog) {
    Choose(dialog, IDC_ADD_LIST, 1);
    const HWND control = GetDlgItem(dialog, IDC_ADD_PREVIEW);
    const SIZE size = ClientSize(control);
    const int left = (size.cx - 601) / 2, top = (size.cy - 401) / 2;
    EXPECT_EQ(0x6150FFU, WindowPixel(control, left + 300, top + 200));
    EXPECT_EQ(0x00C000U, WindowPixel(control, 0, 0));
    EXPECT_EQ(0x00C000U, WindowPixel(control, size.cx - 1, size.cy - 1));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AddItemTest, OkAddsTheTintedPicture) {
  EnableMenuItem(GetMenu(doc.mainWindow), IDM_DELETE_ITEM, MF_BYCOMMAND | MF_GRAYED);
  Open([](HWND dialog) {
    Choose(dialog, IDC_ADD_LIST, 1);
    Press(dialog, IDC_ADD_SOVIET);
    PressKey(GetFocus(), VK_RETURN);
  });
  ASSERT_EQ(1, doc.items.Count());
  const ItemClass& item = doc.items.At(0);
  EXPECT_EQ(Rows("KSn|gSK"), Drawn(item.image, ItemLegend()));
  EXPECT_EQ(100, item.x);
  EXPECT_EQ(100, item.y);
  EXPECT_EQ(0xCE0000U, item.colour);
  EXPECT_EQ(0U, item.selected);
  EXPECT_EQ(-1, doc.selectedItem);
  EXPECT_EQ(0xCE0000U, CanvasPixel(101, 100)) << "the view shows it at once";
  EXPECT_TRUE(IsCommandEnabled(IDM_DELETE_ITEM));
}

TEST_F(AddItemTest, ColourSurvivesToTheNextOpeningButNotTheSelection) {
  Open([](HWND dialog) {
    Press(dialog, IDC_ADD_YURI);
    EXPECT_EQ(0, doc.itemPreview.valid) << "nothing is selected, nothing is shown";
    Press(dialog, IDOK);
  });
  EXPECT_EQ(2, doc.itemColour);
  EXPECT_EQ(0, doc.items.Count()) << "OK with nothing selected adds nothing";
  Open([](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_ADD_YURI));
    EXPECT_FALSE(IsChecked(dialog, IDC_ADD_ALLIED));
    EXPECT_EQ(-1, Selected(dialog, IDC_ADD_LIST));
    PressKey(GetFocus(), VK_ESCAPE);
  });
}

TEST_F(AddItemTest, SpacesBelongToTheFileName) {
  WriteSettings("[SymbolsList]\n1=Mark, mark.png\n");
  Open([](HWND dialog) {
    Choose(dialog, IDC_ADD_LIST, 0);
    EXPECT_EQ(0, doc.itemPreview.valid);
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AddItemTest, ValuesAreCutAfter255Characters) {
  const auto entry = [](char letter, size_t length) {
    return letter + ("=" + std::string(length - 9, letter)) + ",mark.png\n";
  };
  WriteSettings("[SymbolsList]\n" + entry('a', 255) + entry('b', 256) + entry('c', 400));
  Open([](HWND dialog) {
    EXPECT_EQ(Lines({std::string(247, 'b'), std::string(246, 'a')}), Items(dialog, IDC_ADD_LIST));
    Choose(dialog, IDC_ADD_LIST, 1);
    EXPECT_EQ(1, doc.itemPreview.valid);
    Choose(dialog, IDC_ADD_LIST, 0);
    EXPECT_EQ(0, doc.itemPreview.valid) << "the file's name has lost a letter";
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AddItemTest, DialogWithoutSettingsStaysOpenAndEmpty) {
  const struct {
    const char* text;  // of Settings.ini, null for no file
    const char* message;
  } cases[] = {
      {"[Symbolslist]\n1=a,b\n", "Error: File Settings.ini invalid!"},
      {nullptr, "Error: Can't find Settings.ini file in application directory!"},
  };
  for (const auto& test : cases) {
    std::filesystem::remove(File("Settings.ini"));
    if (test.text) WriteSettings(test.text);
    user.Answer("Error", test.message, MB_ICONHAND, IDOK);
    Open([](HWND dialog) {
      EXPECT_EQ(Lines(), Items(dialog, IDC_ADD_LIST));
      for (const int id : {IDC_ADD_ALLIED, IDC_ADD_SOVIET, IDC_ADD_YURI}) {
        EXPECT_FALSE(IsChecked(dialog, id));
      }
      Press(dialog, IDOK);
    });
    EXPECT_EQ(0, doc.items.Count());
    EXPECT_EQ(0, doc.itemColour);
  }
}

}  // namespace
