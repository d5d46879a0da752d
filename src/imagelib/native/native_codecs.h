#pragma once

#include "imagelib/codecs.h"

// The formats of the native build, each in a file of its own. Decoders and encoders as in codecs.h.
namespace imagelib {

bool DecodePng(ByteView file, const Container& container, std::uint32_t* pixels);
bool EncodePng(const std::uint32_t* pixels, std::int32_t width, std::int32_t height, Bytes* file);

// Baseline and progressive JPEG in grey or colour, not in CMYK.
bool DecodeJpeg(ByteView file, const Container& container, std::uint32_t* pixels);
bool EncodeJpeg(const std::uint32_t* pixels, std::int32_t width, std::int32_t height, Bytes* file);

// BMP of 8 (palette), 24 and 32 bits, uncompressed, either row order.
bool DecodeBmp(ByteView file, const Container& container, std::uint32_t* pixels);
bool EncodeBmp(const std::uint32_t* pixels, std::int32_t width, std::int32_t height, Bytes* file);

}  // namespace imagelib
