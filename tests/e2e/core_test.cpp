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

void ChooseMode(const Editor& editor, const std::string& mode) {
  editor.Menu("Mode", mode);
  WaitUntil("mode " + mode, [&] { return editor.Status(1) == "Current mode: " + mode; });
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

TEST(CoreTest, SavesWhatTheArrowKeysMoved) {
  Editor editor;
  editor.Start();
  ChooseMode(editor, "Move large map");
  editor.Press(VK_RIGHT, {VK_CONTROL, VK_SHIFT});
  editor.Press(VK_DOWN, {VK_CONTROL});
  ChooseMode(editor, "Move target box");
  editor.Press(VK_DOWN, {VK_SHIFT});
  editor.Press(VK_DOWN);
  ChooseMode(editor, "Move small map");
  editor.Press(VK_LEFT);
  editor.Main().Screenshot("moved");

  ExpectFreshDocument("all", 2);
  doc.worldMap2xX += 10;
  doc.worldMap2xY += 5;
  doc.targetBoxY += 3;
  doc.worldMapX = doc.worldMap.width - 1;
  ExpectShown(editor);
  const ImageClass picture = SavePicture(editor, "moved.png");
  ExpectSaved(picture);
  // The frame's window, without the help of the composition.
  for (int y = 0; y < 277; ++y) {
    for (int x = 0; x < 281; ++x) {
      ASSERT_EQ(picture.ReadPixel(353 + x, 58 + y), doc.worldMap2x.ReadPixel(242 + x, 108 + y));
    }
  }
  ExportSprite(editor, "moved", picture, 64, PaletteName::Typed);
}

TEST(CoreTest, SavesBlackWithoutLayers) {
  Editor editor;
  editor.Start();
  ExpectFreshDocument("all", 2);
  doc.showTopLayer = 0;
  editor.MenuWithKeys("View", "View top layer");
  ExpectShown(editor);
  doc.showBottomLayer = 0;
  editor.Menu("View", "View bottom layer");
  ExpectShown(editor);
  editor.Main().Screenshot("nolayers");
  const ImageClass picture = SavePicture(editor, "nolayers.png");
  ImageClass black;
  black.Create(kPictureWidth, kPictureHeight);
  EXPECT_TRUE(SamePixels(picture, black));
}
