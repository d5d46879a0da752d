#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "platform/standin/failure.h"
#include "platform/standin/handles.h"
#include "platform/standin/native_path.h"
#include "platform/win32.h"

namespace {

// An open file. What it lets others do while it is open is checked among the handles of this
// process only.
struct File {
  explicit File(int opened) : descriptor(opened) {}
  ~File() { close(descriptor); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  int descriptor;
  dev_t device = 0;
  ino_t inode = 0;
  DWORD access = 0;
  DWORD share = 0;
};

standin::HandleTable<File>& Files() {
  static auto* files = new standin::HandleTable<File>;
  return *files;
}

std::shared_ptr<File> FindFile(HANDLE handle) {
  auto file = Files().Find(handle);
  if (!file) SetLastError(ERROR_INVALID_HANDLE);
  return file;
}

// A missing file and a missing folder on the way to it are different errors.
DWORD ErrorOfMissing(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  if (path.empty()) return ERROR_PATH_NOT_FOUND;
  if (slash == std::string::npos || slash == 0) return ERROR_FILE_NOT_FOUND;
  struct stat status {};
  const bool folder = stat(path.substr(0, slash).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
  return folder ? ERROR_FILE_NOT_FOUND : ERROR_PATH_NOT_FOUND;
}

DWORD ErrorOf(int error, const std::string& path) {
  if (path.find_first_of("<>\"|?*") != std::string::npos) return ERROR_INVALID_NAME;
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return ErrorOfMissing(path);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
      return ERROR_ACCESS_DENIED;
    case ENOSPC:
      return ERROR_DISK_FULL;
    case EINVAL:
      return ERROR_NEGATIVE_SEEK;
    case EBADF:
      return ERROR_ACCESS_DENIED;
    default:
      return ERROR_INVALID_NAME;
  }
}

bool Shared(const struct stat& status, DWORD access, DWORD share) {
  const auto permits = [](DWORD shares, DWORD accesses) {
    return (!(accesses & GENERIC_READ) || (shares & FILE_SHARE_READ)) &&
           (!(accesses & GENERIC_WRITE) || (shares & FILE_SHARE_WRITE));
  };
  for (const auto& [handle, file] : Files().All()) {
    if (file->device != status.st_dev || file->inode != status.st_ino) continue;
    if (!permits(file->share, access) || !permits(share, file->access)) return false;
  }
  return true;
}

// Why the existing file at the path must not be opened, or ERROR_SUCCESS.
DWORD Refusal(const struct stat& status, DWORD access, DWORD share) {
  if (S_ISDIR(status.st_mode)) return ERROR_ACCESS_DENIED;
  if ((access & GENERIC_WRITE) && !(status.st_mode & S_IWUSR)) return ERROR_ACCESS_DENIED;
  if (!Shared(status, access, share)) return ERROR_SHARING_VIOLATION;
  return ERROR_SUCCESS;
}

HANDLE FailOpen(DWORD error) {
  SetLastError(error);
  return INVALID_HANDLE_VALUE;
}

}  // namespace

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES, DWORD disposition,
                   DWORD flags, HANDLE) {
  if (disposition != CREATE_ALWAYS && disposition != OPEN_EXISTING)
    standin::Unsupported("CreateFileA knows CREATE_ALWAYS and OPEN_EXISTING only");
  if (flags & ~DWORD{FILE_ATTRIBUTE_NORMAL}) standin::Unsupported("CreateFileA knows no flags");
  const std::string name = standin::NativePath(path);
  struct stat status {};
  const bool existed = stat(name.c_str(), &status) == 0;
  if (existed) {
    if (const DWORD error = Refusal(status, access, share)) return FailOpen(error);
  }
  const bool writes = access & GENERIC_WRITE;
  int mode = writes ? (access & GENERIC_READ ? O_RDWR : O_WRONLY) : O_RDONLY;
  if (disposition == CREATE_ALWAYS) mode |= O_CREAT | O_TRUNC;
  const int descriptor = name.find_first_of("<>\"|?*") == std::string::npos
                             ? open(name.c_str(), mode | O_CLOEXEC, 0666)
                             : -1;
  if (descriptor < 0) return FailOpen(ErrorOf(errno, name));
  auto file = std::make_shared<File>(descriptor);
  fstat(descriptor, &status);
  file->device = status.st_dev;
  file->inode = status.st_ino;
  file->access = access;
  file->share = share;
  SetLastError(existed && disposition == CREATE_ALWAYS ? ERROR_ALREADY_EXISTS : ERROR_SUCCESS);
  return Files().Add<HANDLE>(file);
}

BOOL ReadFile(HANDLE handle, LPVOID buffer, DWORD count, LPDWORD transferred, LPOVERLAPPED) {
  const auto file = FindFile(handle);
  *transferred = 0;
  if (!file) return FALSE;
  while (*transferred < count) {
    const ssize_t got =
        read(file->descriptor, static_cast<char*>(buffer) + *transferred, count - *transferred);
    if (got < 0) {
      SetLastError(ErrorOf(errno, ""));
      return FALSE;
    }
    if (got == 0) break;
    *transferred += static_cast<DWORD>(got);
  }
  return TRUE;
}

BOOL WriteFile(HANDLE handle, LPCVOID buffer, DWORD count, LPDWORD transferred, LPOVERLAPPED) {
  const auto file = FindFile(handle);
  *transferred = 0;
  if (!file) return FALSE;
  while (*transferred < count) {
    const ssize_t put = write(file->descriptor, static_cast<const char*>(buffer) + *transferred,
                              count - *transferred);
    if (put <= 0) {
      SetLastError(ErrorOf(errno, ""));
      return FALSE;
    }
    *transferred += static_cast<DWORD>(put);
  }
  return TRUE;
}

DWORD GetFileSize(HANDLE handle, LPDWORD high) {
  const auto file = FindFile(handle);
  struct stat status {};
  if (!file || fstat(file->descriptor, &status) != 0) return INVALID_FILE_SIZE;
  const auto size = static_cast<uint64_t>(status.st_size);
  if (high) *high = static_cast<DWORD>(size >> 32);
  return static_cast<DWORD>(size);
}

DWORD SetFilePointer(HANDLE handle, LONG distance, PLONG high, DWORD method) {
  if (high) standin::Unsupported("SetFilePointer knows 32-bit distances only");
  const auto file = FindFile(handle);
  if (!file) return INVALID_SET_FILE_POINTER;
  const int origin = method == FILE_BEGIN ? SEEK_SET : method == FILE_END ? SEEK_END : SEEK_CUR;
  const off_t position = lseek(file->descriptor, distance, origin);
  if (position >= 0) return static_cast<DWORD>(position);
  SetLastError(ErrorOf(errno, ""));
  return INVALID_SET_FILE_POINTER;
}

BOOL CloseHandle(HANDLE handle) {
  if (!FindFile(handle)) return FALSE;
  Files().Remove(handle);
  return TRUE;
}

DWORD GetFileAttributesA(LPCSTR path) {
  const std::string name = standin::NativePath(path);
  struct stat status {};
  if (stat(name.c_str(), &status) != 0) {
    SetLastError(ErrorOf(errno, name));
    return INVALID_FILE_ATTRIBUTES;
  }
  if (S_ISDIR(status.st_mode)) return FILE_ATTRIBUTE_DIRECTORY;
  return status.st_mode & S_IWUSR ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY;
}
