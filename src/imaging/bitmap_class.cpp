#include "imaging/bitmap_class.h"

#include "imaging/line_walk.h"

bool BitmapClass::Create(int32_t newWidth, int32_t newHeight) {
  width = newWidth;
  height = newHeight;
  return true;
}

void BitmapClass::DrawLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour) {
  LineWalk walk(x1, y1, x2, y2);
  for (int32_t i = 0; i < walk.length(); ++i) {
    PutPixel(walk.x(), walk.y(), colour);
    walk.Step(walk.length());
  }
}

// Neither has a branch in its loop, so that several pixels are done at a time.
void CopyKeyed(uint32_t* to, const uint32_t* from, int32_t count, uint32_t key) {
  for (int32_t i = 0; i < count; ++i) {
    const uint32_t pixel = from[i], below = to[i];
    to[i] = pixel == key ? below : pixel;
  }
}

void MergeKeyed(uint32_t* to, const uint32_t* from, const uint32_t* below, int32_t count,
                uint32_t key) {
  for (int32_t i = 0; i < count; ++i) {
    const uint32_t pixel = from[i], under = below[i];
    to[i] = pixel == key ? under : pixel;
  }
}
