#include "imagelib/file_bytes.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <system_error>

#include "imagelib/container.h"

namespace imagelib {
namespace {

namespace fs = std::filesystem;

// The largest picture uncompressed, with some room for what else a file may carry.
constexpr std::uintmax_t kMaxFileBytes = std::uintmax_t{kMaxSide} * kMaxSide * 4 + 16 * 1024 * 1024;

bool ReadInto(std::ifstream& stream, std::span<std::uint8_t> target) {
  const auto count = static_cast<std::streamsize>(target.size());
  stream.read(reinterpret_cast<char*>(target.data()), count);
  return stream.gcount() == count;
}

// A name in the same folder that no file has. Short, since the folder's path may be nearly as long
// as the system allows; empty if there is none.
fs::path UnusedName(const fs::path& folder) {
  for (int i = 0; i < 100; ++i) {
    fs::path name = folder / ("~img" + std::to_string(i) + ".tmp");
    std::error_code error;
    if (!fs::exists(fs::symlink_status(name, error))) return name;
  }
  return {};
}

// A rename would replace a write-protected file on some systems and not on others.
bool MayReplace(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return true;
  return fs::is_regular_file(status) &&
         (status.permissions() & fs::perms::owner_write) != fs::perms::none;
}

bool WriteNewFile(const fs::path& path, ByteView bytes) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  if (!stream) return false;
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  stream.close();
  return !stream.fail();
}

}  // namespace

std::optional<Bytes> ReadPictureFile(const fs::path& path) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return std::nullopt;
  const std::uintmax_t size = fs::file_size(path, error);
  if (error || size > kMaxFileBytes) return std::nullopt;
  std::ifstream stream(path, std::ios::binary);
  if (!stream) return std::nullopt;

  // A film chosen by mistake need not be read whole to be refused.
  Bytes bytes(std::min<std::size_t>(static_cast<std::size_t>(size), 16));
  if (!ReadInto(stream, bytes)) return std::nullopt;
  if (TypeOfContent(bytes) == FileType::kUnknown) return std::nullopt;
  const std::size_t head = bytes.size();
  bytes.resize(static_cast<std::size_t>(size));
  if (!ReadInto(stream, std::span(bytes).subspan(head))) return std::nullopt;
  return bytes;
}

bool ReplaceFile(const fs::path& path, ByteView bytes) {
  if (path.empty() || !MayReplace(path)) return false;
  const fs::path fresh = UnusedName(path.parent_path());
  if (fresh.empty()) return false;
  std::error_code error;
  if (WriteNewFile(fresh, bytes)) {
    fs::rename(fresh, path, error);
    if (!error) return true;
  }
  fs::remove(fresh, error);
  return false;
}

}  // namespace imagelib
