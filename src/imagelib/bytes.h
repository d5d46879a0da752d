#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace imagelib {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

// Numbers inside a file. Whatever lies past its end reads as 0, so that a parser of damaged files
// needs no check of its own before each field.
inline std::uint32_t Read8(ByteView file, std::size_t at) {
  return at < file.size() ? file[at] : 0;
}

inline std::uint32_t Read16Le(ByteView file, std::size_t at) {
  return Read8(file, at) | Read8(file, at + 1) << 8;
}

inline std::uint32_t Read16Be(ByteView file, std::size_t at) {
  return Read8(file, at) << 8 | Read8(file, at + 1);
}

inline std::uint32_t Read32Le(ByteView file, std::size_t at) {
  return Read16Le(file, at) | Read16Le(file, at + 2) << 16;
}

inline std::uint32_t Read32Be(ByteView file, std::size_t at) {
  return Read16Be(file, at) << 16 | Read16Be(file, at + 2);
}

}  // namespace imagelib
