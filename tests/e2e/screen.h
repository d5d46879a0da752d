#pragma once

#include <string>

#include "imaging/image_class.h"
#include "platform/win32.h"

// Copies an area, in screen coordinates, as far as it lies on the screen.
ImageClass CaptureScreen(const RECT& wanted);

// The part of the screen that a window, or its client area, takes up.
RECT WindowArea(HWND window);
RECT ClientArea(HWND window);

// The pixels of a bitmap, top bytes 0.
ImageClass PixelsOf(HBITMAP bitmap);

bool SamePixels(const ImageClass& a, const ImageClass& b);

// The area once it has stopped changing: windows are painted after they appear.
ImageClass CaptureSettled(const RECT& area);

size_t CountColours(const ImageClass& picture);

// Saves the settled area as screen-<name>.png among the results.
void SaveScreen(const std::string& name, const RECT& area);

// Saves the whole screen for a test that fails; returns the file's path.
std::string SaveFailureScreen();
