#pragma once

#include <cstdint>

#include "platform/win32.h"

// Owner of one file handle. Reads and writes whole blocks: a transfer of fewer bytes than asked for
// is a failure. Shows nothing to the user; its results are the only report.
class FileClass {
 public:
  FileClass() = default;
  explicit FileClass(const char* fileName) { SetName(fileName); }
  ~FileClass() { Close(); }
  FileClass(const FileClass&) = delete;
  FileClass& operator=(const FileClass&) = delete;

  // Names the file for the next Open; an open file stays open. A name of MAX_PATH characters or
  // more is refused, so that no other file is opened in its place: Open fails then.
  void SetName(const char* fileName);

  // Opens the named file, closing one that is open. Mode 0 reads an existing file, 1 writes a new
  // or emptied one, any other value reads and writes one. No other handle may open it meanwhile.
  bool Open(int mode);

  // Transfers exactly `count` bytes at the current position. False for a null buffer or no bytes.
  bool Read(void* buffer, uint32_t count);
  bool Write(const void* buffer, uint32_t count);

  // Low 32 bits of the open file's size. Throws the integer 0 when no file is open.
  uint32_t GetSize() const;

  // Moves the position, counted from the beginning (origin 0), the end (1) or the current position
  // (any other value). Always true. Throws the integer 0 when no file is open.
  bool Seek(int32_t offset, int origin);

  // The name while the file is open, otherwise "Not-open".
  const char* GetName() const;
  HANDLE GetHandle() const { return handle; }
  bool Close();

 private:
  int isOpen = 0;
  int hasName = 0;
  HANDLE handle = INVALID_HANDLE_VALUE;
  char name[MAX_PATH] = "";
};
