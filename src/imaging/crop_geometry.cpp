#include "imaging/crop_geometry.h"

#include <algorithm>

namespace {

constexpr uint32_t kLowBits = 0x010101;  // the lowest bit of each channel
constexpr uint32_t kColour = 0xFFFFFF;

template <class Change>
void ChangeRegion(BitmapClass& picture, int32_t x, int32_t y, int32_t width, int32_t height,
                  Change change) {
  for (int32_t row = y; row < y + height; ++row) {
    uint32_t* const pixels = picture.Row(row) + x;
    std::transform(pixels, pixels + width, pixels, change);
  }
}

}  // namespace

int32_t LimitCrop(int64_t position, int32_t picture, int32_t crop) {
  const int64_t last = std::max(picture - crop, 0);
  return static_cast<int32_t>(std::clamp<int64_t>(position, 0, last));
}

int32_t CropAroundMouse(int32_t mouse, int32_t preview, int32_t picture, int32_t crop) {
  if (preview <= 0 || picture <= 0) return 0;
  const double scale = static_cast<double>(preview) / picture;
  const double start = mouse / scale - crop / 2;
  return LimitCrop(static_cast<int64_t>(start), picture, crop);
}

void DimRegion(BitmapClass& picture, int32_t x, int32_t y, int32_t width, int32_t height) {
  ChangeRegion(picture, x, y, width, height, [](uint32_t colour) {
    const uint32_t low = colour & kLowBits;
    return (low | low >> 7 | low >> 14) << 24 | (((colour - low) >> 1) + low);
  });
}

void UndimRegion(BitmapClass& picture, int32_t x, int32_t y, int32_t width, int32_t height) {
  ChangeRegion(picture, x, y, width, height, [](uint32_t dimmed) {
    const uint32_t kept = dimmed >> 24;
    const uint32_t low = (kept | kept << 7 | kept << 14) & kLowBits;
    return ((dimmed & kColour) << 1) - low;
  });
}
