#pragma once

#include "platform/win32.h"

// Creates the main window's status bar with its three parts and writes the hint into the last one.
// Null when the system makes none; the editor runs without it then.
HWND CreateStatusBar(HWND parent, HINSTANCE instance);

// Height in pixels that a visible status bar takes from the client area, after it has placed
// itself along the bottom edge; 0 when there is none or it is hidden.
int PlaceStatusBar(HWND statusBar);
