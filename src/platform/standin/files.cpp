#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "platform/standin/failure.h"
#include "platform/standin/handles.h"

namespace {

// An open file. What it lets others do while it is open is checked among the handles of this
// process only.
struct File {
  explicit File(int opened) : descriptor(opened) { fstat(descriptor, &status); }
  ~File() { close(descriptor); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  const int descriptor;
  struct stat status {};
  DWORD access = 0;
  DWORD share = 0;
};

standin::HandleTable<File>& Files() {
  static auto* files = new standin::HandleTable<File>;
  return *files;
}

// Whether two handles to one file, with what they do and what they let others do, can stand
// together.
bool Shared(const struct stat& status, DWORD access, DWORD share) {
  const auto permits = [](DWORD shares, DWORD accesses) {
    return (!(accesses & GENERIC_READ) || (shares & FILE_SHARE_READ)) &&
           (!(accesses & GENERIC_WRITE) || (shares & FILE_SHARE_WRITE));
  };
  for (const auto& [handle, file] : Files().All()) {
    if (file->status.st_dev != status.st_dev || file->status.st_ino != status.st_ino) continue;
    if (!permits(file->share, access) || !permits(share, file->access)) return false;
  }
  return true;
}

// Whether the existing file at the path may be opened.
bool MayOpen(const struct stat& status, DWORD access, DWORD share) {
  if (S_ISDIR(status.st_mode)) return false;
  if ((access & GENERIC_WRITE) && !(status.st_mode & S_IWUSR)) return false;
  return Shared(status, access, share);
}

// The last error says that a call has failed; why, nobody asks.
template <class Result>
Result Fail(Result result) {
  SetLastError(ERROR_FILE_NOT_FOUND);
  return result;
}

}  // namespace

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES, DWORD disposition,
                   DWORD flags, HANDLE) {
  if ((disposition != CREATE_ALWAYS && disposition != OPEN_EXISTING) ||
      (flags & ~DWORD{FILE_ATTRIBUTE_NORMAL}))
    standin::Unsupported("CreateFileA knows CREATE_ALWAYS and OPEN_EXISTING without flags only");
  const std::string name = standin::NativePath(path);
  struct stat status {};
  if (stat(name.c_str(), &status) == 0 && !MayOpen(status, access, share))
    return Fail(INVALID_HANDLE_VALUE);
  if (name.find_first_of("<>\"|?*") != std::string::npos) return Fail(INVALID_HANDLE_VALUE);
  const bool writes = access & GENERIC_WRITE;
  int mode = writes ? (access & GENERIC_READ ? O_RDWR : O_WRONLY) : O_RDONLY;
  if (disposition == CREATE_ALWAYS) mode |= O_CREAT | O_TRUNC;
  const int descriptor = open(name.c_str(), mode | O_CLOEXEC, 0666);
  if (descriptor < 0) return Fail(INVALID_HANDLE_VALUE);
  auto file = std::make_shared<File>(descriptor);
  file->access = access;
  file->share = share;
  return Files().Add<HANDLE>(file);
}

BOOL ReadFile(HANDLE handle, LPVOID buffer, DWORD count, LPDWORD transferred, LPOVERLAPPED) {
  const auto file = Files().Find(handle);
  const ssize_t got = file ? read(file->descriptor, buffer, count) : -1;
  *transferred = static_cast<DWORD>(got < 0 ? 0 : got);
  return got < 0 ? Fail(FALSE) : TRUE;
}

BOOL WriteFile(HANDLE handle, LPCVOID buffer, DWORD count, LPDWORD transferred, LPOVERLAPPED) {
  const auto file = Files().Find(handle);
  const ssize_t put = file ? write(file->descriptor, buffer, count) : -1;
  *transferred = static_cast<DWORD>(put < 0 ? 0 : put);
  return put < 0 ? Fail(FALSE) : TRUE;
}

DWORD GetFileSize(HANDLE handle, LPDWORD) {
  const auto file = Files().Find(handle);
  struct stat status {};
  if (!file || fstat(file->descriptor, &status) != 0) return Fail(INVALID_FILE_SIZE);
  return static_cast<DWORD>(status.st_size);
}

DWORD SetFilePointer(HANDLE handle, LONG distance, PLONG, DWORD method) {
  const auto file = Files().Find(handle);
  const int origin = method == FILE_BEGIN ? SEEK_SET : method == FILE_END ? SEEK_END : SEEK_CUR;
  const off_t position = file ? lseek(file->descriptor, distance, origin) : -1;
  return position < 0 ? Fail(INVALID_SET_FILE_POINTER) : static_cast<DWORD>(position);
}

BOOL CloseHandle(HANDLE handle) { return Files().Remove(handle); }

DWORD GetFileAttributesA(LPCSTR path) {
  struct stat status {};
  if (stat(standin::NativePath(path).c_str(), &status) != 0) return Fail(INVALID_FILE_ATTRIBUTES);
  if (S_ISDIR(status.st_mode)) return FILE_ATTRIBUTE_DIRECTORY;
  return status.st_mode & S_IWUSR ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY;
}
