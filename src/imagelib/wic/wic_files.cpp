#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "imagelib/system_files.h"
#include "imagelib/wic/wic_objects.h"

namespace imagelib {
namespace {

// From the process's code page; empty, which names no file, if it cannot be a path.
std::wstring SystemPath(const char* path) {
  const int length = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, path, -1, nullptr, 0);
  if (length <= 1) return {};
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, path, -1, wide.data(), length);
  wide.pop_back();
  return wide;
}

}  // namespace

FileHandle OpenOrdinaryFile(const char* path, std::uint64_t* size) {
  const std::wstring name = SystemPath(path);
  struct _stat64 status {};
  if (_wstat64(name.c_str(), &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG) {
    return nullptr;
  }
  *size = static_cast<std::uint64_t>(status.st_size);
  return FileHandle(_wfopen(name.c_str(), L"rb"));
}

FileHandle CreateNewFile(const char* path, bool* taken) {
  const int file = _wopen(SystemPath(path).c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY,
                          _S_IREAD | _S_IWRITE);
  *taken = file < 0 && errno == EEXIST;
  return FileHandle(file < 0 ? nullptr : _fdopen(file, "wb"));
}

bool MayReplace(const char* path) {
  const std::wstring name = SystemPath(path);
  if (name.empty()) return false;
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return GetLastError() == ERROR_FILE_NOT_FOUND;
  return (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) == 0;
}

bool MoveOver(const char* from, const char* to) {
  return MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(), MOVEFILE_REPLACE_EXISTING) !=
         0;
}

void RemoveFile(const char* path) { DeleteFileW(SystemPath(path).c_str()); }

}  // namespace imagelib
