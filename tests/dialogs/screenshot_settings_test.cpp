#include "dialogs/screenshot_settings.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Screen shot settings";
constexpr int kColourSliders[] = {IDC_SHOT_RED, IDC_SHOT_GREEN, IDC_SHOT_BLUE};

class ScreenshotSettingsTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    SetLayers(0, 1);  // the frame would cover part of the screenshot
    // A grey half way between two for its weights, so that the next weight of any channel shows.
    doc.screenshot = PlainPicture(234, 232, 0xF0A0C8);
  }

  // The adjusted screenshot's colour, which preview, document and view have to agree on.
  uint32_t Adjusted(HWND dialog) {
    const HWND preview = GetDlgItem(dialog, IDC_SHOT_PREVIEW);
    const SIZE size = ClientSize(preview);
    const uint32_t colour = WindowPixel(preview, size.cx / 2, size.cy / 2);
    EXPECT_EQ(colour, doc.screenshot.ReadPixel(233, 231));
    EXPECT_EQ(colour, CanvasPixel(542 + 233, 267 + 231));
    return colour;
  }
};

TEST_F(ScreenshotSettingsTest, SlidersStartNeutralAndActOnTheirOwnUnlessGreyscale) {
  doc.adjustRed = doc.adjustLightness = 3;
  doc.adjustGreyscale = 1;
  WithDialog(kCaption, IDM_SCREENSHOT_SETTINGS, [this](HWND dialog) {
    EXPECT_FALSE(IsChecked(dialog, IDC_SHOT_GREYSCALE));
    EXPECT_EQ(0xEF9FC7U, Adjusted(dialog));
    for (const int id : kColourSliders) {
      EXPECT_EQ(255, SendDlgItemMessageA(dialog, id, TBM_GETPOS, 0, 0)) << id;
      EXPECT_EQ(255, SendDlgItemMessageA(dialog, id, TBM_GETRANGEMAX, 0, 0)) << id;
    }
    const struct {
      int slider, position;
      uint32_t colour;
    } steps[] = {{IDC_SHOT_RED, 128, 0x789FC7},       {IDC_SHOT_GREEN, 0, 0x7800C7},
                 {IDC_SHOT_BLUE, 64, 0x780032},       {IDC_SHOT_LIGHTNESS, 511, 0xFFFFFF},
                 {IDC_SHOT_LIGHTNESS, 383, 0xBB7F98}, {IDC_SHOT_LIGHTNESS, 127, 0x3C0019},
                 {IDC_SHOT_LIGHTNESS, 0, 0x010001},   {IDC_SHOT_LIGHTNESS, 255, 0x780032}};
    for (const auto& step : steps) {
      Slide(dialog, step.slider, step.position);
      EXPECT_EQ(step.colour, Adjusted(dialog)) << step.slider << " at " << step.position;
    }
    for (const uint32_t colour : {0xBBBBBBU, 0x780032U}) {
      Press(dialog, IDC_SHOT_GREYSCALE);
      EXPECT_EQ(colour, Adjusted(dialog));
      for (const int id : kColourSliders) EXPECT_EQ(colour == 0x780032, IsEnabled(dialog, id));
    }
  });
}

TEST_F(ScreenshotSettingsTest, OkKeepsAdjustmentsWhichCompoundAndNeedAScreenshot) {
  doc.screenshot = PlainPicture(234, 232, 0x800001);
  for (const uint32_t expected : {0x7F0000U, 0x7E0000U}) {
    WithDialog(kCaption, IDM_SCREENSHOT_SETTINGS, [this, expected](HWND dialog) {
      EXPECT_EQ(expected, Adjusted(dialog));
      PressKey(GetFocus(), VK_RETURN);
    });
    EXPECT_EQ(expected, doc.screenshot.ReadPixel(0, 0));
    EXPECT_EQ(expected, CanvasPixel(542 + 100, 267 + 100));
  }
  doc.screenshot.Free();
  user.Answer("Corvanta", "Please select screenshot in the load screen settings dialog",
              MB_ICONEXCLAMATION, IDOK);
  EXPECT_EQ(0, OpenScreenshotSettings(doc.mainWindow));
  user.When("Corvanta", [](HWND) { PressKey(GetFocus(), VK_ESCAPE); });
  EXPECT_EQ(0, OpenScreenshotSettings(doc.mainWindow)) << "Escape is as good as OK";
}

}  // namespace
