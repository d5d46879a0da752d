#pragma once

#include <string>

#include "platform/win32.h"

// What the dialogs share.

// Runs a dialog of the program's resources until it is ended; its result, or 0 when it can't be
// shown.
INT_PTR RunDialog(int templateId, HWND owner, DLGPROC procedure, LPARAM parameter = 0);

// Gives a control another window procedure and returns the former one.
WNDPROC ReplaceWindowProc(HWND control, WNDPROC procedure);

// folder + "Templates\" + fileName, or an empty path, which names no file, when the system's path
// buffers can't hold it.
std::string TemplatePath(const char* folder, const char* fileName);

// The size of a window's client area in pixels.
SIZE ClientSize(HWND window);
