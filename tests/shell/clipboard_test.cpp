#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "imaging/memory_dc.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

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
      for (uint32_t& pixel : pixels) pixel &= 0xFFFFFF;
      picture.CreateFromPixels(pixels.data(), size.bmWidth, size.bmHeight);
    }
    CloseClipboard();
    return picture;
  }
};

TEST_F(ClipboardTest, HoldsWhatTheViewShows) {
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  Command(IDM_COPY);
  const ImageClass picture = Pasted();
  EXPECT_EQ("", Difference(doc.canvas, picture));
  EXPECT_EQ(0xCFDFEFU, picture.ReadPixel(100, 400)) << "the selection frame is in it";
}

TEST_F(ClipboardTest, SecondCopyReplacesTheFirst) {
  Command(IDM_COPY);
  Command(IDM_VIEW_TOP_LAYER);
  Command(IDM_COPY);
  EXPECT_EQ("", Difference(doc.canvas, Pasted()));
}

TEST_F(ClipboardTest, ClipboardThatIsInUseKeepsItsPicture) {
  Command(IDM_COPY);
  const ImageClass before = Pasted();
  Command(IDM_VIEW_TOP_LAYER);
  ASSERT_TRUE(OpenClipboard(doc.viewWindow));
  Command(IDM_COPY);
  CloseClipboard();
  ASSERT_EQ(800, before.width);
  EXPECT_EQ("", Difference(before, Pasted()));
}

}  // namespace
