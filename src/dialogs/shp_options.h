#pragma once

#include "platform/win32.h"

// Choices of "SHP save options" that outlive one opening of it.
extern int paletteMode;             // a PaletteMode
extern char palettePath[MAX_PATH];  // the palette file to write or read

// Dialog procedure of "SHP save options". WM_INITDIALOG's parameter is the path of the sprite file
// to write. OK runs the export inside the dialog, which ends with it.
INT_PTR CALLBACK ShpOptionsProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
