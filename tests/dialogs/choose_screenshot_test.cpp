#include "dialogs/choose_screenshot.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/editor_fixture.h"

namespace {

constexpr char kSettings[] = "Load screen settings";
constexpr char kQuestion[] = "Size of image isn't 234x232.Do you want to crop this image?";
constexpr char kTooSmall[] =
    "Error: Size of image is less than 234x232\nPlease select another image.";

uint32_t ShotPixel(int32_t x, int32_t y) {
  return static_cast<uint32_t>(x) + (static_cast<uint32_t>(y) << 12);
}

class ChooseScreenshotTest : public EditorFixture {
 protected:
  // Says yes to the question and does the step in "Crop image".
  void Crop(const std::function<void(HWND)>& step) {
    user.Answer("Corvanta", kQuestion, MB_ICONQUESTION, IDYES);
    user.When("Crop image", [this, step](HWND crop) {
      EXPECT_FALSE(IsWindowEnabled(FindWindowA(nullptr, kSettings)));
      EXPECT_EQ(AppPath("shot.png"), Text(crop, IDC_CROP_PATH));
      step(crop);
    });
  }
};

TEST_F(ChooseScreenshotTest, SizeDecidesWhetherThePictureIsTakenCroppedOrRefused) {
  constexpr uint32_t kFormer = 0x555555;
  const auto refuse = [this] { user.Answer("Corvanta", kTooSmall, MB_ICONHAND, IDOK); };
  const auto leave = [this] { user.Answer("Corvanta", kQuestion, MB_ICONQUESTION, IDNO); };
  const auto crop = [this] {
    Crop([](HWND dialog) {
      Type(dialog, IDC_CROP_X, "10");
      Type(dialog, IDC_CROP_Y, "20");
      Press(dialog, IDOK);
    });
  };
  const auto giveUp = [this] { Crop([](HWND dialog) { Press(dialog, IDCANCEL); }); };
  const uint32_t below = WorldMapPixel(Allied, 775, 498);
  const struct {
    const char* name;
    PictureSize size;
    std::function<void()> answer;
    bool taken;
    uint32_t last;  // the screenshot's last pixel as the view shows it then
  } shots[] = {
      {"one row short", {234, 231}, refuse, false, kFormer},
      {"one column short", {233, 232}, refuse, false, kFormer},
      {"left alone", {300, 232}, leave, false, kFormer},
      {"exact", {234, 232}, [] {}, true, ShotPixel(233, 231)},
      {"cropped", {300, 280}, crop, true, ShotPixel(243, 251)},
      {"given up", {234, 233}, giveUp, true, below},
  };
  WriteSettings("[CameosList]\n");
  for (const auto& shot : shots) {
    SCOPED_TRACE(shot.name);
    WritePng("shot.png", MakePicture(shot.size.width, shot.size.height, ShotPixel));
    doc.screenshot = PlainPicture(234, 232, kFormer);
    std::strcpy(doc.screenshotPath, "before.png");
    SetLayers(0, 1);  // the frame would cover part of the screenshot
    WithDialog(kSettings, IDM_LOAD_SCREEN_SETTINGS, [&](HWND dialog) {
      user.ChooseFile("Choose file to open", AppPath("shot.png"));
      shot.answer();
      Press(dialog, IDC_SETTINGS_BROWSE);
      const std::string path = shot.taken ? AppPath("shot.png") : "before.png";
      EXPECT_EQ(path, Text(dialog, IDC_SETTINGS_PATH));
      EXPECT_EQ(path, doc.screenshotPath);
      EXPECT_EQ(shot.last, CanvasPixel(775, 498)) << "shown at once";
      EXPECT_EQ(GetDlgItem(dialog, IDC_SETTINGS_BROWSE), GetFocus());
    });
    EXPECT_EQ(AppPath("shot.png"), doc.lastFilePath);
  }
}

}  // namespace
