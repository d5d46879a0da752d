#pragma once

#include <optional>

#include "imagelib/bytes.h"

namespace imagelib {

// Reads a picture file whole and closes it. Nothing if it is missing, not an ordinary file, not of
// a known type by its first bytes, too large, or unreadable.
std::optional<Bytes> ReadPictureFile(const char* path);

// Puts a file in place, over an existing one. False leaves that one as it was: the bytes go to a
// new file beside it first, so that a full disk cannot cost the old picture.
bool ReplaceFile(const char* path, ByteView bytes);

}  // namespace imagelib
