#include "e2e/expected.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "support/file_content.h"
#include "support/picture_difference.h"
#include "support/sprite.h"

namespace {

// Composes `doc` into a surface of the kind.
template <class Surface>
ImageClass Compose() {
  Surface surface;
  surface.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&surface);
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  picture.CopyRegion(surface, 0, 0, 0, 0, kPictureWidth, kPictureHeight);
  return picture;
}

}  // namespace

ImageClass Template(const std::string& name) {
  return LoadPicture(EditorFile("Templates\\" + name));
}

void ExpectFreshDocument(const std::string& side, int icons) {
  doc.showTopLayer = doc.showBottomLayer = 1;
  doc.iconCount = icons;
  doc.worldMapX = doc.worldMapY = 0;
  doc.worldMap2xX = doc.targetBoxX = 232;
  doc.worldMap2xY = doc.targetBoxY = 103;
  doc.worldMap = Template(side + "_worldmap.png");
  doc.sideOverlay = Template(side + "_" + std::to_string(icons) + "icomain.png");
  doc.largeTargetBox = Template("com_largetargetbox.png");
  doc.smallTargetBox = Template("com_smalltargetbox.png");
  doc.worldMap2x = Template("com_worldmap2x.png");
  doc.screenshot.Free();
  for (ImageClass& icon : doc.icons) icon.Free();
  doc.items = {};
}

void ExpectSaved(const ImageClass& picture) {
  EXPECT_EQ(Difference(Compose<ImageClass>(), picture), "");
}

bool IsShown(const ImageClass& picture) { return Difference(Compose<DIBClass>(), picture).empty(); }

void ExpectShown(const Editor& editor) {
  const ImageClass expected = Compose<DIBClass>();
  ImageClass shown;
  try {
    WaitUntil("the view to show the document", [&] {
      shown = editor.ShownPicture();
      return Difference(expected, shown).empty();
    });
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(error.what() + ("\nDifferent: " + Difference(expected, shown)));
  }
}

void ExpectSprite(const std::string& shpPath, const std::string& palPath, const ImageClass& picture,
                  int colours) {
  const auto [palette, used] = GeneratedPalette(picture, colours);
  const std::string palBytes = SixBitBytes(palette);
  EXPECT_LE(used, colours);
  EXPECT_GT(used, colours - 8);
  EXPECT_EQ(ReadContent(palPath), palBytes) << palPath;

  const std::string shp = ReadContent(shpPath);
  const std::string header(
      "\0\0\x20\x03\x08\x02\1\0\0\0\0\0\x20\x03\x08\x02\0\0\0\0\0\0\0\0\0\0\0\0\x20\0\0\0", 32);
  ASSERT_EQ(shp.size(), 416032u) << shpPath;
  EXPECT_EQ(shp.substr(0, header.size()), header) << shpPath;
  for (int32_t y = 0; y < kPictureHeight; ++y) {
    std::string row(kPictureWidth, '\0');
    MapToPalette(picture.Row(y), kPictureWidth, palette, used,
                 reinterpret_cast<uint8_t*>(row.data()));
    ASSERT_EQ(shp.compare(header.size() + static_cast<size_t>(y) * row.size(), row.size(), row), 0)
        << shpPath << " differs in row " << y;
  }
  SaveResult(shpPath.substr(shpPath.rfind('\\') + 1) + ".png", ReadSprite(shp, palBytes));
}
