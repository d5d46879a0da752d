#include <bit>

#include "imagelib/codecs.h"
#include "imagelib/native/native_codecs.h"

// Pixels go to and from libpng and libjpeg as bytes B, G, R, 0.
static_assert(std::endian::native == std::endian::little);

namespace imagelib {

bool StartCodecs() { return true; }

void StopCodecs() {}

const char* ReadablePatterns() { return "*.png;*.bmp;*.jpg;*.jpeg"; }

const char* CodecDescription() { return "ImageLib (libpng, libjpeg)"; }

bool CanDecode(FileType type) {
  return type == FileType::kPng || type == FileType::kBmp || type == FileType::kJpeg;
}

bool Decode(ByteView file, const Container& container, std::uint32_t* pixels) {
  switch (container.type) {
    case FileType::kPng:
      return DecodePng(file, container, pixels);
    case FileType::kJpeg:
      return DecodeJpeg(file, container, pixels);
    case FileType::kBmp:
      return DecodeBmp(file, container, pixels);
    default:
      return false;
  }
}

bool Encode(FileType type, const std::uint32_t* pixels, std::int32_t width, std::int32_t height,
            Bytes* file) {
  switch (type) {
    case FileType::kPng:
      return EncodePng(pixels, width, height, file);
    case FileType::kJpeg:
      return EncodeJpeg(pixels, width, height, file);
    case FileType::kBmp:
    case FileType::kUnknown:
      return EncodeBmp(pixels, width, height, file);
    default:
      return false;
  }
}

}  // namespace imagelib
