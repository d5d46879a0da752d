#include <algorithm>

#include "imagelib/native/native_codecs.h"

// Byte table (little-endian), as far as it is used here:
//   0 "BM"   2 file size   10 offset of the pixels
//  14 length of the bitmap header (40 or more)   18 width   22 height, negative: top row first
//  26 planes 1   28 bits 8, 24 or 32   30 compression 0, or 3: masks at 54   46 palette entries
// then the palette (B, G, R, 0 each), then rows padded to 4 bytes.
namespace imagelib {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;

struct Layout {
  std::size_t offset;
  std::size_t rowBytes;
  std::size_t palette;
  std::size_t bits;
  bool topRowFirst;
};

std::size_t RowBytes(std::size_t width, std::size_t bits) { return (width * bits + 31) / 32 * 4; }

// Only masks that mean the usual order of bytes; others are rare.
bool UsualPixels(ByteView file) {
  constexpr std::uint32_t kBitFields = 3;
  const std::uint32_t bits = Read16Le(file, 28);
  const std::uint32_t compression = Read32Le(file, 30);
  if (compression == 0) return bits == 8 || bits == 24 || bits == 32;
  return compression == kBitFields && bits == 32 && Read32Le(file, 54) == 0xFF0000 &&
         Read32Le(file, 58) == 0x00FF00 && Read32Le(file, 62) == 0x0000FF;
}

std::uint32_t PixelAt(ByteView file, const Layout& layout, std::size_t row, std::size_t x) {
  switch (layout.bits) {
    case 8:
      return Read32Le(file, layout.palette + 4 * std::size_t{file[row + x]});
    case 24:
      return Read16Le(file, row + 3 * x) | Read8(file, row + 3 * x + 2) << 16;
    default:
      return Read32Le(file, row + 4 * x);
  }
}

// Every index must have its palette entry in front of the pixels.
bool IndicesFit(ByteView file, const Layout& layout, std::size_t width, std::size_t height) {
  const std::size_t room =
      layout.offset > layout.palette ? (layout.offset - layout.palette) / 4 : 0;
  const std::size_t used = Read32Le(file, 46) == 0 ? 256 : Read32Le(file, 46);
  const std::size_t entries = std::min(room, used);
  for (std::size_t y = 0; y < height; ++y) {
    const ByteView row = file.subspan(layout.offset + y * layout.rowBytes, width);
    if (*std::max_element(row.begin(), row.end()) >= entries) return false;
  }
  return true;
}

void Put(Bytes* file, std::size_t at, std::size_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) {
    (*file)[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value >> (8 * i));
  }
}

}  // namespace

bool DecodeBmp(ByteView file, const Container& container, std::uint32_t* pixels) {
  const std::size_t header = Read32Le(file, 14);
  if (header < kInfoHeader || !UsualPixels(file)) return false;
  const auto width = static_cast<std::size_t>(container.width);
  const auto height = static_cast<std::size_t>(container.height);
  const std::size_t bits = Read16Le(file, 28);
  const Layout layout{Read32Le(file, 10), RowBytes(width, bits), kFileHeader + header, bits,
                      static_cast<std::int32_t>(Read32Le(file, 22)) < 0};
  if (bits == 8 && !IndicesFit(file, layout, width, height)) return false;
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t stored = layout.topRowFirst ? y : height - 1 - y;
    const std::size_t row = layout.offset + stored * layout.rowBytes;
    for (std::size_t x = 0; x < width; ++x) *pixels++ = PixelAt(file, layout, row, x);
  }
  return true;
}

bool EncodeBmp(const std::uint32_t* pixels, std::int32_t width, std::int32_t height, Bytes* file) {
  const auto columns = static_cast<std::size_t>(width);
  const auto rows = static_cast<std::size_t>(height);
  const std::size_t rowBytes = RowBytes(columns, 24);
  const std::size_t offset = kFileHeader + kInfoHeader;
  file->resize(offset + rowBytes * rows);
  Put(file, 0, 'B' | 'M' << 8, 2);
  Put(file, 2, file->size(), 4);
  Put(file, 10, offset, 4);
  Put(file, 14, kInfoHeader, 4);
  Put(file, 18, columns, 4);
  Put(file, 22, rows, 4);
  Put(file, 26, 1, 2);
  Put(file, 28, 24, 2);
  Put(file, 34, rowBytes * rows, 4);
  for (std::size_t y = 0; y < rows; ++y) {
    std::size_t at = offset + (rows - 1 - y) * rowBytes;
    for (std::size_t x = 0; x < columns; ++x, at += 3) Put(file, at, *pixels++, 3);
  }
  return true;
}

}  // namespace imagelib
