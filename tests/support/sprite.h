#pragma once

#include <string>

#include "imaging/image_class.h"

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
