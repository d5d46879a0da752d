#pragma once

#include <functional>
#include <string>

#include "imaging/dib_class.h"
#include "imaging/image_class.h"

// Looks again and again until the condition holds. After a minute in vain it throws
// std::runtime_error with what was waited for, which fails the test.
void WaitUntil(const std::string& what, const std::function<bool()>& condition);
// Throws that at once.
[[noreturn]] void GiveUp(const std::string& why);

// The executable under test: that of CORVANTA_E2E_EXE, otherwise the one beside this program.
std::string EditorPath();
// A file among the results, in the folder CORVANTA_E2E_DIR, otherwise e2e beside the build folder.
std::string ResultPath(const std::string& name);
// The same for a file that the editor is about to write: one left by an earlier run is removed.
std::string NewResultPath(const std::string& name);

// Loads a picture, as soon as whoever writes it has done so.
ImageClass LoadPicture(const std::string& path);

// Copies an area of a device context.
DIBClass CopyPixels(HDC source, const RECT& area);
// What stands in an area of the screen once it has not changed for so many milliseconds.
DIBClass CaptureScreen(const RECT& area, DWORD settled = 60);
// Saves the picture of a window as screen-<name>.png among the results.
void Screenshot(HWND window, const std::string& name);

// The screen coordinates of a window's client area.
RECT ClientArea(HWND window);
size_t CountColours(const BitmapClass& picture);
