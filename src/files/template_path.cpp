#include "files/template_path.h"

#include "platform/win32.h"

std::string TemplatePath(std::string_view folder, std::string_view fileName) {
  std::string path = std::string(folder).append("Templates\\").append(fileName);
  if (path.size() >= MAX_PATH) path.clear();
  return path;
}
