#include <cstdlib>

#include "imagelib/container.h"

namespace imagelib {
namespace {

// Whether `count` bytes lie at `at` inside the file; no sum can wrap.
bool Holds(ByteView file, std::size_t at, std::uint64_t count) {
  return at <= file.size() && count <= file.size() - at;
}

// Position past GIF's chain of sub-blocks, each a length byte and its data, closed by a length of
// 0.
std::optional<std::size_t> SkipGifBlocks(ByteView file, std::size_t at) {
  while (at < file.size()) {
    const std::uint32_t length = file[at];
    at += 1 + length;
    if (length == 0) return at;
  }
  return std::nullopt;
}

std::size_t GifTableBytes(std::uint32_t flags) {
  return (flags & 0x80) != 0 ? std::size_t{3} << ((flags & 7) + 1) : 0;
}

// Position of the code byte of JPEG's next marker. Stuffed zeros, restarts and stray bytes in front
// of it belong to the scan data or to nobody.
std::size_t NextJpegMarker(ByteView file, std::size_t at) {
  while (at + 1 < file.size()) {
    const std::uint32_t code = file[at + 1];
    if (file[at] == 0xFF && code != 0xFF && code > 0x01 && (code < 0xD0 || code > 0xD7)) {
      return at + 1;
    }
    ++at;
  }
  return file.size();
}

bool IsJpegFrameHeader(std::uint32_t code) {
  return code >= 0xC0 && code <= 0xCF && code != 0xC4 && code != 0xC8 && code != 0xCC;
}

}  // namespace

// Signature of 8 bytes, then chunks: length 4 (big-endian), name 4, data, checksum 4. The first is
// IHDR, its data begin with width and height; the last is IEND.
std::optional<RawSize> WalkPng(ByteView file) {
  constexpr std::uint32_t kIhdr = 0x49484452;
  constexpr std::uint32_t kIend = 0x49454E44;
  if (Read32Be(file, 8) != 13 || Read32Be(file, 12) != kIhdr) return std::nullopt;
  std::size_t at = 8;
  while (Holds(file, at, 12)) {
    const std::uint32_t length = Read32Be(file, at);
    if (!Holds(file, at + 12, length)) return std::nullopt;
    if (Read32Be(file, at + 4) == kIend) return RawSize{Read32Be(file, 16), Read32Be(file, 20)};
    at += std::size_t{12} + length;
  }
  return std::nullopt;
}

// File header of 14 bytes with the pixels' offset at 10, then the bitmap header: its length 4, and
// for the old form of 12 bytes width 2, height 2, planes 2, bits 2, otherwise width 4, height 4
// (negative: top row first), planes 2, bits 2, compression 4.
std::optional<RawSize> WalkBmp(ByteView file) {
  constexpr std::uint32_t kOldHeader = 12;
  constexpr std::uint32_t kRle8 = 1;
  constexpr std::uint32_t kRle4 = 2;
  const std::uint32_t offset = Read32Le(file, 10);
  const std::uint32_t header = Read32Le(file, 14);
  if (header < kOldHeader || offset < std::uint64_t{14} + header) return std::nullopt;
  const bool old = header == kOldHeader;
  const std::int64_t width = old ? Read16Le(file, 18) : Read32Le(file, 18);
  const std::int64_t height = old ? static_cast<std::int32_t>(Read16Le(file, 20))
                                  : static_cast<std::int32_t>(Read32Le(file, 22));
  const RawSize size{width, std::llabs(height)};
  if (size.width < 1 || size.width > kMaxSide || size.height > kMaxSide) return std::nullopt;

  const std::uint32_t compression = old ? 0 : Read32Le(file, 30);
  // Run lengths do not tell their end beforehand; the decoder finds it.
  if (compression == kRle8 || compression == kRle4) {
    return Holds(file, offset, 2) ? std::optional(size) : std::nullopt;
  }
  const std::int64_t bits = Read16Le(file, old ? 24 : 28);
  const std::int64_t rowBytes = (size.width * bits + 31) / 32 * 4;
  const auto pixelBytes = static_cast<std::uint64_t>(rowBytes * size.height);
  return Holds(file, offset, pixelBytes) ? std::optional(size) : std::nullopt;
}

// Markers FF xx, most with a length of 2 bytes (big-endian, itself included) and data. The frame
// header holds precision 1, height 2, width 2; FF D9 ends the file.
std::optional<RawSize> WalkJpeg(ByteView file) {
  constexpr std::uint32_t kEndOfImage = 0xD9;
  constexpr std::uint32_t kStartOfScan = 0xDA;
  RawSize size{0, 0};
  bool scanned = false;
  std::size_t at = 2;
  while (true) {
    at = NextJpegMarker(file, at);
    if (at >= file.size()) return std::nullopt;
    const std::uint32_t code = file[at];
    if (code == kEndOfImage) return scanned ? std::optional(size) : std::nullopt;
    if (IsJpegFrameHeader(code)) size = {Read16Be(file, at + 6), Read16Be(file, at + 4)};
    scanned = scanned || code == kStartOfScan;
    at += 1 + Read16Be(file, at + 1);
  }
}

// Header of 13 bytes (flags at 10) and colour table, then blocks: 21 label sub-blocks, or the
// picture 2C, left 2, top 2, width 2, height 2, flags 1, colour table, code size 1, sub-blocks.
// Only the first picture counts; what follows it may be cut off.
std::optional<RawSize> WalkGif(ByteView file) {
  std::size_t at = 13 + GifTableBytes(Read8(file, 10));
  while (Read8(file, at) == 0x21) {
    const std::optional<std::size_t> next = SkipGifBlocks(file, at + 2);
    if (!next) return std::nullopt;
    at = *next;
  }
  if (Read8(file, at) != 0x2C) return std::nullopt;
  const RawSize size{Read16Le(file, at + 5), Read16Le(file, at + 7)};
  const std::size_t data = at + 11 + GifTableBytes(Read8(file, at + 9));
  return SkipGifBlocks(file, data) ? std::optional(size) : std::nullopt;
}

}  // namespace imagelib
