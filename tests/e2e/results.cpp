#include "e2e/results.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "e2e/screen.h"
#include "imagelib/imagelib.h"
#include "imaging/image_files.h"
#include "platform/win32.h"

namespace fs = std::filesystem;

namespace {

// The environment and the folders are in UTF-8, this program's code page. GetEnvironmentVariableA
// of Wine 8 cuts such a text short: it counts its letters and copies as many bytes.
std::string Environment(const char* name) {
  const char* text = std::getenv(name);
  return text ? text : "";
}

std::string FullPath(const std::string& path) {
  char full[MAX_PATH] = "";
  GetFullPathNameA(path.c_str(), MAX_PATH, full, nullptr);
  return full;
}

std::string ProgramFolder() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, MAX_PATH);
  const std::string text = path;
  return text.substr(0, text.rfind('\\') + 1);
}

std::string ResultFolder() {
  std::string folder = Environment("CORVANTA_E2E_DIR");
  if (folder.empty()) folder = ProgramFolder() + "..\\..\\e2e";
  folder = FullPath(folder);
  fs::create_directories(fs::u8path(folder));
  return folder + "\\";
}

void StartImageLibrary() {
  static const bool started = ImageInit() != 0;
  if (!started) throw std::runtime_error("ImageLib does not start.");
}

}  // namespace

std::string EditorPath() {
  const std::string named = Environment("CORVANTA_E2E_EXE");
  return named.empty() ? ProgramFolder() + "Corvanta.exe" : FullPath(named);
}

std::string EditorFile(const std::string& name) {
  const std::string path = EditorPath();
  return path.substr(0, path.rfind('\\') + 1) + name;
}

std::string ResultPath(const std::string& name) {
  static const std::string folder = ResultFolder();
  return folder + name;
}

std::string NewResultPath(const std::string& name) {
  const std::string path = ResultPath(name);
  DeleteFileA(path.c_str());
  return path;
}

std::string SamplePath(const std::string& name) { return FullPath(CORVANTA_SAMPLES "/" + name); }

ImageClass LoadPicture(const std::string& path) {
  StartImageLibrary();
  ImageClass picture;
  WaitUntil(path + " to be readable", [&] { return LoadImageFile(path.c_str(), picture) == 1; });
  return picture;
}

void SaveResult(const std::string& name, const ImageClass& picture) {
  StartImageLibrary();
  if (!SaveImageFile(ResultPath(name).c_str(), picture))
    throw std::runtime_error("Can't save " + ResultPath(name));
}
