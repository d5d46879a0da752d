#pragma once

#include "platform/win32.h"

// The child window that shows the canvas 1:1: centred when the window is larger, scrolled when it
// is smaller. Nothing of the picture is cached: every paint composes it again.
inline constexpr char kViewClassName[] = "ViewClass";

LRESULT CALLBACK ViewProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Composes the picture and shows its visible part on the view's device context.
void PaintView(HDC dc);
