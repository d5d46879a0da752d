#pragma once

#include <string>

#include "imagelib/bytes.h"
#include "imagelib/system_files.h"

namespace imagelib {

// A new file beside the one that it is to replace, so that a full disk cannot cost the old one.
class FreshFile {
 public:
  // Creates it, empty, under a short name of its own. Invalid if nothing may be put at the path or
  // its folder takes no file.
  explicit FreshFile(const char* path);
  // Removes it unless it was placed.
  ~FreshFile();
  FreshFile(const FreshFile&) = delete;
  FreshFile& operator=(const FreshFile&) = delete;

  bool IsValid() const { return !name_.empty(); }
  const char* Name() const { return name_.c_str(); }
  // Writes all of the file, once. False if it does not fit.
  bool Write(ByteView bytes);
  // Closes the file, so that others can write it by its name.
  void Close() { file_.reset(); }
  // Puts the closed file in place, over an existing one. False leaves that one as it was.
  bool Place();

 private:
  std::string path_, name_;
  FileHandle file_;
};

// Puts a file of these bytes in place, over an existing one. False leaves that one as it was.
bool ReplaceFile(const char* path, ByteView bytes);

}  // namespace imagelib
