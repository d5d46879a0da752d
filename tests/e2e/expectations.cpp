#include "e2e/expectations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <sstream>

#include "e2e/results.h"
#include "export/quantizer.h"
#include "export/shp_palette.h"
#include "support/file_content.h"

namespace {

constexpr int kFrameX = 346, kFrameY = 52, kBoxX = 232, kFanWidth = 5;
constexpr int kZoomX = 353, kZoomY = 58, kZoomWidth = 281, kZoomHeight = 277;

ImageClass Template(const std::string& name) {
  return LoadPicture(EditorFile("Templates\\" + name));
}

std::string Hex(uint32_t pixel) {
  std::ostringstream text;
  text << std::hex << "0x" << pixel;
  return text.str();
}

// Compares one pixel; false, after failing the test, when it is wrong.
bool Matches(const ImageClass& picture, int x, int y, uint32_t expected, const std::string& what) {
  if (picture.ReadPixel(x, y) == expected) return true;
  ADD_FAILURE() << what << ": (" << x << ", " << y << ") is " << Hex(picture.ReadPixel(x, y))
                << " and not " << Hex(expected);
  return false;
}

// Whether a pixel lies on the lines from the box's row `fromY` to the frame's row `toY`, or up to
// two columns beside them.
bool IsOnFan(int x, int y, int fromY, int toY) {
  constexpr int kNear = 4;  // columns; a line takes up to three a row
  if (y < std::min(fromY, toY) || y > std::max(fromY, toY)) return false;
  const int left = kBoxX + (kFrameX - kBoxX) * (y - fromY) / (toY - fromY);
  return x >= left - kNear && x < left + kFanWidth + kNear;
}

ShpPalette ExpectedPalette(const ImageClass& picture, int colours, int& used) {
  QuantizerClass quantizer(static_cast<uint32_t>(colours), 8);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  used = static_cast<int>(quantizer.EntryCount());
  ShpPalette palette;
  for (int i = 0; i < used; ++i) {
    palette.entries[i] = {static_cast<uint8_t>(table[i] >> 16), static_cast<uint8_t>(table[i] >> 8),
                          static_cast<uint8_t>(table[i])};
  }
  return palette;
}

std::string PalBytes(const ShpPalette& palette) {
  std::string bytes(sizeof palette, '\0');
  std::memcpy(bytes.data(), &palette, sizeof palette);
  for (char& component : bytes) {
    component = static_cast<char>(static_cast<uint8_t>(component) >> 2);
  }
  return bytes;
}

}  // namespace

void ExpectWorldMap(const ImageClass& picture, const std::string& map, const std::string& overlay,
                    int x, int y) {
  const ImageClass world = Template(map), cover = Template(overlay);
  const int belowFrame = kFrameY + Template("com_largetargetbox.png").height;
  int compared = 0;
  for (int row = 0; row < picture.height; ++row) {
    for (int column = 0; column < picture.width; ++column) {
      if (column >= kBoxX && row < belowFrame) break;
      if (cover.ReadPixel(column, row) != kKeyColour) continue;
      const uint32_t pixel = world.ReadPixel((column + x) % world.width, (row + y) % world.height);
      if (!Matches(picture, column, row, pixel, "the world map")) return;
      ++compared;
    }
  }
  EXPECT_GT(compared, 10000) << "pixels of the world map";
}

void ExpectZoomedMap(const ImageClass& picture, int x, int y) {
  const ImageClass map = Template("com_worldmap2x.png");
  for (int row = 0; row < kZoomHeight; ++row) {
    for (int column = 0; column < kZoomWidth; ++column) {
      const uint32_t pixel = map.ReadPixel((column + x) % map.width, (row + y) % map.height);
      if (!Matches(picture, kZoomX + column, kZoomY + row, pixel, "the zoomed map")) return;
    }
  }
}

void ExpectTargetBox(const ImageClass& picture, int y) {
  // The lines that begin in the left columns cover two pixels more in the first row.
  constexpr int kCovered = kFanWidth + 2;
  const ImageClass box = Template("com_smalltargetbox.png");
  for (int row = 0; row < box.height; ++row) {
    for (int column = kCovered; column < box.width; ++column) {
      const uint32_t pixel = box.ReadPixel(column, row);
      if (pixel == kKeyColour) continue;
      if (!Matches(picture, kBoxX + column, y + row, pixel, "the target box")) return;
    }
  }
}

void ExpectPart(const ImageClass& picture, const ImageClass& expected, int x, int y,
                const std::string& what) {
  for (int row = 0; row < expected.height; ++row) {
    for (int column = 0; column < expected.width; ++column) {
      const uint32_t pixel = expected.ReadPixel(column, row);
      if (pixel == kKeyColour) continue;
      if (!Matches(picture, x + column, y + row, pixel, what)) return;
    }
  }
}

void ExpectSprite(const std::string& shpPath, const std::string& palPath, const ImageClass& picture,
                  int colours) {
  const std::string shp = ReadContent(shpPath), pal = ReadContent(palPath);
  ASSERT_EQ(shp.size(), 416032u) << shpPath;
  ASSERT_EQ(pal.size(), 768u) << palPath;
  const std::string header(
      "\0\0\x20\x03\x08\x02\1\0\0\0\0\0\x20\x03\x08\x02\0\0\0\0\0\0\0\0\0\0\0\0\x20\0\0\0", 32);
  EXPECT_EQ(shp.substr(0, header.size()), header);

  int used = 0;
  const ShpPalette palette = ExpectedPalette(picture, colours, used);
  EXPECT_LE(used, colours);
  EXPECT_GT(used, colours - 8) << "colours in use";
  EXPECT_EQ(pal, PalBytes(palette)) << palPath;
  size_t position = header.size();
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const uint32_t pixel = picture.ReadPixel(x, y);
      const int index =
          NearestColor(palette, static_cast<int>(pixel >> 16 & 0xFF),
                       static_cast<int>(pixel >> 8 & 0xFF), static_cast<int>(pixel & 0xFF), used);
      ASSERT_EQ(static_cast<uint8_t>(shp[position++]), index) << "at (" << x << ", " << y << ")";
    }
  }
}

bool SameOnScreen(const ImageClass& shown, const ImageClass& saved, int boxY) {
  if (shown.width != saved.width || shown.height != saved.height) return false;
  static const int boxHeight = Template("com_smalltargetbox.png").height;
  static const int frameHeight = Template("com_largetargetbox.png").height;
  const int boxBottom = boxY + boxHeight, frameBottom = kFrameY + frameHeight - 4;
  for (int y = 0; y < saved.height; ++y) {
    for (int x = 0; x < saved.width; ++x) {
      if (shown.ReadPixel(x, y) == saved.ReadPixel(x, y)) continue;
      if (IsOnFan(x, y, boxY, kFrameY) || IsOnFan(x, y, boxBottom, frameBottom)) continue;
      return false;
    }
  }
  return true;
}
