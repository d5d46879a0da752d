#pragma once

#include <algorithm>
#include <cstring>

#include "imaging/bitmap_class.h"

// The drawing that both kinds of surface share. Each function is instantiated for the concrete
// destination class, whose Row() is then computed in place instead of through the table of
// virtual operations: the whole picture is composed again on every repaint.
class SurfaceDrawing {
 public:
  template <class Surface>
  static void Fill(Surface& target, uint32_t colour) {
    if (!target.valid) return;
    for (int32_t y = 0; y < target.height; ++y) std::fill_n(target.Row(y), target.width, colour);
  }

  // Calls `change` once with each outline pixel that lies on the target.
  template <class Surface, class Change>
  static void ForFrame(Surface& target, int32_t x, int32_t y, int32_t w, int32_t h, Change change) {
    if (!target.valid || x < 0 || y < 0 || w <= 0 || h <= 0) return;
    const int64_t right = int64_t{x} + w - 1, bottom = int64_t{y} + h - 1;
    const int64_t lastX = std::min<int64_t>(right, target.width - 1);
    const int64_t lastY = std::min<int64_t>(bottom, target.height - 1);
    for (int64_t row = y; row <= lastY; ++row) {
      uint32_t* pixels = target.Row(static_cast<int32_t>(row));
      if (row == y || row == bottom) {
        for (int64_t column = x; column <= lastX; ++column) change(pixels[column]);
      } else {
        if (x <= lastX) change(pixels[x]);
        if (right > x && right <= lastX) change(pixels[right]);
      }
    }
  }

  template <class Surface>
  static void DrawFrame(Surface& target, int32_t x, int32_t y, int32_t w, int32_t h,
                        uint32_t colour) {
    ForFrame(target, x, y, w, h, [colour](uint32_t& pixel) { pixel = colour; });
  }

  template <class Surface>
  static void InvertFrame(Surface& target, int32_t x, int32_t y, int32_t w, int32_t h) {
    ForFrame(target, x, y, w, h, [](uint32_t& pixel) {
      const uint32_t inverted = ~pixel;
      pixel = (inverted & 0x00FF00) | (inverted >> 16 & 0xFF) | (inverted & 0xFF) << 16;
    });
  }

  template <class Surface>
  static void DrawKeyed(Surface& target, const BitmapClass& source, int32_t x, int32_t y,
                        uint32_t key) {
    if (!source.valid || !target.HoldsBlock(x, y, source.width, source.height)) return;
    for (int32_t row = 0; row < source.height; ++row) {
      CopyKeyed(target.Row(y + row) + x, source.Row(row), source.width, key);
    }
  }

  template <class Surface>
  static void CopyRegion(Surface& target, const BitmapClass& source, int32_t dx, int32_t dy,
                         int32_t sx, int32_t sy, int32_t w, int32_t h) {
    if (w <= 0 || h <= 0) return;
    if (!source.HoldsBlock(sx, sy, w, h) || !target.HoldsBlock(dx, dy, w, h)) return;
    for (int32_t row = 0; row < h; ++row) {
      std::memcpy(target.Row(dy + row) + dx, source.Row(sy + row) + sx,
                  static_cast<size_t>(w) * sizeof(uint32_t));
    }
  }

  template <class Surface>
  static void CopyRegionKeyed(Surface& target, const BitmapClass& source, int32_t dx, int32_t dy,
                              int32_t sx, int32_t sy, int32_t w, int32_t h, uint32_t key) {
    if (!source.valid || !target.valid) return;
    if (dx < 0 || dy < 0 || sx < 0 || sy < 0 || w < 1 || h < 1) return;
    const int32_t copiedWidth = std::min({w, source.width - sx, target.width - dx});
    const int32_t copiedHeight = std::min({h, source.height - sy, target.height - dy});
    for (int32_t row = 0; row < copiedHeight && copiedWidth > 0; ++row) {
      CopyKeyed(target.Row(dy + row) + dx, source.Row(sy + row) + sx, copiedWidth, key);
    }
  }

 private:
  static void CopyKeyed(uint32_t* to, const uint32_t* from, int32_t count, uint32_t key) {
    for (int32_t i = 0; i < count; ++i) {
      if (from[i] != key) to[i] = from[i];
    }
  }
};
