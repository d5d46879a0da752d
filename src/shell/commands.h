#pragma once

#include "platform/win32.h"

// Runs a menu command by its identifier; unknown ones do nothing.
void RunCommand(UINT command);

// Changes what the arrow keys move: stores the mode, moves the Mode menu's radio mark, repaints.
void SetMode(int mode);
