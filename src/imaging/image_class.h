#pragma once

#include <memory>

#include "imaging/surface_drawing.h"

// A surface on the heap, one allocation per row, rows top-down. Template pictures, icons, items
// and the exported composition are of this kind.
class ImageClass final : public SurfaceDrawing<ImageClass> {
 public:
  std::unique_ptr<std::unique_ptr<uint32_t[]>[]> rows;

  ImageClass() = default;
  ImageClass(const ImageClass& other);
  ImageClass& operator=(const ImageClass& other);
  // Takes the pixels; the other surface is empty afterwards.
  ImageClass(ImageClass&& other) noexcept;
  ~ImageClass() { Free(); }

  // All pixels are 0 afterwards. False for a negative size. Throws std::bad_alloc.
  bool Create(int32_t newWidth, int32_t newHeight) override;
  void Free() override;
  int32_t IsDIB() const override { return 0; }
  int32_t RowBytes() const override { return width * 4; }
  int32_t PixelBytes() const override { return 4; }
  uint32_t* Row(int32_t y) const override {
    return valid && y >= 0 && y < height ? rows[static_cast<size_t>(y)].get() : nullptr;
  }
  // Draws both end points, unlike the base.
  void DrawLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour) override;
  // Draws nothing unless the whole source fits.
  void Draw(const BitmapClass& source, int32_t x, int32_t y) override;
};
