#include "imagelib/file_bytes.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "imagelib/container.h"
#include "imagelib/system_files.h"

namespace imagelib {
namespace {

// The largest picture uncompressed, with some room for what else a file may carry.
constexpr std::uint64_t kMaxFileBytes = std::uint64_t{kMaxSide} * kMaxSide * 4 + 16 * 1024 * 1024;

bool ReadInto(std::FILE* file, std::span<std::uint8_t> target) {
  return std::fread(target.data(), 1, target.size(), file) == target.size();
}

// Creates a file with a name of its own in the same folder. Short, since the folder's path may be
// nearly as long as the system allows. Created at once, so that nobody else can take the name.
FileHandle CreateBeside(std::string_view path, std::string* fresh) {
  const std::string_view folder = path.substr(0, path.find_last_of("\\/:") + 1);
  char name[] = "~img00.tmp";
  bool taken = true;
  for (int i = 0; i < 100 && taken; ++i) {
    name[4] = static_cast<char>('0' + i / 10);
    name[5] = static_cast<char>('0' + i % 10);
    fresh->assign(folder).append(name);
    if (FileHandle file = CreateNewFile(fresh->c_str(), &taken)) return file;
  }
  return nullptr;
}

bool WriteAndClose(FileHandle file, ByteView bytes) {
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  // What is still buffered is written now, and may not fit.
  return std::fclose(file.release()) == 0 && written;
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

bool ReplaceFile(const char* path, ByteView bytes) {
  if (!MayReplace(path)) return false;
  std::string fresh;
  FileHandle file = CreateBeside(path, &fresh);
  if (!file) return false;
  if (WriteAndClose(std::move(file), bytes) && MoveOver(fresh.c_str(), path)) return true;
  RemoveFile(fresh.c_str());
  return false;
}

}  // namespace imagelib
