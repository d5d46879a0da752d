#pragma once

#include <cstdint>

// The preview control of the Open dialog, window class "ImagePreview": shows a picture file, scaled
// down to fit, and its size, or "No preview".

// Registers the control's window class. Once per process; further calls do nothing.
void RegisterImagePreview();

// The preview has a picture from its opening to its closing; all preview controls show the same.
void OpenPreviewPicture();
void ClosePreviewPicture();

// Shows the file's picture, or none when the file can't be read. Repainting is up to the caller.
void LoadPreviewPicture(const char* path);

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
