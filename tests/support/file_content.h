#pragma once

#include <fstream>
#include <iterator>
#include <string>

// Paths are strings in the code page: the C++ library of MinGW turns those to filesystem::path
// wrongly when that is UTF-8.

// The bytes of a file; empty when there is none.
inline std::string ReadContent(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

// Writes a file, replacing one that exists.
inline void WriteContent(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}
