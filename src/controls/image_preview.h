#pragma once

#include <cstdint>

#include "imaging/dib_class.h"
#include "platform/win32.h"

// The preview control of the Open dialog, window class "ImagePreview": shows a picture, scaled down
// to fit, and its size, or "No preview".

// Registers the control's window class. Once per process; further calls do nothing.
void RegisterImagePreview();

// Makes the control show a picture from its next repaint on, which is requested; null for none.
// The picture must live as long as the control or until it shows another.
void ShowPreviewPicture(HWND control, const DIBClass* picture);

// Where a picture is shown in a control, in pixels.
struct PreviewPlacement {
  int32_t x;
  int32_t y;
  int32_t width;
  int32_t height;
};

// The middle of the control, the picture in its own size if it fits and else scaled down with its
// proportions kept. The picture is not empty.
PreviewPlacement FitPreview(int32_t controlWidth, int32_t controlHeight, int32_t width,
                            int32_t height);
