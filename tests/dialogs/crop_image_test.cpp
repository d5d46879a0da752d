#include "dialogs/crop_image.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Crop image";
constexpr SIZE kCropSize = {234, 232};

uint32_t SourcePixel(int32_t x, int32_t y) {
  return static_cast<uint32_t>(x) + (static_cast<uint32_t>(y) << 12);
}

class CropImageTest : public EditorFixture {
 protected:
  // Crops a picture of that size while the user does the step; the result of CropImage.
  int Crop(int32_t width, int32_t height, const std::function<void(HWND)>& step) {
    user.When(kCaption, step);
    return CropImage(result, MakePicture(width, height, SourcePixel), "a.png", kCropSize);
  }
  // The pixel of the picture that the result starts with.
  void ExpectCroppedAt(int32_t x, int32_t y) {
    EXPECT_EQ(234, result.width);
    EXPECT_EQ(232, result.height);
    EXPECT_EQ(SourcePixel(x, y), result.ReadPixel(0, 0));
    EXPECT_EQ(SourcePixel(x + 233, y + 231), result.ReadPixel(233, 231));
  }
  // Gives the preview a size of its own.
  static HWND SizePreview(HWND dialog, int width, int height) {
    const HWND preview = GetDlgItem(dialog, IDC_CROP_PREVIEW);
    MoveWindow(preview, 0, 0, width, height, TRUE);
    return preview;
  }

  ImageClass result;
};

TEST_F(CropImageTest, OpensInTheCorner) {
  for (int opening = 0; opening < 2; ++opening) {
    const int cropped = Crop(300, 280, [](HWND dialog) {
      EXPECT_EQ("a.png", Text(dialog, IDC_CROP_PATH));
      EXPECT_EQ("0", Text(dialog, IDC_CROP_X));
      EXPECT_EQ("0", Text(dialog, IDC_CROP_Y));
      EXPECT_EQ("234", Text(dialog, IDC_CROP_WIDTH));
      EXPECT_EQ("232", Text(dialog, IDC_CROP_HEIGHT));
      Type(dialog, IDC_CROP_X, "30");
      Press(dialog, IDOK);
    });
    EXPECT_EQ(1, cropped);
    ExpectCroppedAt(30, 0);
    EXPECT_EQ(0, doc.cropPreview.valid);
    result.Free();
  }
}

TEST_F(CropImageTest, CancelLeavesTheDestinationEmpty) {
  for (const UINT message : {WM_COMMAND, WM_CLOSE}) {
    EXPECT_EQ(0, Crop(300, 280, [message](HWND dialog) {
                SendMessageA(dialog, message, message == WM_COMMAND ? IDCANCEL : 0, 0);
              }));
    EXPECT_EQ(0, result.valid);
    EXPECT_EQ(0, doc.cropPreview.valid);
  }
}

TEST_F(CropImageTest, EscapeCancelsAndEnterAccepts) {
  EXPECT_EQ(
      0, Crop(300, 280, [](HWND dialog) { PressKey(GetDlgItem(dialog, IDC_CROP_X), VK_ESCAPE); }));
  EXPECT_EQ(1, Crop(300, 280, [](HWND dialog) {
              Type(dialog, IDC_CROP_Y, "48");
              PressKey(GetDlgItem(dialog, IDC_CROP_Y), VK_RETURN);
            }));
  ExpectCroppedAt(0, 48);
}

TEST_F(CropImageTest, TypedPositionsAreLimitedButStayInTheirField) {
  Crop(1920, 1080, [](HWND dialog) {
    Type(dialog, IDC_CROP_X, "5000");
    Type(dialog, IDC_CROP_Y, "4294967295");
    EXPECT_EQ("5000", Text(dialog, IDC_CROP_X));
    EXPECT_EQ("4294967295", Text(dialog, IDC_CROP_Y));
    Press(dialog, IDOK);
  });
  ExpectCroppedAt(1920 - 234, 0);
}

TEST_F(CropImageTest, EmptyFieldCountsAsZero) {
  Crop(300, 280, [](HWND dialog) {
    Type(dialog, IDC_CROP_X, "40");
    Type(dialog, IDC_CROP_Y, "40");
    Type(dialog, IDC_CROP_X, "");
    Press(dialog, IDOK);
  });
  ExpectCroppedAt(0, 40);
}

TEST_F(CropImageTest, ArrowsMoveTheRectangleWithinThePicture) {
  Crop(300, 232, [](HWND dialog) {
    EXPECT_EQ(MAKELONG(66, 0), SendDlgItemMessageA(dialog, IDC_CROP_X_ARROWS, UDM_GETRANGE, 0, 0));
    EXPECT_EQ(MAKELONG(0, 0), SendDlgItemMessageA(dialog, IDC_CROP_Y_ARROWS, UDM_GETRANGE, 0, 0));
    Type(dialog, IDC_CROP_X, "64");
    for (int i = 0; i < 5; ++i) PressKey(GetDlgItem(dialog, IDC_CROP_X), VK_UP);
    EXPECT_EQ("66", Text(dialog, IDC_CROP_X));
    PressKey(GetDlgItem(dialog, IDC_CROP_X), VK_DOWN);
    Press(dialog, IDOK);
  });
  ExpectCroppedAt(65, 0);
}

TEST_F(CropImageTest, ArrowsWriteThousandsWithoutSeparator) {
  Crop(1920, 1080, [](HWND dialog) {
    Type(dialog, IDC_CROP_X, "1499");
    PressKey(GetDlgItem(dialog, IDC_CROP_X), VK_UP);
    EXPECT_EQ("1500", Text(dialog, IDC_CROP_X));
    Press(dialog, IDOK);
  });
  ExpectCroppedAt(1500, 0);
}

TEST_F(CropImageTest, ClickCentresTheRectangle) {
  Crop(1024, 768, [](HWND dialog) {
    Click(SizePreview(dialog, 512, 384), 256, 192);
    EXPECT_EQ("395", Text(dialog, IDC_CROP_X));
    EXPECT_EQ("268", Text(dialog, IDC_CROP_Y));
    Press(dialog, IDOK);
  });
  ExpectCroppedAt(395, 268);
}

TEST_F(CropImageTest, PreviewDimsAllButTheOutlinedRectangle) {
  user.When(kCaption, [](HWND dialog) {
    const HWND preview = SizePreview(dialog, 300, 280);
    Type(dialog, IDC_CROP_X, "20");
    Type(dialog, IDC_CROP_Y, "10");
    const struct {
      int x, y;
      uint32_t colour;
    } points[] = {{0, 0, 0x404040},     {19, 100, 0x404040},  {20, 10, 0xFFFFFF},
                  {20, 241, 0xFFFFFF},  {253, 241, 0xFFFFFF}, {21, 11, 0x808080},
                  {252, 240, 0x808080}, {254, 100, 0x404040}, {100, 242, 0x404040},
                  {100, 9, 0x404040},   {299, 279, 0x404040}};
    for (const auto& point : points) {
      EXPECT_EQ(point.colour, WindowPixel(preview, point.x, point.y)) << point.x << "," << point.y;
    }
    Click(preview, 0, 0);
    EXPECT_EQ(0xFFFFFFU, WindowPixel(preview, 0, 0)) << "the click shows at once";
    EXPECT_EQ(0x404040U, WindowPixel(preview, 253, 241));
    Press(dialog, IDCANCEL);
  });
  CropImage(result, PlainPicture(300, 280, 0x808080), "", kCropSize);
}

TEST_F(CropImageTest, LayoutFollowsTheSize) {
  Crop(300, 280, [](HWND dialog) {
    for (const SIZE outer : {SIZE{700, 600}, SIZE{440, 334}, SIZE{1000, 500}}) {
      SetWindowPos(dialog, nullptr, 0, 0, outer.cx, outer.cy, SWP_NOZORDER | SWP_NOMOVE);
      const SIZE client = ClientSize(dialog);
      const SIZE preview = ClientSize(GetDlgItem(dialog, IDC_CROP_PREVIEW));
      RECT path{};
      GetWindowRect(GetDlgItem(dialog, IDC_CROP_PATH), &path);
      EXPECT_EQ(client.cx - 24, preview.cx);
      EXPECT_EQ(client.cy - 172, preview.cy);
      EXPECT_GT(preview.cy, 0);
      EXPECT_EQ(client.cx - 24, path.right - path.left);
      EXPECT_EQ(23, path.bottom - path.top);
      const int expected[][3] = {{IDOK, 87, -33},
                                 {IDCANCEL, 169, -33},
                                 {IDC_CROP_GROUP, 12, -102},
                                 {IDC_CROP_X, 33, -80},
                                 {IDC_CROP_X_ARROWS, 93, -80},
                                 {IDC_CROP_Y, 131, -80},
                                 {IDC_CROP_Y_ARROWS, 192, -80},
                                 {IDC_CROP_WIDTH, 229, -80},
                                 {IDC_CROP_HEIGHT, 327, -80}};
      for (const auto& place : expected) {
        RECT control{};
        GetWindowRect(GetDlgItem(dialog, place[0]), &control);
        // The path stands at (12, 30) of the client area.
        EXPECT_EQ(place[1] - 12, control.left - path.left) << place[0];
        EXPECT_EQ(client.cy + place[2] - 30, control.top - path.top) << place[0];
      }
    }
    Press(dialog, IDCANCEL);
  });
}

TEST_F(CropImageTest, DialogHasASmallestSize) {
  Crop(300, 280, [](HWND dialog) {
    MINMAXINFO limits{};
    SendMessageA(dialog, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(440, limits.ptMinTrackSize.x);
    EXPECT_EQ(334, limits.ptMinTrackSize.y);
    Press(dialog, IDCANCEL);
  });
}

TEST_F(CropImageTest, EmptySourceIsLikeACancel) {
  EXPECT_EQ(0, CropImage(result, ImageClass(), "", kCropSize));
  EXPECT_EQ(0, result.valid);
}

}  // namespace
