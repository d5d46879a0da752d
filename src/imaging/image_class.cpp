#include "imaging/image_class.h"

#include <utility>

#include "imaging/line_walk.h"

ImageClass::ImageClass(const ImageClass& other) : ImageClass() { *this = other; }

ImageClass::ImageClass(ImageClass&& other) noexcept : rows(std::move(other.rows)) {
  valid = std::exchange(other.valid, 0);
  width = std::exchange(other.width, 0);
  height = std::exchange(other.height, 0);
}

ImageClass& ImageClass::operator=(const ImageClass& other) {
  if (this == &other) return *this;
  Free();
  if (!other.valid || !Create(other.width, other.height)) return *this;
  for (int32_t y = 0; y < height; ++y) std::copy_n(other.Row(y), width, Row(y));
  return *this;
}

bool ImageClass::Create(int32_t newWidth, int32_t newHeight) {
  if (newWidth < 0 || newHeight < 0) return false;
  const auto rowCount = static_cast<size_t>(newHeight);
  auto newRows = std::make_unique<std::unique_ptr<uint32_t[]>[]>(rowCount);
  for (size_t y = 0; y < rowCount; ++y) {
    newRows[y] = std::make_unique<uint32_t[]>(static_cast<size_t>(newWidth));
  }
  rows = std::move(newRows);
  width = newWidth;
  height = newHeight;
  valid = 1;
  return true;
}

void ImageClass::Free() {
  rows.reset();
  width = 0;
  height = 0;
  valid = 0;
}

void ImageClass::DrawLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour) {
  // An axis steps one round later than in the base, so the first point is set twice and the last
  // of the n + 2 rounds sets the end point.
  LineWalk walk(x1, y1, x2, y2);
  for (int32_t i = 0; i < walk.length() + 2; ++i) {
    PutPixel(walk.x(), walk.y(), colour);
    walk.Step(walk.length() + 1);
  }
}

void ImageClass::Draw(const BitmapClass& source, int32_t x, int32_t y) {
  CopyRegion(source, x, y, 0, 0, source.width, source.height);
}
