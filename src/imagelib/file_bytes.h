#pragma once

#include <optional>

#include "imagelib/bytes.h"

namespace imagelib {

// Reads a picture file whole and closes it. Nothing if it is missing, not an ordinary file, not of
// a known type by its first bytes, too large, or unreadable.
std::optional<Bytes> ReadPictureFile(const char* path);

}  // namespace imagelib
