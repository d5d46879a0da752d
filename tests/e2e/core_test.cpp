#include <gtest/gtest.h>

#include "document/load_screen_doc.h"
#include "e2e/dialogs.h"
#include "e2e/editor.h"
#include "e2e/expected.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "imaging/memory_dc.h"

namespace {

void OpenTheClipboard() {
  WaitUntil("the clipboard to open", [] { return OpenClipboard(nullptr) != 0; });
}

// Copies to the clipboard and takes from it what other programs get.
ImageClass CopyByClipboard(const Editor& editor) {
  OpenTheClipboard();
  EmptyClipboard();
  CloseClipboard();
  editor.Menu("Edit", "Copy to clipboard");
  WaitUntil("a bitmap on the clipboard", [] { return IsClipboardFormatAvailable(CF_BITMAP) != 0; });
  OpenTheClipboard();
  const auto bitmap = static_cast<HBITMAP>(GetClipboardData(CF_BITMAP));
  BITMAP size{};
  GetObjectA(bitmap, sizeof size, &size);
  ImageClass picture =
      CopyPixels(MemoryDc(nullptr, bitmap).get(), {0, 0, size.bmWidth, size.bmHeight});
  CloseClipboard();
  return picture;
}

}  // namespace

TEST(CoreTest, SavesTheSamePictureInEveryFormatAfterStartUp) {
  Editor editor;
  editor.Start();
  editor.Main().Screenshot("main");
  EXPECT_EQ(editor.Status(0), "Allied - 2");
  EXPECT_EQ(editor.Status(2),
            "Press CTRL to move map faster(5x) or press CTRL+SHIFT to move map faster (10x)");

  ExpectFreshDocument("all", 2);
  ExpectShown(editor);
  const ImageClass picture = SavePicture(editor, "start.png");
  ExpectSaved(picture);
  EXPECT_TRUE(IsShown(CopyByClipboard(editor)));
  ExportSprite(editor, "start", picture, 256, PaletteName::Chosen);
}
