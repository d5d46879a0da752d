#pragma once

#include "platform/win32.h"

// The user's keys and mouse. The keys move one thing at a time: the selected item if there is one,
// otherwise what the edit mode names. The mouse selects and drags items.

// A key press in the main window, by virtual-key code. The step is 1 pixel, 2 with SHIFT, 5 with
// CTRL, 10 with both.
void HandleKey(WPARAM key);

// The left button and moves, in client coordinates of the view.
void HandleButtonDown(int x, int y);
void HandleMouseMove(int x, int y);
void HandleButtonUp();
// The view has lost the mouse capture, by its own release too.
void HandleCaptureLost();
