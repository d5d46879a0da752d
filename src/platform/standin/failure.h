// What any part of the stand-in may need.
#pragma once

#include <string>

#include "platform/win32.h"

namespace standin {

// Says what is missing and ends the process with SIGABRT: a silent difference from Windows is
// worse.
[[noreturn]] void Unsupported(const std::string& what);

// The file system's own form of a Win32 path: every backslash becomes a slash.
std::string NativePath(const char* path);

}  // namespace standin
