#pragma once

#include <cstddef>
#include <cstdint>

// The colour of overlays, the target box and items that is not drawn: pure blue, all 32 bits.
inline constexpr uint32_t kKeyColour = 0x0000FF;
// The colour of symbols that takes the side's: pure yellow.
inline constexpr uint32_t kSideMarker = 0xFFFF00;

// A rectangle of 32-bit pixels 0x00RRGGBB (blue in the low byte; the top byte is stored and
// compared but never interpreted). (0, 0) is the top-left pixel.
//
// Coordinates outside the surface, negative ones included, are never an error: points are
// dropped and copies are clipped or not made, as each operation says. Source and destination of a
// copy are always two different surfaces. Constness covers the surface's size and ownership, not
// its pixels.
//
// There is no virtual destructor: a surface is always destroyed as its own class.
class BitmapClass {
 public:
  uint8_t valid = 0;  // 1 while the surface holds pixels
  int32_t width = 0;
  int32_t height = 0;

  // Makes pixels of the given size from a packed top-down buffer. The surface must be empty.
  virtual bool CreateFromPixels(const uint32_t* pixels, int32_t newWidth, int32_t newHeight) = 0;
  // Makes pixels of the given size. The surface must be empty: pixels it holds are not released.
  virtual bool Create(int32_t newWidth, int32_t newHeight);
  // Releases the pixels; the surface is empty afterwards. Harmless on an empty surface.
  virtual void Free() = 0;
  virtual int32_t IsDIB() const = 0;
  // Address of a pixel, null outside the surface.
  virtual uint32_t* PixelAddress(int32_t x, int32_t y) const = 0;
  virtual int32_t RowBytes() const = 0;
  virtual int32_t PixelBytes() const = 0;
  // The `width` pixels of row y from left to right, null outside the surface.
  virtual uint32_t* Row(int32_t y) const = 0;
  virtual void PutPixel(int32_t x, int32_t y, uint32_t colour) = 0;
  // The pixel, 0 outside the surface.
  virtual uint32_t ReadPixel(int32_t x, int32_t y) const = 0;
  // Draws the points from (x1, y1) up to the one before (x2, y2); nothing when both are equal.
  virtual void DrawLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour);
  virtual void Reserved1(int32_t, int32_t, int32_t, int32_t, int32_t) = 0;
  // One-pixel outline. Nothing at a negative position or with an empty size.
  virtual void DrawFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight,
                         uint32_t colour) = 0;
  // Inverts the outline's colours and exchanges their red and blue; twice restores them.
  virtual void InvertFrame(int32_t x, int32_t y, int32_t frameWidth, int32_t frameHeight) = 0;
  virtual void Reserved2(int32_t, int32_t, int32_t, int32_t, int32_t) = 0;
  virtual void Fill(uint32_t colour) = 0;
  // Copies the block at (sx, sy) to (dx, dy), clipped to both surfaces, but for pixels of the key.
  virtual void CopyRegionKeyed(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx,
                               int32_t sy, int32_t w, int32_t h, uint32_t key) = 0;
  // Copies the source but for pixels of the key; nothing unless it fits whole.
  virtual void DrawKeyed(const BitmapClass& source, int32_t x, int32_t y, uint32_t key) = 0;
  // Copies the block at (sx, sy) to (dx, dy); nothing unless it lies inside both surfaces.
  virtual void CopyRegion(const BitmapClass& source, int32_t dx, int32_t dy, int32_t sx, int32_t sy,
                          int32_t w, int32_t h) = 0;
  // Copies the whole source to (x, y). What does not fit is the class's own rule.
  virtual void Draw(const BitmapClass& source, int32_t x, int32_t y) = 0;

  // Whether a point lies on the pixels that the surface holds.
  bool Holds(int32_t x, int32_t y) const {
    return valid != 0 && x >= 0 && y >= 0 && x < width && y < height;
  }
  // Whether a w x h block at (x, y) lies inside the surface's pixels.
  bool HoldsBlock(int32_t x, int32_t y, int32_t w, int32_t h) const {
    return valid != 0 && x >= 0 && y >= 0 && w <= width - x && h <= height - y;
  }

 protected:
  BitmapClass() = default;
  BitmapClass(const BitmapClass&) = default;
  BitmapClass& operator=(const BitmapClass&) = default;
  ~BitmapClass() = default;
};

// Copies `count` pixels of a row but for those of the key.
void CopyKeyed(uint32_t* to, const uint32_t* from, int32_t count, uint32_t key);
// Copies `count` pixels of a row, for those of the key the ones below. All three are different
// rows.
void MergeKeyed(uint32_t* to, const uint32_t* from, const uint32_t* below, int32_t count,
                uint32_t key);
