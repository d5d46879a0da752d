#pragma once

#include "platform/win32.h"

// Makes a multi-line edit control a box to read in: it can be scrolled and text selected with the
// mouse, but nothing typed, pasted or deleted, and it has no context menu. One box at a time.
void AttachReadmeBox(HWND edit);

// Shows the file's bytes as the box's text; nothing changes when it can't be read whole or is
// empty.
void ShowReadme(HWND edit, const char* path);
