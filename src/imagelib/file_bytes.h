#pragma once

#include <filesystem>
#include <optional>

#include "imagelib/bytes.h"

namespace imagelib {

// Converts a path of the library's callers; empty if it cannot be one. One version a platform.
std::filesystem::path SystemPath(const char* path);

// Reads a picture file whole and closes it. Nothing if it is missing, not an ordinary file, not of
// a known type by its first bytes, too large, or unreadable.
std::optional<Bytes> ReadPictureFile(const std::filesystem::path& path);

// Puts a file in place, over an existing one. False leaves that one as it was: the bytes go to a
// new file beside it first, so that a full disk cannot cost the old picture.
bool ReplaceFile(const std::filesystem::path& path, ByteView bytes);

}  // namespace imagelib
