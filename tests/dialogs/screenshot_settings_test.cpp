#include "dialogs/screenshot_settings.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Screen shot settings";

class ScreenshotSettingsTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    SetLayers(0, 1);  // the frame would cover part of the screenshot
    doc.screenshot = PlainPicture(234, 232, 0x8040FF);
  }

  void Open(const std::function<void(HWND)>& step) {
    user.When(kCaption, step);
    Command(IDM_SCREENSHOT_SETTINGS);
  }

  // The adjusted screenshot's colour, which preview, document and view have to agree on.
  uint32_t Adjusted(HWND dialog) {
    const HWND preview = GetDlgItem(dialog, IDC_SHOT_PREVIEW);
    const SIZE size = ClientSize(preview);
    const uint32_t colour = WindowPixel(preview, size.cx / 2, size.cy / 2);
    EXPECT_EQ(colour, doc.screenshot.ReadPixel(100, 100));
    EXPECT_EQ(colour, CanvasPixel(542 + 100, 267 + 100));
    return colour;
  }
};

TEST_F(ScreenshotSettingsTest, HintAppearsWithoutAScreenshot) {
  doc.screenshot.Free();
  user.Answer("Corvanta", "Please select screenshot in the load screen settings dialog",
              MB_ICONEXCLAMATION, IDOK);
  EXPECT_EQ(0, OpenScreenshotSettings(doc.mainWindow));
}

TEST_F(ScreenshotSettingsTest, OpensNeutral) {
  doc.adjustRed = doc.adjustLightness = 3;
  doc.adjustGreyscale = 1;
  Open([this](HWND dialog) {
    for (const int id : {IDC_SHOT_RED, IDC_SHOT_GREEN, IDC_SHOT_BLUE, IDC_SHOT_LIGHTNESS}) {
      EXPECT_EQ(255, SendDlgItemMessageA(dialog, id, TBM_GETPOS, 0, 0)) << id;
      EXPECT_EQ(0, SendDlgItemMessageA(dialog, id, TBM_GETRANGEMIN, 0, 0)) << id;
      EXPECT_EQ(id == IDC_SHOT_LIGHTNESS ? 511 : 255,
                SendDlgItemMessageA(dialog, id, TBM_GETRANGEMAX, 0, 0));
    }
    EXPECT_FALSE(IsChecked(dialog, IDC_SHOT_GREYSCALE));
    EXPECT_EQ(0x7F3FFEU, Adjusted(dialog));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(ScreenshotSettingsTest, EachSliderActsOnItsOwn) {
  Open([this](HWND dialog) {
    Slide(dialog, IDC_SHOT_RED, 128);
    EXPECT_EQ(0x403FFEU, Adjusted(dialog));
    Slide(dialog, IDC_SHOT_GREEN, 0);
    EXPECT_EQ(0x4000FEU, Adjusted(dialog));
    Slide(dialog, IDC_SHOT_BLUE, 64);
    EXPECT_EQ(0x40003FU, Adjusted(dialog));
    Slide(dialog, IDC_SHOT_RED, 255);
    EXPECT_EQ(0x7F003FU, Adjusted(dialog)) << "adjustments don't pile up";
    Slide(dialog, IDC_SHOT_LIGHTNESS, 511);
    EXPECT_EQ(0xFFFFFFU, Adjusted(dialog));
    Slide(dialog, IDC_SHOT_LIGHTNESS, 0);
    EXPECT_EQ(0x010001U, Adjusted(dialog));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(ScreenshotSettingsTest, GreyscaleDisablesTheColourSliders) {
  Open([this](HWND dialog) {
    Slide(dialog, IDC_SHOT_RED, 0);
    Press(dialog, IDC_SHOT_GREYSCALE);
    for (const int id : {IDC_SHOT_RED, IDC_SHOT_GREEN, IDC_SHOT_BLUE}) {
      EXPECT_FALSE(IsEnabled(dialog, id)) << id;
    }
    EXPECT_TRUE(IsEnabled(dialog, IDC_SHOT_LIGHTNESS));
    EXPECT_EQ(0x676767U, Adjusted(dialog));
    Slide(dialog, IDC_SHOT_LIGHTNESS, 511);
    EXPECT_EQ(0xFFFFFFU, Adjusted(dialog));
    Slide(dialog, IDC_SHOT_LIGHTNESS, 255);
    Press(dialog, IDC_SHOT_GREYSCALE);
    EXPECT_TRUE(IsEnabled(dialog, IDC_SHOT_RED));
    EXPECT_EQ(0x003FFEU, Adjusted(dialog)) << "the slider acts again";
    Press(dialog, IDCANCEL);
  });
}

TEST_F(ScreenshotSettingsTest, OkKeepsTheAdjustmentAndTheyCompound) {
  doc.screenshot = PlainPicture(234, 232, 0x800001);
  for (const uint32_t expected : {0x7F0000U, 0x7E0000U}) {
    Open([this, expected](HWND dialog) {
      EXPECT_EQ(expected, Adjusted(dialog));
      PressKey(GetFocus(), VK_RETURN);
    });
    EXPECT_EQ(expected, doc.screenshot.ReadPixel(0, 0));
    EXPECT_EQ(expected, CanvasPixel(542 + 100, 267 + 100));
  }
}

TEST_F(ScreenshotSettingsTest, CancelRestoresTheScreenshot) {
  for (const bool close : {false, true}) {
    Open([this, close](HWND dialog) {
      Slide(dialog, IDC_SHOT_LIGHTNESS, 0);
      EXPECT_EQ(0x010101U, Adjusted(dialog));
      if (close) {
        SendMessageA(dialog, WM_CLOSE, 0, 0);
      } else {
        PressKey(GetFocus(), VK_ESCAPE);
      }
    });
    EXPECT_EQ(0x8040FFU, doc.screenshot.ReadPixel(233, 231));
    EXPECT_EQ(0x8040FFU, CanvasPixel(542 + 100, 267 + 100)) << "the view shows it again";
  }
}

}  // namespace
