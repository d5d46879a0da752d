#pragma once

#include "imaging/image_class.h"
#include "platform/win32.h"

// Shows "Crop image", in which the user places a rectangle of the given size on the source, at
// least as large as it and let go of once it is shown: it may be large. 1 when the user confirmed:
// the destination, which must be empty, holds the rectangle's pixels then. 0 when the user
// cancelled; the destination is untouched then.
int CropImage(BitmapClass& destination, ImageClass source, const char* path, SIZE size);
