#pragma once

#include "dialogs/crop_image.h"
#include "dialogs/open_image.h"
#include "dialogs/shp_options.h"
#include "document/item_operations.h"
#include "support/editor_fixture.h"

// An editor that every dialog can be opened in: it has a catalogue, a screenshot and a selected
// item.
class EveryDialog : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    doc.animateAboutBox = 0;
    WritePng("mark.png", large_);
    WriteSettings("[SymbolsList]\n1=Mark,..\\mark.png\n[CameosList]\n");
    doc.screenshot = screenshot_;
    AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
    SelectItem(0);
  }
  std::function<void()> Chosen(UINT command) {
    return [this, command] { Command(command); };
  }

  static constexpr SIZE kShotSize{234, 232};
  char path_[MAX_PATH] = "";
  ImageClass opened_;
  const ImageClass screenshot_ = PlainPicture(234, 232, 0x8040FF);
  const ImageClass large_ = PlainPicture(300, 280, 0x00C000);
  const struct {
    const char* caption;
    std::function<void()> open;
    // What the user thinks better of.
    std::function<void(HWND)> change = [](HWND) {};
  } dialogs_[9] = {
      {"About Corvanta", Chosen(IDM_ABOUT)},
      {"Load screen settings", Chosen(IDM_LOAD_SCREEN_SETTINGS)},
      {"Select item", Chosen(IDM_SELECT_ITEM)},
      {"Save As", Chosen(IDM_SAVE_AS_IMAGE)},
      {"Choose file to open",
       [this] { EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path_, opened_)); }},
      {"Add new item", Chosen(IDM_ADD_ITEM), [](HWND dialog) { Choose(dialog, IDC_ADD_LIST, 0); }},
      {"Screen shot settings", Chosen(IDM_SCREENSHOT_SETTINGS),
       [](HWND dialog) { Slide(dialog, IDC_SHOT_LIGHTNESS, 0); }},
      {"Crop image", [this] { EXPECT_EQ(0, CropImage(opened_, large_, "a.png", kShotSize)); },
       [](HWND dialog) { Type(dialog, IDC_CROP_X, "30"); }},
      {"SHP save options", [this] { OpenShpOptions(AppPath("new.shp").c_str()); },
       [this](HWND dialog) { Type(dialog, IDC_SHP_NAME, AppPath("new.pal")); }},
  };
};
