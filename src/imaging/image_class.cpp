#include "imaging/image_class.h"

#include "imaging/line_walk.h"
#include "imaging/surface_drawing.h"

ImageClass::ImageClass(const ImageClass& other) : ImageClass() { *this = other; }

ImageClass& ImageClass::operator=(const ImageClass& other) {
  if (this == &other) return *this;
  Free();
  if (!other.valid || !Create(other.width, other.height)) return *this;
  for (int32_t y = 0; y < height; ++y) std::copy_n(other.Row(y), width, Row(y));
  return *this;
}

bool ImageClass::CreateFromPixels(const uint32_t* pixels, int32_t newWidth, int32_t newHeight) {
  if (!Create(newWidth, newHeight)) return false;
  for (int32_t y = 0; y < height; ++y) {
    std::copy_n(pixels + static_cast<size_t>(y) * static_cast<size_t>(width), width, Row(y));
  }
  return true;
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

void ImageClass::PutPixel(int32_t x, int32_t y, uint32_t colour) {
  if (Holds(x, y)) Row(y)[x] = colour;
}

uint32_t ImageClass::ReadPixel(int32_t x, int32_t y) const { return Holds(x, y) ? Row(y)[x] : 0; }

void ImageClass::DrawLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour) {
  // An axis steps one round later than in the base, so the first point is set twice and the last
  // of the n + 2 rounds sets the end point.
  LineWalk walk(x1, y1, x2, y2);
  for (int32_t i = 0; i < walk.length() + 2; ++i) {
    PutPixel(walk.x(), walk.y(), colour);
    walk.Step(walk.length() + 1);
  }
}

void ImageClass::DrawFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight,
                           uint32_t colour) {
  SurfaceDrawing::DrawFrame(*this, x, y, frameWidth, frameHeight, colour);
}

void ImageClass::InvertFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight) {
  SurfaceDrawing::InvertFrame(*this, x, y, frameWidth, frameHeight);
}

void ImageClass::Fill(uint32_t colour) { SurfaceDrawing::Fill(*this, colour); }

void ImageClass::CopyRegionKeyed(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx,
                                 int32_t sy, int32_t w, int32_t h, uint32_t key) {
  SurfaceDrawing::CopyRegionKeyed(*this, source, dx, dy, sx, sy, w, h, key);
}

void ImageClass::DrawKeyed(const BitmapClass& source, int32_t x, int32_t y, uint32_t key) {
  SurfaceDrawing::DrawKeyed(*this, source, x, y, key);
}

void ImageClass::CopyRegion(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx,
                            int32_t sy, int32_t w, int32_t h) {
  SurfaceDrawing::CopyRegion(*this, source, dx, dy, sx, sy, w, h);
}

void ImageClass::Draw(const BitmapClass& source, int32_t x, int32_t y) {
  CopyRegion(source, x, y, 0, 0, source.width, source.height);
}
