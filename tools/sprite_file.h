#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "export/shp_files.h"

// The longest side of a sprite that is read, as of a picture.
inline constexpr uint32_t kLongestSide = 16384;

// One frame of a sprite file.
struct SpriteFrame {
  SHP2FILEHEADER header{};
  SHP2FRAMEINFO info{};
  std::vector<uint8_t> indices;  // a row of the frame after the other, from the top
};

// Reads a frame, counted from 0. An empty text, or what is wrong with the file: the first field
// that no uncompressed sprite of a size up to kLongestSide can have. Throws std::bad_alloc.
std::string ReadSpriteFrame(const std::string& path, uint32_t index, SpriteFrame& frame);

// Reads a palette and what may be wrong with it although it can be read, otherwise empty. The
// result is an empty text, or why it cannot be read.
std::string ReadPalette(const std::string& path, ShpPalette& palette, std::string& doubt);
