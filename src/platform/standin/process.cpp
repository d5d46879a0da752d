#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "platform/standin/failure.h"
#include "platform/standin/native_path.h"
#include "platform/win32.h"

namespace {

DWORD lastError = ERROR_SUCCESS;

// Kept for good: the editor's global objects may still ask after main has returned.
std::string& ModulePath() {
  static auto* path = new std::string(std::filesystem::read_symlink("/proc/self/exe").string());
  return *path;
}

std::string WithBackslashes(std::string path) {
  for (char& letter : path) {
    if (letter == '/') letter = '\\';
  }
  return path;
}

}  // namespace

namespace standin {

std::string NativePath(const char* path) {
  std::string native = path;
  for (char& letter : native) {
    if (letter == '\\') letter = '/';
  }
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

DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size) {
  if (module && module != GetModuleHandleA(nullptr)) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    return 0;
  }
  const std::string path = WithBackslashes(ModulePath());
  if (path.size() >= size) {
    std::snprintf(buffer, size, "%s", path.c_str());
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return size;
  }
  std::memcpy(buffer, path.c_str(), path.size() + 1);
  return static_cast<DWORD>(path.size());
}

BOOL SetCurrentDirectoryA(LPCSTR path) {
  if (chdir(standin::NativePath(path).c_str()) == 0) return TRUE;
  SetLastError(ERROR_FILE_NOT_FOUND);
  return FALSE;
}

DWORD GetCurrentDirectoryA(DWORD size, LPSTR buffer) {
  const std::string path = WithBackslashes(std::filesystem::current_path().string());
  if (path.size() >= size) return static_cast<DWORD>(path.size() + 1);
  std::memcpy(buffer, path.c_str(), path.size() + 1);
  return static_cast<DWORD>(path.size());
}

LPSTR lstrcpyA(LPSTR target, LPCSTR source) { return std::strcpy(target, source); }
