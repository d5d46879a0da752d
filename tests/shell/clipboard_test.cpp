#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "imaging/memory_dc.h"
#ifndef _WIN32
#include "platform/standin/testing.h"
#endif
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

  // The clipboard's bitmap as a surface.
  static DIBClass Pasted() {
    DIBClass picture(800, 520);
    EXPECT_TRUE(OpenClipboard(doc.viewWindow)) << "the editor has closed it";
    const auto bitmap = static_cast<HBITMAP>(GetClipboardData(CF_BITMAP));
    BITMAP size{};
    EXPECT_NE(0, GetObjectA(bitmap, sizeof size, &size));
    EXPECT_TRUE(size.bmWidth == 800 && size.bmHeight == 520);
    {
      const MemoryDc from(nullptr, bitmap), to(nullptr, picture.bitmap);
      BitBlt(to.get(), 0, 0, 800, 520, from.get(), 0, 0, SRCCOPY);
    }
    CloseClipboard();
    return picture;
  }
};

TEST_F(ClipboardTest, HoldsWhatTheViewShowedUnlessItIsInUse) {
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  Command(IDM_COPY);
  const DIBClass before = Pasted();
  EXPECT_EQ("", Difference(doc.canvas, before));
  EXPECT_EQ(0xCFDFEFU, before.ReadPixel(100, 400)) << "the selection frame is in it";
  Command(IDM_VIEW_TOP_LAYER);
#ifndef _WIN32
  const size_t objects = standin::LiveGdiObjects();
#endif
  ASSERT_TRUE(OpenClipboard(doc.viewWindow));
  Command(IDM_COPY);
  CloseClipboard();
#ifndef _WIN32
  EXPECT_EQ(objects, standin::LiveGdiObjects()) << "nothing is left";
#endif
  EXPECT_EQ("", Difference(before, Pasted()));
#ifdef _WIN32
  ASSERT_TRUE(OpenClipboard(doc.viewWindow));
  SetClipboardData(CF_TEXT, GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 1));
  CloseClipboard();
#endif
  Command(IDM_COPY);
  EXPECT_EQ("", Difference(doc.canvas, Pasted())) << "the second copy replaces the first";
#ifdef _WIN32
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT)) << "and what else was there";
#endif
}

}  // namespace
