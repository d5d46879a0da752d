#include "dialogs/load_screen_settings.h"

#include <gtest/gtest.h>

#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Load screen settings";

class LoadScreenSettingsTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    WritePng("Templates\\zebra.png", PlainPicture(76, 60, 0x111111));
    WritePng("Templates\\apple.png", PlainPicture(76, 60, 0x222222));
    WritePng("Templates\\wide.png", PlainPicture(77, 60, 0x333333));
    WritePng("Templates\\high.png", PlainPicture(76, 61, 0x444444));
    WriteSettings(
        "[CameosList]\n1=Zebra,  zebra.png\n2=Apple,apple.png\n3=bad\n"
        "4=Wide,wide.png\n5=High,high.png\n6=Lost,lost.png\n");
  }

  // Positions in the sorted lists.
  enum { kApple, kHigh, kLost, kWide, kZebra };
};

TEST_F(LoadScreenSettingsTest, ChosenIconsAreShownAndRemembered) {
  WithDialog(kCaption, IDM_LOAD_SCREEN_SETTINGS, [this](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_SETTINGS_TWO));
    EXPECT_FALSE(IsEnabled(dialog, IDC_SETTINGS_ICON3));
    Choose(dialog, IDC_SETTINGS_ICON2, kZebra);
    EXPECT_EQ(0x111111U, CanvasPixel(405, 380));
    EXPECT_EQ(0x111111U, CanvasPixel(480, 439));
    Press(dialog, IDC_SETTINGS_THREE);
    EXPECT_EQ("Allied - 3", StatusText(0));
    Choose(dialog, IDC_SETTINGS_ICON3, kApple);
    EXPECT_EQ(0x222222U, CanvasPixel(444, 380));
    Press(dialog, IDC_SETTINGS_TWO);
    EXPECT_FALSE(IsEnabled(dialog, IDC_SETTINGS_ICON3));
    EXPECT_EQ(kApple, Selected(dialog, IDC_SETTINGS_ICON3)) << "the list keeps its position";
    EXPECT_EQ(OverlayPixel(Allied, 2, 519, 439), CanvasPixel(519, 439));
    Press(dialog, IDC_SETTINGS_THREE);
    EXPECT_EQ(0x222222U, CanvasPixel(519, 439)) << "the icon is still there";
  });
  WithDialog(kCaption, IDM_LOAD_SCREEN_SETTINGS, [](HWND dialog) {
    EXPECT_EQ(-1, Selected(dialog, IDC_SETTINGS_ICON1));
    EXPECT_EQ(kZebra, Selected(dialog, IDC_SETTINGS_ICON2));
    EXPECT_EQ(kApple, Selected(dialog, IDC_SETTINGS_ICON3));
  });
}

TEST_F(LoadScreenSettingsTest, StaysOpenBelowTheDialogThatItOpens) {
  WithDialog(kCaption, IDM_LOAD_SCREEN_SETTINGS, [this](HWND dialog) {
    user.When("Choose file to open", [dialog](HWND open) {
      SendMessageA(dialog, WM_CLOSE, 0, 0);
      SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
      Press(open, IDCANCEL);
    });
    Press(dialog, IDC_SETTINGS_BROWSE);
    EXPECT_TRUE(IsWindowVisible(dialog));
  });
}

TEST_F(LoadScreenSettingsTest, RefusedIconEmptiesItsSlot) {
  constexpr char kWrongSize[] = "Error: This file isn't valid icon file\nImage size must be 76x60";
  const struct {
    int position;
    const char* message;
    UINT icon;
  } cases[] = {{kWide, kWrongSize, MB_ICONHAND},
               {kHigh, kWrongSize, MB_ICONHAND},
               {kLost, "Error: Can't find file!", MB_ICONEXCLAMATION}};
  WithDialog(kCaption, IDM_LOAD_SCREEN_SETTINGS, [&](HWND dialog) {
    for (const auto& test : cases) {
      Choose(dialog, IDC_SETTINGS_ICON1, kApple);
      EXPECT_EQ(1, doc.icons[0].valid);
      user.Answer("Corvanta", test.message, test.icon, IDOK);
      Choose(dialog, IDC_SETTINGS_ICON1, test.position);
      EXPECT_EQ(0, doc.icons[0].valid);
      EXPECT_EQ(kApple, doc.iconChoice[0]) << "the last good choice stays";
      EXPECT_EQ(test.position, Selected(dialog, IDC_SETTINGS_ICON1));
    }
  });
}

}  // namespace
