#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "platform/standin/failure.h"

namespace {

DWORD lastError = ERROR_SUCCESS;

// As Win32 calls give paths out: the length, or the room needed when there is too little.
DWORD CopyPath(std::string path, LPSTR buffer, DWORD size) {
  std::replace(path.begin(), path.end(), '/', '\\');
  if (path.size() >= size) return static_cast<DWORD>(path.size() + 1);
  std::memcpy(buffer, path.c_str(), path.size() + 1);
  return static_cast<DWORD>(path.size());
}

}  // namespace

namespace standin {

void Unsupported(const std::string& what) {
  std::fprintf(stderr, "Stand-in platform: %s\n", what.c_str());
  std::abort();
}

std::string NativePath(const char* path) {
  std::string native = path;
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

}  // namespace standin

DWORD GetLastError() { return lastError; }

VOID SetLastError(DWORD error) { lastError = error; }

VOID ExitProcess(UINT exitCode) {
  // No destructor of the program's own runs, as on Windows.
  std::fflush(nullptr);
  std::_Exit(static_cast<int>(exitCode));
}

DWORD GetCurrentThreadId() { return 1; }

HMODULE GetModuleHandleA(LPCSTR name) {
  if (name) standin::Unsupported("GetModuleHandleA knows the program itself only");
  static HINSTANCE__ program{};
  return &program;
}

DWORD GetModuleFileNameA(HMODULE, LPSTR buffer, DWORD size) {
  // Kept for good: the editor's global objects may still ask after main has returned.
  static const auto* path = new std::string(std::filesystem::read_symlink("/proc/self/exe"));
  if (path->size() >= size) standin::Unsupported("the program's path is too long for its buffer");
  return CopyPath(*path, buffer, size);
}

BOOL SetCurrentDirectoryA(LPCSTR path) { return chdir(standin::NativePath(path).c_str()) == 0; }

DWORD GetCurrentDirectoryA(DWORD size, LPSTR buffer) {
  return CopyPath(std::filesystem::current_path().string(), buffer, size);
}

DWORD GetFullPathNameA(LPCSTR path, DWORD size, LPSTR buffer, LPSTR*) {
  if (*path == '\0') return 0;
  const std::filesystem::path native = standin::NativePath(path);
  return CopyPath(std::filesystem::absolute(native).lexically_normal().string(), buffer, size);
}

int lstrcmpiA(LPCSTR one, LPCSTR other) { return strcasecmp(one, other); }

LPSTR lstrcpyA(LPSTR target, LPCSTR source) { return std::strcpy(target, source); }
