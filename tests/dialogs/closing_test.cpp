#include <gtest/gtest.h>

#include <set>

#include "dialogs/crop_image.h"
#include "dialogs/open_image.h"
#include "document/item_operations.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

namespace {

using Lines = std::vector<std::string>;

void PressCancel(HWND dialog) { Press(dialog, IDCANCEL); }

void PressEscape(HWND) { PressKey(GetFocus(), VK_ESCAPE); }

void PressCloseBox(HWND dialog) {
  SendMessageA(dialog, WM_CLOSE, 0, 0);
  Settle();
}

class ClosingTest : public EditorFixture {
 protected:
  std::function<void()> Chosen(UINT command) {
    return [this, command] { Command(command); };
  }

  std::set<std::string> Files() const {
    std::set<std::string> files;
    for (const auto& file : std::filesystem::recursive_directory_iterator(File(""))) {
      files.insert(file.path().string());
    }
    return files;
  }
};

TEST_F(ClosingTest, CancelEscapeAndTheCloseBoxChangeNothing) {
  doc.animateAboutBox = 0;
  WritePng("mark.png", PlainPicture(300, 280, 0x00C000));
  WriteSettings("[SymbolsList]\n1=Mark,..\\mark.png\n[CameosList]\n");
  doc.screenshot = PlainPicture(234, 232, 0x8040FF);
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  char path[MAX_PATH] = "";
  ImageClass opened;
  const auto nothing = [](HWND) {};
  const struct {
    const char* caption;
    std::function<void()> open;
    std::function<void(HWND)> change;  // what the user thinks better of
  } dialogs[] = {
      {"About Corvanta", Chosen(IDM_ABOUT), nothing},
      {"Load screen settings", Chosen(IDM_LOAD_SCREEN_SETTINGS), nothing},
      {"Select item", Chosen(IDM_SELECT_ITEM), nothing},
      {"Add new item", Chosen(IDM_ADD_ITEM), [](HWND dialog) { Choose(dialog, IDC_ADD_LIST, 0); }},
      {"Screen shot settings", Chosen(IDM_SCREENSHOT_SETTINGS),
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
      {"Save As", Chosen(IDM_SAVE_AS_IMAGE), nothing},
      {"SHP save options", Chosen(IDM_SAVE_AS_SHP),
       [this](HWND dialog) { Type(dialog, IDC_SHP_NAME, AppPath("new.pal")); }},
  };
  ImageClass before;
  before.Create(800, 520);
  before.Draw(doc.canvas, 0, 0);
  const std::set<std::string> files = Files();
  for (const auto& dialog : dialogs) {
    for (const auto leave : {PressCancel, PressEscape, PressCloseBox}) {
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
      EXPECT_EQ(files, Files());
    }
  }
}

TEST_F(ClosingTest, DialogWithoutItsCatalogueStaysOpenAndEmpty) {
  SetIconCount(3);
  const char kInvalid[] = "Error: File Settings.ini invalid!";
  const char kMissing[] = "Error: Can't find Settings.ini file in application directory!";
  const struct {
    const char* caption;
    UINT command;
    const char* section;  // null for no file
    const char* message;
    int list, firstChoice, lastChoice;
  } cases[] = {{"Add new item", IDM_ADD_ITEM, "[Symbolslist]", kInvalid, IDC_ADD_LIST,
                IDC_ADD_ALLIED, IDC_ADD_YURI},
               {"Load screen settings", IDM_LOAD_SCREEN_SETTINGS, "[SymbolsList]", kInvalid,
                IDC_SETTINGS_ICON3, IDC_SETTINGS_TWO, IDC_SETTINGS_YURI},
               {"Add new item", IDM_ADD_ITEM, nullptr, kMissing, IDC_ADD_LIST, IDC_ADD_ALLIED,
                IDC_ADD_YURI}};
  for (const auto& test : cases) {
    std::filesystem::remove(File("Settings.ini"));
    if (test.section) WriteSettings(std::string(test.section) + "\n1=a,b\n");
    user.Answer("Error", test.message, MB_ICONHAND, IDOK);
    WithDialog(test.caption, test.command, [&test](HWND dialog) {
      EXPECT_EQ(Lines(), Items(dialog, test.list));
      for (int id = test.firstChoice; id <= test.lastChoice; ++id) {
        EXPECT_FALSE(IsChecked(dialog, id)) << "a radio button is clicked by the first focus";
      }
    });
  }
  EXPECT_EQ(3, doc.iconCount);
  EXPECT_EQ(0, doc.itemColour);
}

}  // namespace
