#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "imaging/memory_dc.h"
#include "support/editor_fixture.h"

namespace {

class ClipboardTest : public EditorFixture {
 protected:
  // Leaves nothing of the test on the clipboard.
  void TearDown() override {
    if (OpenClipboard(doc.mainWindow)) {
      EmptyClipboard();
      CloseClipboard();
    }
    EditorFixture::TearDown();
  }

  // The clipboard's bitmap as a surface; empty when there is none.
  static ImageClass Pasted() {
    ImageClass picture;
    if (!OpenClipboard(doc.mainWindow)) return picture;
    const auto bitmap = static_cast<HBITMAP>(GetClipboardData(CF_BITMAP));
    BITMAP size{};
    if (bitmap && GetObjectA(bitmap, sizeof size, &size)) {
      BITMAPINFO info{};
      info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
      info.bmiHeader.biWidth = size.bmWidth;
      info.bmiHeader.biHeight = -size.bmHeight;  // top-down
      info.bmiHeader.biPlanes = 1;
      info.bmiHeader.biBitCount = 32;
      info.bmiHeader.biCompression = BI_RGB;
      std::vector<uint32_t> pixels(static_cast<size_t>(size.bmWidth) *
                                   static_cast<size_t>(size.bmHeight));
      const WindowDc screen(nullptr);
      GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(size.bmHeight), pixels.data(), &info,
                DIB_RGB_COLORS);
      picture.CreateFromPixels(pixels.data(), size.bmWidth, size.bmHeight);
    }
    CloseClipboard();
    return picture;
  }

  static void ExpectViewsPicture(const ImageClass& picture) {
    ASSERT_EQ(800, picture.width);
    ASSERT_EQ(520, picture.height);
    for (int32_t y = 0; y < 520; ++y) {
      for (int32_t x = 0; x < 800; ++x) {
        if (doc.canvas.ReadPixel(x, y) == (picture.ReadPixel(x, y) & 0xFFFFFF)) continue;
        FAIL() << "at " << x << ", " << y;
      }
    }
  }
};

TEST_F(ClipboardTest, HoldsWhatTheViewShows) {
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  Command(IDM_COPY);
  const ImageClass picture = Pasted();
  ExpectViewsPicture(picture);
  EXPECT_EQ(0xCFDFEFU, picture.ReadPixel(100, 400) & 0xFFFFFF) << "the selection frame is in it";
}

TEST_F(ClipboardTest, SecondCopyReplacesTheFirst) {
  Command(IDM_COPY);
  Command(IDM_VIEW_TOP_LAYER);
  Command(IDM_COPY);
  ExpectViewsPicture(Pasted());
}

}  // namespace
