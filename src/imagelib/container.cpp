#include "imagelib/container.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace imagelib {
namespace {

struct Signature {
  std::string_view bytes;
  FileType type;
};

constexpr Signature kSignatures[] = {
    {"\x89PNG\r\n\x1A\n", FileType::kPng},
    {"BM", FileType::kBmp},
    {"\xFF\xD8\xFF", FileType::kJpeg},
    {"GIF87a", FileType::kGif},
    {"GIF89a", FileType::kGif},
    {{"II*\0", 4}, FileType::kTiff},
    {{"MM\0*", 4}, FileType::kTiff},
};

struct Extension {
  std::string_view name;
  FileType type;
};

constexpr Extension kExtensions[] = {
    {"png", FileType::kPng},   {"bmp", FileType::kBmp}, {"jpg", FileType::kJpeg},
    {"jpeg", FileType::kJpeg}, {"gif", FileType::kGif}, {"tif", FileType::kTiff},
    {"tiff", FileType::kTiff},
};

std::optional<RawSize> Walk(FileType type, ByteView file) {
  switch (type) {
    case FileType::kPng:
      return WalkPng(file);
    case FileType::kBmp:
      return WalkBmp(file);
    case FileType::kJpeg:
      return WalkJpeg(file);
    case FileType::kGif:
      return WalkGif(file);
    case FileType::kTiff:
      return WalkTiff(file);
    case FileType::kUnknown:
      break;
  }
  return std::nullopt;
}

// A caller allocates by this size, so a tiny file must not claim a huge picture. Deflate packs at
// most 1032 bytes into one, each up to 8 pixels. Pictures of 64 MB are let through without
// question: blank fax pages pack better than that.
bool Credible(RawSize size, std::size_t fileBytes) {
  constexpr std::int64_t kUnquestionedPixels = 4096 * 4096;
  constexpr std::int64_t kMaxPixelsPerByte = 1032 * 8;
  if (size.width < 1 || size.height < 1 || size.width > kMaxSide || size.height > kMaxSide) {
    return false;
  }
  const std::int64_t pixels = size.width * size.height;
  return pixels <= kUnquestionedPixels ||
         pixels / kMaxPixelsPerByte <= static_cast<std::int64_t>(fileBytes);
}

}  // namespace

FileType TypeOfContent(ByteView file) {
  for (const Signature& signature : kSignatures) {
    const auto same = [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; };
    if (file.size() >= signature.bytes.size() &&
        std::equal(signature.bytes.begin(), signature.bytes.end(), file.begin(), same)) {
      return signature.type;
    }
  }
  return FileType::kUnknown;
}

FileType TypeOfName(const char* path) {
  const std::string_view name(path);
  const std::size_t dot = name.find_last_of("./\\");
  if (dot == std::string_view::npos || name[dot] != '.') return FileType::kUnknown;
  std::string extension(name.substr(dot + 1));
  for (char& c : extension) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  for (const Extension& known : kExtensions) {
    if (known.name == extension) return known.type;
  }
  return FileType::kUnknown;
}

std::optional<Container> Inspect(ByteView file) {
  const FileType type = TypeOfContent(file);
  const std::optional<RawSize> size = Walk(type, file);
  if (!size || !Credible(*size, file.size())) return std::nullopt;
  return Container{type, static_cast<std::int32_t>(size->width),
                   static_cast<std::int32_t>(size->height)};
}

}  // namespace imagelib
