#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "imagelib/system_files.h"

namespace imagelib {
namespace {

std::string SystemPath(const char* path) {
  std::string converted(path);
  std::replace(converted.begin(), converted.end(), '\\', '/');
  return converted;
}

}  // namespace

FileHandle OpenOrdinaryFile(const char* path, std::uint64_t* size) {
  const std::string name = SystemPath(path);
  struct stat status {};
  if (stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
  *size = static_cast<std::uint64_t>(status.st_size);
  return FileHandle(std::fopen(name.c_str(), "rb"));
}

FileHandle CreateNewFile(const char* path, bool* taken) {
  constexpr mode_t kUsualRights = 0666;
  const int file = open(SystemPath(path).c_str(), O_WRONLY | O_CREAT | O_EXCL, kUsualRights);
  *taken = file < 0 && errno == EEXIST;
  return FileHandle(file < 0 ? nullptr : fdopen(file, "wb"));
}

bool MayReplace(const char* path) {
  struct stat status {};
  if (stat(SystemPath(path).c_str(), &status) != 0) return errno == ENOENT;
  return S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) != 0;
}

bool MoveOver(const char* from, const char* to) {
  return std::rename(SystemPath(from).c_str(), SystemPath(to).c_str()) == 0;
}

void RemoveFile(const char* path) { unlink(SystemPath(path).c_str()); }

}  // namespace imagelib
