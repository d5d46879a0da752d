#pragma once

#include <string>
#include <string_view>

// folder + "Templates\" + fileName, or an empty path, which names no file, when the system's path
// buffers can't hold it. The folder ends in a backslash, or is empty for the current one.
std::string TemplatePath(std::string_view folder, std::string_view fileName);
