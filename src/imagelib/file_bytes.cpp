#include "imagelib/file_bytes.h"

#include <algorithm>

#include "imagelib/container.h"
#include "imagelib/system_files.h"

namespace imagelib {
namespace {

// The largest picture uncompressed, with some room for what else a file may carry.
constexpr std::uint64_t kMaxFileBytes = std::uint64_t{kMaxSide} * kMaxSide * 4 + 16 * 1024 * 1024;

bool ReadInto(std::FILE* file, std::span<std::uint8_t> target) {
  return std::fread(target.data(), 1, target.size(), file) == target.size();
}

}  // namespace

std::optional<Bytes> ReadPictureFile(const char* path) {
  std::uint64_t size = 0;
  const FileHandle file = OpenOrdinaryFile(path, &size);
  if (!file || size > kMaxFileBytes) return std::nullopt;

  // A film chosen by mistake need not be read whole to be refused.
  Bytes bytes(static_cast<std::size_t>(std::min<std::uint64_t>(size, 16)));
  if (!ReadInto(file.get(), bytes)) return std::nullopt;
  if (TypeOfContent(bytes) == FileType::kUnknown) return std::nullopt;
  const std::size_t head = bytes.size();
  bytes.resize(static_cast<std::size_t>(size));
  if (!ReadInto(file.get(), std::span(bytes).subspan(head))) return std::nullopt;
  return bytes;
}

}  // namespace imagelib
