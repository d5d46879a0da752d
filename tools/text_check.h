#pragma once

#include <string>
#include <string_view>

#include "tools/findings.h"

// Reads the bytes of a file, false when it cannot be opened or read.
bool ReadBytes(const std::string& path, std::string& bytes);

// Whether a text is UTF-8, the encoding that the editor runs in.
bool IsUtf8(std::string_view text);

// Finds what is wrong with the bytes of a text file of the package: its encoding, and what the
// editor's reader takes for the end of a text or line. False when its lines tell nothing.
bool CheckEncoding(const char* file, std::string_view bytes, Findings& findings);
