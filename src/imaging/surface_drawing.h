#pragma once

#include <algorithm>
#include <cstring>

#include "imaging/bitmap_class.h"

// What both kinds of surface share, given as SurfaceDrawing<Surface> to the class Surface itself:
// its Row() is then computed in place instead of through the table of virtual operations, since the
// whole picture is composed again on every repaint.
template <class Surface>
class SurfaceDrawing : public BitmapClass {
 public:
  bool CreateFromPixels(const uint32_t* pixels, int32_t newWidth, int32_t newHeight) override {
    if (!Self().Create(newWidth, newHeight)) return false;
    for (int32_t y = 0; y < height; ++y, pixels += width) std::copy_n(pixels, width, Self().Row(y));
    return true;
  }

  uint32_t* PixelAddress(int32_t x, int32_t y) const override {
    return Holds(x, y) ? Self().Row(y) + x : nullptr;
  }

  void PutPixel(int32_t x, int32_t y, uint32_t colour) override {
    if (Holds(x, y)) Self().Row(y)[x] = colour;
  }

  uint32_t ReadPixel(int32_t x, int32_t y) const override {
    return Holds(x, y) ? Self().Row(y)[x] : 0;
  }

  void Reserved1(int32_t, int32_t, int32_t, int32_t, int32_t) override {}

  void DrawFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight,
                 uint32_t colour) override {
    ForFrame(x, y, frameWidth, frameHeight, [colour](uint32_t& pixel) { pixel = colour; });
  }

  void InvertFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight) override {
    ForFrame(x, y, frameWidth, frameHeight, [](uint32_t& pixel) {
      const uint32_t inverted = ~pixel;
      pixel = (inverted & 0x00FF00) | (inverted >> 16 & 0xFF) | (inverted & 0xFF) << 16;
    });
  }

  void Reserved2(int32_t, int32_t, int32_t, int32_t, int32_t) override {}

  void Fill(uint32_t colour) override {
    if (!valid) return;
    for (int32_t y = 0; y < height; ++y) std::fill_n(Self().Row(y), width, colour);
  }

  void CopyRegionKeyed(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx, int32_t sy,
                       int32_t w, int32_t h, uint32_t key) override {
    if (!source.valid || !valid) return;
    if (dx < 0 || dy < 0 || sx < 0 || sy < 0 || w < 1 || h < 1) return;
    const int32_t copiedWidth = std::min({w, source.width - sx, width - dx});
    const int32_t copiedHeight = std::min({h, source.height - sy, height - dy});
    for (int32_t row = 0; row < copiedHeight && copiedWidth > 0; ++row) {
      CopyKeyed(Self().Row(dy + row) + dx, source.Row(sy + row) + sx, copiedWidth, key);
    }
  }

  void DrawKeyed(const BitmapClass& source, int32_t x, int32_t y, uint32_t key) override {
    if (!source.valid || !HoldsBlock(x, y, source.width, source.height)) return;
    for (int32_t row = 0; row < source.height; ++row) {
      CopyKeyed(Self().Row(y + row) + x, source.Row(row), source.width, key);
    }
  }

  void CopyRegion(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx, int32_t sy,
                  int32_t w, int32_t h) override {
    if (w <= 0 || h <= 0) return;
    if (!source.HoldsBlock(sx, sy, w, h) || !HoldsBlock(dx, dy, w, h)) return;
    for (int32_t row = 0; row < h; ++row) {
      std::memcpy(Self().Row(dy + row) + dx, source.Row(sy + row) + sx,
                  static_cast<size_t>(w) * sizeof(uint32_t));
    }
  }

 protected:
  SurfaceDrawing() = default;
  ~SurfaceDrawing() = default;

 private:
  Surface& Self() { return static_cast<Surface&>(*this); }
  const Surface& Self() const { return static_cast<const Surface&>(*this); }

  // Calls `change` once with each outline pixel that lies on the surface.
  template <class Change>
  void ForFrame(int32_t x, int32_t y, int32_t w, int32_t h, Change change) {
    if (!valid || x < 0 || y < 0 || w <= 0 || h <= 0) return;
    const int64_t right = int64_t{x} + w - 1, bottom = int64_t{y} + h - 1;
    const int64_t lastX = std::min<int64_t>(right, width - 1);
    const int64_t lastY = std::min<int64_t>(bottom, height - 1);
    for (int64_t row = y; row <= lastY; ++row) {
      uint32_t* pixels = Self().Row(static_cast<int32_t>(row));
      if (row == y || row == bottom) {
        for (int64_t column = x; column <= lastX; ++column) change(pixels[column]);
      } else {
        if (x <= lastX) change(pixels[x]);
        if (right > x && right <= lastX) change(pixels[right]);
      }
    }
  }
};
