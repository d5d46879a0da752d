#include "imagelib/replace_file.h"

#include <string_view>

namespace imagelib {
namespace {

// Creates a file with a name of its own in the same folder. Short, since the folder's path may be
// nearly as long as the system allows. Created at once, so that nobody else can take the name.
FileHandle CreateBeside(std::string_view path, std::string* fresh) {
  const std::string_view folder = path.substr(0, path.find_last_of("\\/:") + 1);
  char name[] = "~img00.tmp";
  bool taken = true;
  for (int i = 0; i < 100 && taken; ++i) {
    name[4] = static_cast<char>('0' + i / 10);
    name[5] = static_cast<char>('0' + i % 10);
    fresh->assign(folder).append(name);
    if (FileHandle file = CreateNewFile(fresh->c_str(), &taken)) return file;
  }
  fresh->clear();
  return nullptr;
}

}  // namespace

FreshFile::FreshFile(const char* path) : path_(path) {
  if (MayReplace(path)) file_ = CreateBeside(path_, &name_);
}

FreshFile::~FreshFile() {
  Close();
  if (IsValid()) RemoveFile(Name());
}

bool FreshFile::Write(ByteView bytes) {
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
  // What is still buffered is written now, and may not fit.
  return std::fclose(file_.release()) == 0 && written;
}

bool FreshFile::Place() {
  if (!MoveOver(Name(), path_.c_str())) return false;
  name_.clear();
  return true;
}

bool ReplaceFile(const char* path, ByteView bytes) {
  FreshFile fresh(path);
  return fresh.IsValid() && fresh.Write(bytes) && fresh.Place();
}

}  // namespace imagelib
