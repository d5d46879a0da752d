#pragma once

#include <string>

namespace standin {

// The file system's own form of a Win32 path: every backslash becomes a slash.
std::string NativePath(const char* path);

}  // namespace standin
