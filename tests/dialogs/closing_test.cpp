#include <gtest/gtest.h>

#include "dialogs/crop_image.h"
#include "dialogs/open_image.h"
#include "document/item_operations.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

namespace {

using Lines = std::vector<std::string>;

using ClosingTest = EditorFixture;

TEST_F(ClosingTest, CancelEscapeAndTheCloseBoxChangeNothing) {
  doc.animateAboutBox = 0;
  WritePng("mark.png", PlainPicture(300, 280, 0x00C000));
  WriteSettings("[SymbolsList]\n1=Mark,..\\mark.png\n[CameosList]\n");
  doc.screenshot = PlainPicture(234, 232, 0x8040FF);
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  char path[MAX_PATH] = "";
  ImageClass opened;
  const auto chosen = [this](UINT command) { return [this, command] { Command(command); }; };
  const auto nothing = [](HWND) {};
  const struct {
    const char* caption;
    std::function<void()> open;
    std::function<void(HWND)> change;  // what the user thinks better of
  } dialogs[] = {
      {"About Corvanta", chosen(IDM_ABOUT), nothing},
      {"Load screen settings", chosen(IDM_LOAD_SCREEN_SETTINGS), nothing},
      {"Select item", chosen(IDM_SELECT_ITEM), nothing},
      {"Add new item", chosen(IDM_ADD_ITEM), [](HWND dialog) { Choose(dialog, IDC_ADD_LIST, 0); }},
      {"Screen shot settings", chosen(IDM_SCREENSHOT_SETTINGS),
       [](HWND dialog) { Slide(dialog, IDC_SHOT_LIGHTNESS, 0); }},
      {"Crop image",
       [&] {
         EXPECT_EQ(0, CropImage(opened, PlainPicture(300, 280, 1), "a.png", {234, 232}));
         EXPECT_EQ(0, doc.cropPreview.valid);
       },
       [](HWND dialog) { Type(dialog, IDC_CROP_X, "30"); }},
      {"Choose file to open",
       [&] {
         EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path, opened));
         EXPECT_STREQ("", path);
       },
       nothing},
      {"Save As", chosen(IDM_SAVE_AS_IMAGE), nothing},
      {"SHP save options", chosen(IDM_SAVE_AS_SHP),
       [this](HWND dialog) { Type(dialog, IDC_SHP_NAME, AppPath("new.pal")); }},
  };
  const std::function<void(HWND)> ways[] = {
      [](HWND dialog) { Press(dialog, IDCANCEL); },
      [](HWND) { PressKey(GetFocus(), VK_ESCAPE); },
      [](HWND dialog) {
        SendMessageA(dialog, WM_CLOSE, 0, 0);
        Settle();
      },
  };
  ImageClass before;
  before.Create(800, 520);
  before.Draw(doc.canvas, 0, 0);
  for (const auto& dialog : dialogs) {
    for (const auto& leave : ways) {
      SCOPED_TRACE(dialog.caption);
      if (dialog.caption == std::string("SHP save options")) {
        user.ChooseFile("Save As", AppPath("new.shp"));
      }
      WithDialog(dialog.caption, dialog.open, [&](HWND window) {
        EXPECT_FALSE(IsWindowEnabled(doc.mainWindow));
        dialog.change(window);
        leave(window);
        EXPECT_FALSE(IsWindowVisible(window));
      });
      EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
      EXPECT_EQ("", Difference(before, doc.canvas));
      EXPECT_EQ(1, doc.items.Count());
      EXPECT_EQ(0, doc.selectedItem);
      EXPECT_EQ(0, opened.valid);
    }
  }
  EXPECT_FALSE(std::filesystem::exists(File("new.shp")));
}

TEST_F(ClosingTest, DialogWithoutItsCatalogueStaysOpenAndEmpty) {
  SetIconCount(3);
  WriteSettings("[SymbolsList]");
  user.Answer("Error", "Error: File Settings.ini invalid!", MB_ICONHAND, IDOK);
  WithDialog("Load screen settings", IDM_LOAD_SCREEN_SETTINGS,
             [](HWND dialog) { EXPECT_EQ(Lines(), Items(dialog, IDC_SETTINGS_ICON3)); });
  EXPECT_EQ(3, doc.iconCount) << "the first focus clicks no radio button";
}

}  // namespace
