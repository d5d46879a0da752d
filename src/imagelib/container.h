#pragma once

#include <cstdint>
#include <optional>

#include "imagelib/bytes.h"

namespace imagelib {

enum class FileType { kUnknown, kPng, kBmp, kJpeg, kGif, kTiff };

// Longest side of a picture that is read or written.
constexpr std::int32_t kMaxSide = 16384;

// What a file says about its (first) picture, before any decoder has seen it.
struct Container {
  FileType type;
  std::int32_t width;
  std::int32_t height;
};

// Type by the first bytes of a file.
FileType TypeOfContent(ByteView file);

// Type by a path's extension, case-insensitive.
FileType TypeOfName(const char* path);

// Walks a file's structure. Gives nothing for an unknown type, for a file that ends before its
// picture does, and for a size that is not 1 to kMaxSide each way or cannot be true.
//
// The system's decoders fill the missing part of a truncated file with grey, and allocate by the
// header before anybody can object. Both are decided here, alike on every platform.
std::optional<Container> Inspect(ByteView file);

// Size by a format's header, not yet checked against kMaxSide.
struct RawSize {
  std::int64_t width;
  std::int64_t height;
};

// One walker a format, for files of that type; nothing if the file ends too early.
std::optional<RawSize> WalkPng(ByteView file);
std::optional<RawSize> WalkBmp(ByteView file);
std::optional<RawSize> WalkJpeg(ByteView file);
std::optional<RawSize> WalkGif(ByteView file);
std::optional<RawSize> WalkTiff(ByteView file);

}  // namespace imagelib
