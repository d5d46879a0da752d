#include "tools/output_texts.h"

#include <algorithm>

#include "export/shp_export.h"
#include "platform/win32.h"

std::string PictureNameFault(const std::string& path) {
  const std::string ending = path.substr(path.size() - std::min<size_t>(path.size(), 4));
  for (const char* type : {".png", ".bmp"}) {
    if (lstrcmpiA(ending.c_str(), type) == 0) return {};
  }
  return path + ": the picture's name should end in .png or .bmp";
}

std::string OverwritingFault(const std::string& written,
                             std::initializer_list<std::string> others) {
  if (written.empty()) return {};
  for (const std::string& other : others) {
    if (AreSameFile(written.c_str(), other.c_str())) return written + " is given for two files";
  }
  return {};
}

std::string SizeText(int32_t width, int32_t height) {
  return std::to_string(width) + " x " + std::to_string(height);
}

std::string Counted(int32_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}
