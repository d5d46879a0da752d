#pragma once

#include <string>
#include <utility>

#include "export/quantizer.h"
#include "export/shp_palette.h"
#include "imaging/image_class.h"

// Sprites and their palettes, worked out or read once more beside the editor's export.

// The palette that reducing the picture to so many colours gives, and how many of its entries are
// used.
inline std::pair<ShpPalette, int32_t> GeneratedPalette(const BitmapClass& picture,
                                                       int32_t colours) {
  QuantizerClass quantizer(static_cast<uint32_t>(colours), 8);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  ShpPalette palette;
  for (int i = 0; i < kPaletteEntries; ++i) {
    palette.entries[i] = {static_cast<uint8_t>(table[i] >> 16), static_cast<uint8_t>(table[i] >> 8),
                          static_cast<uint8_t>(table[i])};
  }
  return {palette, static_cast<int32_t>(quantizer.EntryCount())};
}

// The palette as its file holds it.
inline std::string SixBitBytes(const ShpPalette& palette) {
  std::string bytes;
  for (const ShpColour& entry : palette.entries) {
    for (const uint8_t part : {entry.red, entry.green, entry.blue}) {
      bytes += static_cast<char>(part / 4);
    }
  }
  return bytes;
}

// The picture that the contents of a sprite file and its palette file show; empty when they have
// not the sizes of such files.
inline ImageClass ReadSprite(const std::string& shp, const std::string& pal) {
  ImageClass picture;
  if (shp.size() != 416032 || pal.size() != 768) return picture;
  picture.Create(800, 520);
  for (size_t i = 0; i < 416000; ++i) {
    const size_t entry = static_cast<uint8_t>(shp[32 + i]) * 3U;
    const auto part = [&](size_t n) { return static_cast<uint8_t>(pal[entry + n]) * 4U; };
    picture.PutPixel(static_cast<int32_t>(i % 800), static_cast<int32_t>(i / 800),
                     part(0) << 16 | part(1) << 8 | part(2));
  }
  return picture;
}
