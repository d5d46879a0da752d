#include "dialogs/choose_screenshot.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/case_name.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Load screen settings";
constexpr char kOpenCaption[] = "Choose file to open";
constexpr char kQuestion[] = "Size of image isn't 234x232.Do you want to crop this image?";
constexpr char kTooSmall[] =
    "Error: Size of image is less than 234x232\nPlease select another image.";
constexpr int kScreenshotX = 542;
constexpr int kScreenshotY = 267;

uint32_t ShotPixel(int32_t x, int32_t y) {
  return static_cast<uint32_t>(x) + (static_cast<uint32_t>(y) << 12);
}

class ChooseScreenshotTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    WriteSettings("[CameosList]\n");
    SetLayers(0, 1);  // the frame would cover part of the screenshot
    // What must stay, or be replaced.
    doc.screenshot = PlainPicture(234, 232, 0x555555);
    std::strcpy(doc.screenshotPath, "before.png");
  }

  std::string WriteShot(int32_t width, int32_t height) {
    return WritePng("shot.png", MakePicture(width, height, ShotPixel));
  }

  // Opens the dialog and chooses the file; further steps may follow before Finish.
  void Choose(const std::string& path) {
    user.When(kCaption, [](HWND dialog) { Press(dialog, IDC_SETTINGS_BROWSE); });
    user.ChooseFile(kOpenCaption, path);
  }

  // Closes the dialog; gives the path that it showed.
  std::string Finish() {
    std::string path;
    user.When(kCaption, [&path](HWND dialog) {
      path = Text(dialog, IDC_SETTINGS_PATH);
      Press(dialog, IDCANCEL);
    });
    Command(IDM_LOAD_SCREEN_SETTINGS);
    return path;
  }

  void ExpectNothingChanged(const std::string& shownPath) {
    EXPECT_EQ("before.png", shownPath);
    EXPECT_STREQ("before.png", doc.screenshotPath);
    EXPECT_EQ(0x555555U, doc.screenshot.ReadPixel(0, 0));
  }
};

TEST_F(ChooseScreenshotTest, PictureOfTheRightSizeIsTakenAsItIs) {
  const std::string path = WriteShot(234, 232);
  Choose(path);
  EXPECT_EQ(path, Finish());
  EXPECT_EQ(path, doc.screenshotPath);
  EXPECT_EQ(path, doc.lastFilePath);
  // The left and upper part lies under the large frame.
  EXPECT_EQ(ShotPixel(100, 0), CanvasPixel(kScreenshotX + 100, kScreenshotY));
  EXPECT_EQ(ShotPixel(233, 231), CanvasPixel(kScreenshotX + 233, kScreenshotY + 231));
}

TEST_F(ChooseScreenshotTest, SmallerPicturesAreRefused) {
  for (const PictureSize size : {PictureSize{234, 231}, {233, 232}, {300, 200}, {200, 300}}) {
    Choose(WriteShot(size.width, size.height));
    user.Answer("Corvanta", kTooSmall, MB_ICONHAND, IDOK);
    ExpectNothingChanged(Finish());
  }
}

TEST_F(ChooseScreenshotTest, LargerPictureIsLeftAloneOnNo) {
  Choose(WriteShot(300, 232));
  user.Answer("Corvanta", kQuestion, MB_ICONQUESTION, IDNO);
  ExpectNothingChanged(Finish());
}

TEST_F(ChooseScreenshotTest, LargerPictureIsCropped) {
  const std::string path = WriteShot(300, 280);
  Choose(path);
  user.Answer("Corvanta", kQuestion, MB_ICONQUESTION, IDYES);
  user.When("Crop image", [&path](HWND dialog) {
    EXPECT_FALSE(IsWindowEnabled(FindWindowA(nullptr, kCaption)));
    EXPECT_EQ(path, Text(dialog, IDC_CROP_PATH));
    EXPECT_EQ(0, doc.screenshot.valid);
    Type(dialog, IDC_CROP_X, "10");
    Type(dialog, IDC_CROP_Y, "20");
    Press(dialog, IDOK);
  });
  EXPECT_EQ(path, Finish());
  EXPECT_EQ(path, doc.screenshotPath);
  EXPECT_EQ(234, doc.screenshot.width);
  EXPECT_EQ(232, doc.screenshot.height);
  EXPECT_EQ(ShotPixel(110, 20), CanvasPixel(kScreenshotX + 100, kScreenshotY));
  EXPECT_EQ(ShotPixel(243, 251), CanvasPixel(kScreenshotX + 233, kScreenshotY + 231));
  EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
}

TEST_F(ChooseScreenshotTest, GivingUpCroppingLeavesNoScreenshot) {
  const std::string path = WriteShot(234, 233);
  Choose(path);
  user.Answer("Corvanta", kQuestion, MB_ICONQUESTION, IDYES);
  user.When("Crop image", [](HWND dialog) { Press(dialog, IDCANCEL); });
  EXPECT_EQ(path, Finish());
  EXPECT_EQ(0, doc.screenshot.valid);
  EXPECT_NE(0x555555U, CanvasPixel(kScreenshotX, kScreenshotY)) << "the view shows that at once";
}

TEST_F(ChooseScreenshotTest, CancellingTheChoiceChangesNothing) {
  user.When(kCaption, [](HWND dialog) { Press(dialog, IDC_SETTINGS_BROWSE); });
  user.When(kOpenCaption, [](HWND dialog) { Press(dialog, IDCANCEL); });
  ExpectNothingChanged(Finish());
}

}  // namespace
