#pragma once

#include "platform/win32.h"

inline constexpr char kMainClassName[] = "PELMARClass";

// Handles WM_CREATE by making the status bar and the view and loading the Allied templates, so
// that the window shows a picture from its first paint on.
LRESULT CALLBACK MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Places the status bar and gives the view the rest of the client area.
void LayOutMainWindow();
