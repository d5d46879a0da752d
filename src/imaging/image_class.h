#pragma once

#include <memory>

#include "imaging/bitmap_class.h"

// A surface on the heap, one allocation per row, rows top-down. Template pictures, icons, items
// and the exported composition are of this kind.
class ImageClass final : public BitmapClass {
 public:
  std::unique_ptr<std::unique_ptr<uint32_t[]>[]> rows;

  ImageClass() = default;
  ImageClass(const ImageClass& other);
  ImageClass& operator=(const ImageClass& other);
  ~ImageClass() { Free(); }

  bool CreateFromPixels(const uint32_t* pixels, int32_t newWidth, int32_t newHeight) override;
  // All pixels are 0 afterwards. False for a negative size. Throws std::bad_alloc.
  bool Create(int32_t newWidth, int32_t newHeight) override;
  void Free() override;
  int32_t IsDIB() const override { return 0; }
  uint32_t* PixelAddress(int32_t x, int32_t y) const override {
    return Holds(x, y) ? rows[static_cast<size_t>(y)].get() + x : nullptr;
  }
  int32_t RowBytes() const override { return width * 4; }
  int32_t PixelBytes() const override { return 4; }
  uint32_t* Row(int32_t y) const override {
    return valid && y >= 0 && y < height ? rows[static_cast<size_t>(y)].get() : nullptr;
  }
  void PutPixel(int32_t x, int32_t y, uint32_t colour) override;
  uint32_t ReadPixel(int32_t x, int32_t y) const override;
  // Draws both end points, unlike the base.
  void DrawLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour) override;
  void Reserved1(int32_t, int32_t, int32_t, int32_t, int32_t) override {}
  void DrawFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight,
                 uint32_t colour) override;
  void InvertFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight) override;
  void Reserved2(int32_t, int32_t, int32_t, int32_t, int32_t) override {}
  void Fill(uint32_t colour) override;
  void CopyRegionKeyed(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx, int32_t sy,
                       int32_t w, int32_t h, uint32_t key) override;
  void DrawKeyed(const BitmapClass& source, int32_t x, int32_t y, uint32_t key) override;
  void CopyRegion(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx, int32_t sy,
                  int32_t w, int32_t h) override;
  // Draws nothing unless the whole source fits.
  void Draw(const BitmapClass& source, int32_t x, int32_t y) override;
};
