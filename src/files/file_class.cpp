#include "files/file_class.h"

#include <cstring>

void FileClass::SetName(const char* fileName) {
  hasName = 1;
  name[0] = '\0';
  if (std::strlen(fileName) < MAX_PATH) lstrcpyA(name, fileName);
}

bool FileClass::Open(int mode) {
  if (!hasName) return false;
  Close();
  const DWORD access = mode == 0   ? GENERIC_READ
                       : mode == 1 ? GENERIC_WRITE
                                   : GENERIC_READ | GENERIC_WRITE;
  const DWORD disposition = mode == 0 ? OPEN_EXISTING : CREATE_ALWAYS;
  handle = CreateFileA(name, access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  isOpen = handle != INVALID_HANDLE_VALUE;
  return isOpen != 0;
}

bool FileClass::Read(void* buffer, uint32_t count) {
  if (!isOpen || !buffer || count == 0) return false;
  DWORD transferred = 0;
  return ReadFile(handle, buffer, count, &transferred, nullptr) && transferred == count;
}

bool FileClass::Write(const void* buffer, uint32_t count) {
  if (!isOpen || !buffer || count == 0) return false;
  DWORD transferred = 0;
  return WriteFile(handle, buffer, count, &transferred, nullptr) && transferred == count;
}

uint32_t FileClass::GetSize() const {
  if (!isOpen) throw 0;
  return GetFileSize(handle, nullptr);
}

bool FileClass::Seek(int32_t offset, int origin) {
  if (!isOpen) throw 0;
  const DWORD method = origin == 0 ? FILE_BEGIN : origin == 1 ? FILE_END : FILE_CURRENT;
  SetFilePointer(handle, offset, nullptr, method);
  return true;
}

const char* FileClass::GetName() const { return isOpen ? name : "Not-open"; }

bool FileClass::Close() {
  if (isOpen) CloseHandle(handle);
  handle = INVALID_HANDLE_VALUE;
  isOpen = 0;
  return true;
}
