#include <gtest/gtest.h>

#include "dialogs/crop_image.h"
#include "dialogs/open_image.h"
#include "dialogs/shp_options.h"
#include "document/item_operations.h"
#include "document/shell_calls.h"
#include "support/allocations.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

namespace {

using Lines = std::vector<std::string>;

class ClosingTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    doc.animateAboutBox = 0;
    WritePng("mark.png", PlainPicture(300, 280, 0x00C000));
    WriteSettings("[SymbolsList]\n1=Mark,..\\mark.png\n[CameosList]\n");
    doc.screenshot = screenshot_;
    AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
    SelectItem(0);
    shown_ = MakePicture(800, 520, [](int x, int y) { return doc.canvas.ReadPixel(x, y); });
  }
  std::function<void()> Chosen(UINT command) {
    return [this, command] { Command(command); };
  }
  void ExpectNothingChanged() const {
    RepaintView();
    EXPECT_EQ("", Difference(shown_, doc.canvas));
    EXPECT_EQ(1, doc.items.Count());
    EXPECT_EQ(0, doc.selectedItem);
    EXPECT_EQ(0, opened_.valid);
    EXPECT_STREQ("", path_);
    EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
  }

  static void Nothing(HWND) {}

  char path_[MAX_PATH] = "";
  ImageClass opened_, shown_;
  const ImageClass screenshot_ = PlainPicture(234, 232, 0x8040FF);
  const ImageClass large_ = PlainPicture(300, 280, 1);
  const struct {
    const char* caption;
    std::function<void()> open;
    std::function<void(HWND)> change;  // what the user thinks better of
  } dialogs_[9] = {
      {"About Corvanta", Chosen(IDM_ABOUT), Nothing},
      {"Load screen settings", Chosen(IDM_LOAD_SCREEN_SETTINGS), Nothing},
      {"Select item", Chosen(IDM_SELECT_ITEM), Nothing},
      {"Add new item", Chosen(IDM_ADD_ITEM), [](HWND dialog) { Choose(dialog, IDC_ADD_LIST, 0); }},
      {"Screen shot settings", Chosen(IDM_SCREENSHOT_SETTINGS),
       [](HWND dialog) { Slide(dialog, IDC_SHOT_LIGHTNESS, 0); }},
      {"Crop image",
       [this] {
         EXPECT_EQ(0, CropImage(opened_, large_, "a.png", {234, 232}));
       },
       [](HWND dialog) { Type(dialog, IDC_CROP_X, "30"); }},
      {"Choose file to open",
       [this] { EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path_, opened_)); }, Nothing},
      {"Save As", Chosen(IDM_SAVE_AS_IMAGE), Nothing},
      {"SHP save options", [this] { OpenShpOptions(AppPath("new.shp").c_str()); },
       [this](HWND dialog) { Type(dialog, IDC_SHP_NAME, AppPath("new.pal")); }},
  };
};

TEST_F(ClosingTest, CancelEscapeAndTheCloseBoxChangeNothing) {
  const std::function<void(HWND)> ways[] = {
      [](HWND dialog) { Press(dialog, IDCANCEL); },
      [](HWND) { PressKey(GetFocus(), VK_ESCAPE); },
      [](HWND dialog) {
        SendMessageA(dialog, WM_CLOSE, 0, 0);
        Settle();
      },
  };
  for (const auto& dialog : dialogs_) {
    for (const auto& leave : ways) {
      SCOPED_TRACE(dialog.caption);
      WithDialog(dialog.caption, dialog.open, [&](HWND window) {
        EXPECT_FALSE(IsWindowEnabled(doc.mainWindow));
        dialog.change(window);
        leave(window);
        EXPECT_FALSE(IsWindowVisible(window));
      });
      EXPECT_EQ(0, doc.cropPreview.valid);
      ExpectNothingChanged();
    }
  }
  EXPECT_FALSE(std::filesystem::exists(File("new.shp")));
}

#ifndef _WIN32  // where the exception would have to pass through the system's own code
TEST_F(ClosingTest, RunningOutOfMemoryInOpeningChangesNothing) {
  for (const auto& dialog : dialogs_) {
    SCOPED_TRACE(dialog.caption);
    bool stood = false;
    user.When(dialog.caption, [&stood](HWND window) {
      FailAllocation(-1);
      stood = true;
      Press(window, IDCANCEL);
    });
    const auto open = [&] {
      try {
        dialog.open();
      } catch (const std::bad_alloc&) {
      }
      return stood;
    };
    // The preview adjusts the screenshot itself until the dialog is left.
    const int failures = FailEachAllocation(open, [this] { doc.screenshot = screenshot_; });
    ExpectNothingChanged();
    EXPECT_GT(failures, 10);
  }
}
#endif

TEST_F(ClosingTest, DialogWithoutItsCatalogueStaysOpenAndEmpty) {
  SetIconCount(3);
  WriteSettings("[SymbolsList]");
  user.Answer("Error", "Error: File Settings.ini invalid!", MB_ICONHAND, IDOK);
  WithDialog("Load screen settings", IDM_LOAD_SCREEN_SETTINGS,
             [](HWND dialog) { EXPECT_EQ(Lines(), Items(dialog, IDC_SETTINGS_ICON3)); });
  EXPECT_EQ(3, doc.iconCount) << "the first focus clicks no radio button";
}

}  // namespace
