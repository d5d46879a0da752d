#include "e2e/expected.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "export/quantizer.h"
#include "export/shp_palette.h"
#include "support/file_content.h"

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

// The smallest rectangle around the pixels that differ.
std::string Difference(const ImageClass& a, const ImageClass& b) {
  if (a.width != b.width || a.height != b.height) return "the size";
  int32_t left = a.width, top = a.height, right = 0, bottom = 0;
  for (int32_t y = 0; y < a.height; ++y) {
    for (int32_t x = 0; x < a.width; ++x) {
      if (a.ReadPixel(x, y) == b.ReadPixel(x, y)) continue;
      left = std::min(left, x);
      right = std::max(right, x + 1);
      top = std::min(top, y);
      bottom = y + 1;
    }
  }
  return std::to_string(right - left) + " x " + std::to_string(bottom - top) + " pixels at " +
         std::to_string(left) + ", " + std::to_string(top);
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
  const ImageClass expected = Compose<ImageClass>();
  ASSERT_EQ(picture.width, expected.width);
  ASSERT_EQ(picture.height, expected.height);
  for (int32_t y = 0; y < picture.height; ++y) {
    for (int32_t x = 0; x < picture.width; ++x) {
      ASSERT_EQ(picture.ReadPixel(x, y), expected.ReadPixel(x, y)) << "at " << x << ", " << y;
    }
  }
}

bool IsShown(const ImageClass& picture) { return SamePixels(picture, Compose<DIBClass>()); }

void ExpectShown(const Editor& editor) {
  const ImageClass expected = Compose<DIBClass>();
  ImageClass shown;
  try {
    WaitUntil("the view to show the document", [&] {
      shown = editor.ShownPicture();
      return SamePixels(shown, expected);
    });
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(error.what() + ("\nDifferent: " + Difference(shown, expected)));
  }
}

void ExpectSprite(const std::string& shpPath, const std::string& palPath, const ImageClass& picture,
                  int colours) {
  QuantizerClass quantizer(static_cast<uint32_t>(colours), 8);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  ShpPalette palette;
  std::string palBytes;
  for (int i = 0; i < kPaletteEntries; ++i) {
    palette.entries[i] = {static_cast<uint8_t>(table[i] >> 16), static_cast<uint8_t>(table[i] >> 8),
                          static_cast<uint8_t>(table[i])};
    for (const int shift : {16, 8, 0})
      palBytes += static_cast<char>((table[i] >> shift & 0xFF) / 4);
  }
  const auto used = static_cast<int32_t>(quantizer.EntryCount());
  EXPECT_LE(used, colours);
  EXPECT_GT(used, colours - 8);
  EXPECT_EQ(ReadContent(palPath), palBytes) << palPath;

  const std::string shp = ReadContent(shpPath);
  const std::string header(
      "\0\0\x20\x03\x08\x02\1\0\0\0\0\0\x20\x03\x08\x02\0\0\0\0\0\0\0\0\0\0\0\0\x20\0\0\0", 32);
  ASSERT_EQ(shp.size(), 416032u) << shpPath;
  EXPECT_EQ(shp.substr(0, header.size()), header) << shpPath;
  ImageClass decoded;
  decoded.Create(kPictureWidth, kPictureHeight);
  for (int32_t y = 0; y < kPictureHeight; ++y) {
    std::string row(kPictureWidth, '\0');
    MapToPalette(picture.Row(y), kPictureWidth, palette, used,
                 reinterpret_cast<uint8_t*>(row.data()));
    ASSERT_EQ(shp.compare(header.size() + static_cast<size_t>(y) * row.size(), row.size(), row), 0)
        << shpPath << " differs in row " << y;
    std::transform(row.begin(), row.end(), decoded.Row(y), [&](char index) {
      const size_t at = 3 * size_t{static_cast<uint8_t>(index)};
      const auto part = [&](size_t i) { return static_cast<uint8_t>(palBytes[at + i]) * 4u; };
      return part(0) << 16 | part(1) << 8 | part(2);
    });
  }
  SaveResult(shpPath.substr(shpPath.rfind('\\') + 1) + ".png", decoded);
}
