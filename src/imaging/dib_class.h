#pragma once

#include "imaging/surface_drawing.h"
#include "platform/win32.h"

// A surface in a GDI DIB section, so that it can be copied to a device context. The rows lie
// bottom-up in memory. The canvas, the clipboard's picture and the dialog previews are of this
// kind.
class DIBClass final : public SurfaceDrawing<DIBClass> {
 public:
  HBITMAP bitmap = nullptr;  // owned
  uint32_t* bits = nullptr;  // the section's pixels

  DIBClass() = default;
  // Create() with the size; check `valid`.
  DIBClass(int32_t newWidth, int32_t newHeight) { DIBClass::Create(newWidth, newHeight); }
  DIBClass(const DIBClass& other);
  DIBClass& operator=(const DIBClass& other);
  ~DIBClass() { Free(); }

  // False, with `valid` 0 but the size recorded, when GDI makes no section.
  bool Create(int32_t newWidth, int32_t newHeight) override;
  void Free() override;
  int32_t IsDIB() const override { return 1; }
  int32_t RowBytes() const override;
  int32_t PixelBytes() const override;
  uint32_t* Row(int32_t y) const override {
    if (!valid || y < 0 || y >= height) return nullptr;
    return bits + static_cast<ptrdiff_t>(height - 1 - y) * width;
  }
  // Clips the source at the right and bottom edges; nothing at a negative position.
  void Draw(const BitmapClass& source, int32_t x, int32_t y) override;

  // Copies the whole surface to (x, y) of a device context.
  void BlitTo(HDC target, int x, int y) const;
  // Copies the w x h block at (sx, sy), cut at the surface's right and bottom, to (x, y).
  void BlitRegionTo(HDC target, int x, int y, int sx, int sy, int w, int h) const;
  // Stretches the whole surface into a rectangle, in the stretch mode that the caller has set.
  void StretchTo(HDC target, int x, int y, int w, int h) const;
};
