#include "controls/image_preview.h"

#include <gtest/gtest.h>

#include "dialogs/window_pixels.h"
#include "imaging/image_files.h"
#include "support/case_name.h"
#include "support/editor_fixture.h"

namespace {

struct FitCase {
  const char* name;
  int32_t controlWidth, controlHeight, width, height;
  PreviewPlacement place;
};

class FitPreviewTest : public testing::TestWithParam<FitCase> {};

TEST_P(FitPreviewTest, FitsAndCentres) {
  const FitCase& test = GetParam();
  const PreviewPlacement place =
      FitPreview(test.controlWidth, test.controlHeight, test.width, test.height);
  EXPECT_EQ(test.place.x, place.x);
  EXPECT_EQ(test.place.y, place.y);
  EXPECT_EQ(test.place.width, place.width);
  EXPECT_EQ(test.place.height, place.height);
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, FitPreviewTest,
    testing::Values(FitCase{"Smaller", 300, 251, 234, 232, {33, 9, 234, 232}},
                    FitCase{"JustAsLarge", 200, 180, 200, 180, {0, 0, 200, 180}},
                    FitCase{"TooWide", 200, 180, 400, 100, {0, 65, 200, 50}},
                    FitCase{"TooHigh", 200, 180, 100, 400, {77, 0, 45, 180}},
                    FitCase{"TooLargeBothWays", 200, 180, 1920, 1080, {0, 34, 200, 112}},
                    FitCase{"WideButHigherThanTheControl", 200, 100, 201, 150, {33, 0, 134, 100}},
                    FitCase{"ThinLineVanishes", 200, 180, 16384, 1, {0, 90, 200, 0}},
                    FitCase{"NoControl", 0, 0, 10, 10, {0, 0, 0, 0}}),
    CaseName());

class ImagePreviewTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    control = CreateWindowExA(0, "ImagePreview", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 180,
                              doc.mainWindow, nullptr, GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(nullptr, control);
  }
  void TearDown() override {
    DestroyWindow(control);
    EditorFixture::TearDown();
  }

  void Show(const std::string& path) {
    picture.Free();
    ShowPreviewPicture(control, LoadImageFile(path.c_str(), picture) ? &picture : nullptr);
  }
  // Whether any text stands in rows from top to below bottom.
  bool HasText(int top, int bottom) {
    UpdateWindow(control);
    const WindowDc dc(control);
    for (int i = top * 200; i < bottom * 200; ++i) {
      if (GetPixel(dc.get(), i % 200, i / 200) == 0) return true;
    }
    return false;
  }

  HWND control = nullptr;
  DIBClass picture;
};

TEST_F(ImagePreviewTest, SaysWhenThereIsNothingToShow) {
  EXPECT_TRUE(HasText(70, 110));
  EXPECT_FALSE(HasText(0, 70));
  EXPECT_FALSE(HasText(110, 180));
  EXPECT_EQ(FaceColour(), WindowPixel(control, 0, 0));
}

TEST_F(ImagePreviewTest, ShowsWideAndHighPicturesScaled) {
  Show(WritePng("wide.png", PlainPicture(400, 100, 0x00C000)));
  EXPECT_EQ(FaceColour(), WindowPixel(control, 0, 64));
  EXPECT_EQ(0x00C000U, WindowPixel(control, 0, 65));
  EXPECT_EQ(0x00C000U, WindowPixel(control, 199, 114));
  EXPECT_EQ(FaceColour(), WindowPixel(control, 199, 115));
  EXPECT_TRUE(HasText(150, 180));
  EXPECT_FALSE(HasText(0, 150));
  Show(WritePng("high.png", PlainPicture(100, 400, 0x0000C0)));
  EXPECT_EQ(FaceColour(), WindowPixel(control, 76, 0));
  EXPECT_EQ(0x0000C0U, WindowPixel(control, 77, 0));
  EXPECT_EQ(0x0000C0U, WindowPixel(control, 121, 179));
  EXPECT_EQ(FaceColour(), WindowPixel(control, 122, 179));
  EXPECT_EQ(FaceColour(), WindowPixel(control, 0, 65)) << "the former picture is gone";
}

TEST_F(ImagePreviewTest, ShowsSmallPicturesUnscaled) {
  Show(WritePng("dot.png", MakePicture(3, 2, [](int32_t x, int32_t y) {
                  return 0xC00000U + static_cast<uint32_t>(16 * x + y);
                })));
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(0xC00000U + static_cast<uint32_t>(16 * (i % 3) + i / 3),
              WindowPixel(control, 98 + i % 3, 89 + i / 3));
  }
  EXPECT_EQ(FaceColour(), WindowPixel(control, 97, 89));
}

TEST_F(ImagePreviewTest, UnreadableFilesShowNoPicture) {
  Show(WritePng("a.png", PlainPicture(50, 50, 0x00C000)));
  EXPECT_EQ(0x00C000U, WindowPixel(control, 80, 70));
  for (const std::string& path : {AppPath("Templates"), AppPath("lost.png"), std::string()}) {
    Show(path);
    EXPECT_EQ(FaceColour(), WindowPixel(control, 80, 70)) << path;
    EXPECT_TRUE(HasText(70, 110));
  }
  Show(AppPath("a.png"));
  EXPECT_EQ(0x00C000U, WindowPixel(control, 80, 70));
}

}  // namespace
