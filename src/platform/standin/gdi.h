// What stands behind GDI handles: pixels, bitmaps, fonts, brushes and device contexts.
#pragma once

#include <memory>
#include <vector>

#include "platform/standin/handles.h"
#include "platform/win32.h"

namespace standin {

// A block of 32-bit pixels, blue in the low byte. Rows are addressed from the top, whatever their
// order in memory.
class Pixels {
 public:
  Pixels(int width, int height, bool bottomUp)
      : width_(width),
        height_(height),
        bottomUp_(bottomUp),
        values_(static_cast<size_t>(width) * static_cast<size_t>(height)) {}

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
  uint32_t* Row(int y) {
    const int row = bottomUp_ ? height_ - 1 - y : y;
    return values_.data() + static_cast<size_t>(row) * static_cast<size_t>(width_);
  }
  uint32_t& At(int x, int y) { return Row(y)[x]; }
  uint32_t* Data() { return values_.data(); }

 private:
  int width_, height_;
  bool bottomUp_;
  std::vector<uint32_t> values_;
};

struct GdiObject {
  virtual ~GdiObject() = default;
  bool stock = false;  // belongs to the system: DeleteObject leaves it alone
};

struct Bitmap : GdiObject {
  Bitmap(int width, int height, bool bottomUp) : pixels(width, height, bottomUp) {}
  Pixels pixels;
  bool selected = false;  // a bitmap stands in one device context at a time
};

struct Font : GdiObject {
  explicit Font(int givenHeight) : height(givenHeight) {}
  const int height;  // all that can be seen of a font here
};

// A device context: of a window, of the screen (no window, no bitmap), or of memory.
struct DeviceContext {
  bool memory = false;
  HWND window = nullptr;
  HGDIOBJ bitmapHandle = nullptr;
  HGDIOBJ fontHandle = nullptr;
  std::shared_ptr<Bitmap> bitmap;
  std::shared_ptr<Font> font;
  RECT clip{0, 0, INT32_MAX, INT32_MAX};
  COLORREF textColour = RGB(0, 0, 0);
  int backgroundMode = OPAQUE;
  int stretchMode = 1;
};

std::shared_ptr<DeviceContext> FindDC(HDC dc);
std::shared_ptr<GdiObject> FindGdiObject(const void* handle);
template <class Object>
std::shared_ptr<Object> FindGdi(const void* handle) {
  return std::dynamic_pointer_cast<Object>(FindGdiObject(handle));
}

// A new device context of a window, or of the screen for none; drawing is kept inside the clip.
HDC OpenWindowDC(HWND window, const RECT* clip);
void CloseWindowDC(HDC dc);

// What the device context draws on, or null when its window has gone or it is the screen's.
Pixels* TargetOf(DeviceContext& dc);

// A COLORREF (red in the low byte) as a pixel, and back.
uint32_t PixelOf(COLORREF colour);
COLORREF ColourOf(uint32_t pixel);

}  // namespace standin
