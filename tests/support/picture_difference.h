#pragma once

#include <algorithm>
#include <sstream>
#include <string>

#include "imaging/bitmap_class.h"

// What is wrong with a picture, for the test's report: its size, otherwise the first pixel that is
// not the expected one. Empty when nothing is.
inline std::string Difference(const BitmapClass& expected, const BitmapClass& picture) {
  std::ostringstream text;
  if (picture.width != expected.width || picture.height != expected.height) {
    text << picture.width << " x " << picture.height << " instead of " << expected.width << " x "
         << expected.height;
    return text.str();
  }
  for (int32_t y = 0; y < expected.height; ++y) {
    const uint32_t* const row = expected.Row(y);
    const auto [wanted, found] = std::mismatch(row, row + expected.width, picture.Row(y));
    if (wanted == row + expected.width) continue;
    text << std::hex << *found << " instead of " << *wanted << std::dec << " at " << wanted - row
         << ", " << y;
    return text.str();
  }
  return "";
}
