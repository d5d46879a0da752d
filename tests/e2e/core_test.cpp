#include <gtest/gtest.h>

#include "document/load_screen_doc.h"
#include "e2e/dialogs.h"
#include "e2e/editor.h"
#include "e2e/expectations.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "e2e/wait.h"

namespace {

// What the clipboard holds for other programs.
ImageClass ClipboardPicture() {
  WaitUntil("a bitmap on the clipboard", [] { return IsClipboardFormatAvailable(CF_BITMAP) != 0; });
  WaitUntil("the clipboard to open", [] { return OpenClipboard(nullptr) != 0; });
  ImageClass picture = PixelsOf(static_cast<HBITMAP>(GetClipboardData(CF_BITMAP)));
  CloseClipboard();
  return picture;
}

void EmptyTheClipboard() {
  WaitUntil("the clipboard to open", [] { return OpenClipboard(nullptr) != 0; });
  EmptyClipboard();
  CloseClipboard();
}

void Choose(const Editor& editor, const std::string& mode) {
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

  const ImageClass picture = SavePicture(editor, "start.png");
  ASSERT_EQ(picture.width, kPictureWidth);
  ASSERT_EQ(picture.height, kPictureHeight);
  ExpectWorldMap(picture, "all_worldmap.png", "all_2icomain.png", 0, 0);
  ExpectZoomedMap(picture, 232, 103);
  ExpectTargetBox(picture, 103);
  ExpectShown(editor, picture, 103);

  EmptyTheClipboard();
  editor.Menu("Edit", "Copy to clipboard");
  EXPECT_TRUE(SameOnScreen(ClipboardPicture(), picture, 103));

  const std::string shp = NewResultPath("start.shp"), pal = NewResultPath("start.pal");
  editor.Menu("File", "Save as SHP...");
  SaveDialog(editor, "save-shp").Save(shp);
  const ShpOptions options(editor, "shp-options");
  options.BrowsePaletteName(pal);
  options.Export();
  ExpectSprite(shp, pal, picture, 256);
}

TEST(CoreTest, SavesWhatTheArrowKeysMoved) {
  Editor editor;
  editor.Start();
  Choose(editor, "Move large map");
  editor.Press(VK_RIGHT, {VK_CONTROL, VK_SHIFT});
  editor.Press(VK_DOWN, {VK_CONTROL});
  Choose(editor, "Move target box");
  editor.Press(VK_DOWN, {VK_SHIFT});
  editor.Press(VK_DOWN);
  Choose(editor, "Move small map");
  editor.Press(VK_LEFT);
  editor.Main().Screenshot("moved");

  const ImageClass picture = SavePicture(editor, "moved.png");
  ExpectZoomedMap(picture, 242, 108);
  ExpectTargetBox(picture, 106);
  ExpectWorldMap(picture, "all_worldmap.png", "all_2icomain.png", 1599, 0);
  ExpectShown(editor, picture, 106);

  const std::string shp = NewResultPath("moved.shp"), pal = NewResultPath("moved.pal");
  editor.Menu("File", "Save as SHP...");
  SaveDialog(editor, "save-shp").Save(shp);
  const ShpOptions options(editor, "shp-options-64");
  options.TypePaletteName(pal);
  options.SetColours(64);
  options.Export();
  ExpectSprite(shp, pal, picture, 64);
}

TEST(CoreTest, SavesBlackWithoutLayers) {
  Editor editor;
  editor.Start();
  const ImageClass before = editor.ShownPicture();
  editor.MenuWithKeys("View", "View top layer");
  WaitUntil("the top layer to go", [&] { return !SamePixels(editor.ShownPicture(), before); });
  editor.Menu("View", "View bottom layer");
  ImageClass black;
  black.Create(kPictureWidth, kPictureHeight);
  WaitUntil("a black picture", [&] { return SamePixels(editor.ShownPicture(), black); });
  editor.Main().Screenshot("nolayers");
  EXPECT_TRUE(SamePixels(SavePicture(editor, "nolayers.png"), black));
}
