#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

// What the library needs of the system's files; one version a platform. Paths are those of the
// library's callers.
namespace imagelib {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

// Opens an ordinary file for reading and tells its size in bytes. Null if there is none.
FileHandle OpenOrdinaryFile(const char* path, std::uint64_t* size);

// Creates a file for writing. Null if that fails, with `taken` telling whether the name was.
FileHandle CreateNewFile(const char* path, bool* taken);

// Whether a file may be put at the path: there is none, or an ordinary one that is not
// write-protected. A rename alone would replace a protected one on some systems.
bool MayReplace(const char* path);

// Renames a file, over an existing one.
bool MoveOver(const char* from, const char* to);

void RemoveFile(const char* path);

}  // namespace imagelib
