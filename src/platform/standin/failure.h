// How the stand-in stops when it is asked for what it does not cover.
#pragma once

#include <string>

namespace standin {

// Says what is missing and ends the process with SIGABRT: a silent difference from Windows is
// worse.
[[noreturn]] void Unsupported(const std::string& what);

}  // namespace standin
