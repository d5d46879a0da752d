#pragma once

#include <cstdint>

#include "imaging/bitmap_class.h"

// The arithmetic of "Crop image", along one axis.

// Keeps the crop rectangle, `crop` pixels long, inside a picture of `picture` pixels.
int32_t LimitCrop(int64_t position, int32_t picture, int32_t crop);

// Where the rectangle starts so that its middle is the picture's point under the mouse, kept inside
// the picture. `mouse` is the position in a preview of `preview` pixels that shows the whole
// picture.
int32_t CropAroundMouse(int32_t mouse, int32_t preview, int32_t picture, int32_t crop);

// Halves the brightness of a rectangle, which lies inside the picture. What the halves lose is kept
// in the pixels' top bytes.
void DimRegion(BitmapClass& picture, int32_t x, int32_t y, int32_t width, int32_t height);
// Gives a dimmed rectangle its pixels back, the top bytes 0.
void UndimRegion(BitmapClass& picture, int32_t x, int32_t y, int32_t width, int32_t height);
