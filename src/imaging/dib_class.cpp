#include "imaging/dib_class.h"

#include "imaging/memory_dc.h"

DIBClass::DIBClass(const DIBClass& other) : DIBClass() { *this = other; }

DIBClass& DIBClass::operator=(const DIBClass& other) {
  if (this == &other) return *this;
  Free();
  if (!other.valid || !Create(other.width, other.height)) return *this;
  std::copy_n(other.bits, static_cast<size_t>(width) * static_cast<size_t>(height), bits);
  return *this;
}

bool DIBClass::Create(int32_t newWidth, int32_t newHeight) {
  width = newWidth;
  height = newHeight;
  BITMAPINFO description{};
  description.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  description.bmiHeader.biWidth = width;
  description.bmiHeader.biHeight = height;  // positive: bottom-up
  description.bmiHeader.biPlanes = 1;
  description.bmiHeader.biBitCount = 32;
  description.bmiHeader.biCompression = BI_RGB;
  description.bmiHeader.biSizeImage = static_cast<DWORD>(width) * static_cast<DWORD>(height) * 4;
  const WindowDc screen(nullptr);
  void* pixels = nullptr;
  bitmap = width > 0 && height > 0
               ? CreateDIBSection(screen.get(), &description, DIB_RGB_COLORS, &pixels, nullptr, 0)
               : nullptr;
  bits = static_cast<uint32_t*>(pixels);
  valid = bitmap != nullptr;
  return valid != 0;
}

void DIBClass::Free() {
  if (bitmap) DeleteObject(bitmap);
  bitmap = nullptr;
  bits = nullptr;
  width = 0;
  height = 0;
  valid = 0;
}

int32_t DIBClass::RowBytes() const { return PixelBytes() * width; }

int32_t DIBClass::PixelBytes() const {
  BITMAP description{};
  GetObjectA(bitmap, sizeof description, &description);
  return description.bmBitsPixel / 8;
}

void DIBClass::Draw(const BitmapClass& source, int32_t x, int32_t y) {
  if (x < 0 || y < 0) return;
  CopyRegion(source, x, y, 0, 0, std::min(width - x, source.width),
             std::min(height - y, source.height));
}

void DIBClass::BlitTo(HDC target, int x, int y) const {
  BlitRegionTo(target, x, y, 0, 0, width, height);
}

void DIBClass::BlitRegionTo(HDC target, int x, int y, int sx, int sy, int w, int h) const {
  const MemoryDc memory(target, bitmap);
  BitBlt(target, x, y, std::min(w, width - sx), std::min(h, height - sy), memory.get(), sx, sy,
         SRCCOPY);
}

void DIBClass::StretchTo(HDC target, int x, int y, int w, int h) const {
  const MemoryDc memory(target, bitmap);
  StretchBlt(target, x, y, w, h, memory.get(), 0, 0, width, height, SRCCOPY);
}
