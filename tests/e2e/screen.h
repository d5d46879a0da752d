#pragma once

#include <functional>
#include <string>

#include "imaging/image_class.h"
#include "platform/win32.h"

// Looks again and again until the condition holds. When it does not within `seconds`, throws
// std::runtime_error with what was waited for, the windows that stand on the screen and the name of
// a picture of the screen, which fails the test.
void WaitUntil(const std::string& what, const std::function<bool()>& condition, int seconds = 60);

// Fails as WaitUntil does, at once.
[[noreturn]] void GiveUp(const std::string& why);

// The part of the screen that a window's client area takes up.
RECT ClientArea(HWND window);

// Copies an area of a device context, top bytes 0.
ImageClass CopyPixels(HDC source, const RECT& area);
// What stands in an area of the screen, as far as it lies on it, once it has stopped changing:
// windows are painted after they appear.
ImageClass CaptureScreen(const RECT& area);
// Saves it as screen-<name>.png among the results.
void SaveScreen(const std::string& name, const RECT& area);

size_t CountColours(const ImageClass& picture);
