#pragma once

#include "platform/win32.h"

// Gives a control another window procedure and returns the former one.
WNDPROC ReplaceWindowProc(HWND control, WNDPROC procedure);

// The size of a window's client area in pixels.
SIZE ClientSize(HWND window);
