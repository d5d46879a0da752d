#include "dialogs/crop_image.h"

#include <gtest/gtest.h>

#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"

namespace {

uint32_t SourcePixel(int32_t x, int32_t y) {
  return static_cast<uint32_t>(x) + (static_cast<uint32_t>(y) << 12);
}

class CropImageTest : public EditorFixture {
 protected:
  // Crops a picture while the user does the step; the result of CropImage.
  int Crop(const ImageClass& picture, const std::function<void(HWND)>& step) {
    int result = -1;
    cropped.Free();
    WithDialog(
        "Crop image",
        [&] {
          result = CropImage(cropped, picture, "a.png", {234, 232});
        },
        step);
    return result;
  }
  // Where the cropped part was in the picture.
  std::pair<uint32_t, uint32_t> CroppedAt() const {
    const uint32_t first = cropped.ReadPixel(0, 0), x = first & 0xFFF, y = first >> 12;
    EXPECT_EQ(std::pair(234, 232), std::pair(cropped.width, cropped.height));
    EXPECT_EQ(SourcePixel(static_cast<int32_t>(x) + 233, static_cast<int32_t>(y) + 231),
              cropped.ReadPixel(233, 231));
    return {x, y};
  }

  ImageClass cropped;
};

using At = std::pair<uint32_t, uint32_t>;

TEST_F(CropImageTest, ArrowsMoveTheRectangleFromTheCornerWithinThePicture) {
  for (int opening = 0; opening < 2; ++opening) {
    const int result = Crop(MakePicture(1800, 300, SourcePixel), [](HWND dialog) {
      EXPECT_EQ("a.png", Text(dialog, IDC_CROP_PATH));
      for (const int id : {IDC_CROP_X, IDC_CROP_Y}) EXPECT_EQ("0", Text(dialog, id));
      EXPECT_EQ("234", Text(dialog, IDC_CROP_WIDTH));
      EXPECT_EQ("232", Text(dialog, IDC_CROP_HEIGHT));
      const auto arrow = [dialog](int id, const std::string& from, int key) {
        Type(dialog, id, from);
        PressKey(GetFocus(), key);
        return Text(dialog, id);
      };
      EXPECT_EQ("1500", arrow(IDC_CROP_X, "1499", VK_UP));
      EXPECT_EQ("1566", arrow(IDC_CROP_X, "1566", VK_UP));
      EXPECT_EQ("0", arrow(IDC_CROP_X, "0", VK_DOWN));
      EXPECT_EQ("68", arrow(IDC_CROP_Y, "68", VK_UP));
      EXPECT_EQ("67", arrow(IDC_CROP_Y, "68", VK_DOWN));
      PressKey(GetFocus(), VK_RETURN);
    });
    EXPECT_EQ(1, result);
    EXPECT_EQ(At(0, 67), CroppedAt());
  }
  EXPECT_EQ(0, CropImage(cropped, ImageClass(), "", {234, 232})) << "nothing to crop";
}

TEST_F(CropImageTest, TypedPositionsAreLimitedButStayInTheirField) {
  const ImageClass picture = MakePicture(1000, 600, SourcePixel);
  const struct {
    const char *x, *y;
    At cropped;
  } cases[] = {{"40", "30", {40, 30}},        {"766", "368", {766, 368}},
               {"767", "369", {766, 368}},    {"5000", "700", {766, 368}},
               {"4294967295", "", {0, 0}},    {"", "4294967295", {0, 0}},
               {"30", "99999999999", {30, 0}}};
  for (const auto& test : cases) {
    Crop(picture, [&test](HWND dialog) {
      for (const auto& [id, text] : {std::pair(IDC_CROP_X, test.x), {IDC_CROP_Y, test.y}}) {
        Type(dialog, id, "12");
        Type(dialog, id, text);
        EXPECT_EQ(text, Text(dialog, id));
      }
      Press(dialog, IDOK);
    });
    EXPECT_EQ(test.cropped, CroppedAt()) << test.x << ", " << test.y;
  }
}

TEST_F(CropImageTest, PreviewOutlinesTheRectangleThatAClickCentres) {
  static constexpr uint32_t kPlain = 0xFF80FD, kDim = 0x80407F;
  Crop(PlainPicture(300, 280, kPlain), [](HWND dialog) {
    const HWND preview = GetDlgItem(dialog, IDC_CROP_PREVIEW);
    MoveWindow(dialog, 0, 0, 9, 9, TRUE);
    RECT smallest{};
    GetWindowRect(dialog, &smallest);
    EXPECT_TRUE(smallest.right == 440 && smallest.bottom == 334) << "no control is hidden";
    MoveWindow(dialog, 0, 0, 800, 600, TRUE);
    MoveWindow(preview, 0, 0, 600, 280, TRUE);  // two columns for each of the picture
    UpdateWindow(preview);
    Type(dialog, IDC_CROP_X, "20");
    Type(dialog, IDC_CROP_Y, "10");
    const struct {
      int x, y;
      uint32_t colour;
    } points[] = {{0, 0, kDim},         {19, 100, kDim},  {20, 10, 0xFFFFFF}, {20, 241, 0xFFFFFF},
                  {253, 241, 0xFFFFFF}, {21, 11, kPlain}, {252, 240, kPlain}, {254, 100, kDim},
                  {100, 242, kDim},     {100, 9, kDim},   {299, 279, kDim}};
    for (const auto& point : points) {
      EXPECT_EQ(point.colour, WindowPixel(preview, 2 * point.x + 1, point.y))
          << point.x << ", " << point.y;
    }
    Click(preview, 300, 130);
    EXPECT_EQ(0xFFFFFFU, WindowPixel(preview, 67, 14)) << "the click shows at once";
    EXPECT_EQ(kDim, WindowPixel(preview, 41, 10)) << "where the rectangle was";
    EXPECT_EQ(kPlain, WindowPixel(preview, 521, 244)) << "where it is now";
    EXPECT_EQ("33", Text(dialog, IDC_CROP_X));
    EXPECT_EQ("14", Text(dialog, IDC_CROP_Y));
  });
}

}  // namespace
