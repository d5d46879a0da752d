#pragma once

#include "platform/win32.h"

// The hyperlink control, window class "LinkClass": draws its text centred, bold, underlined and
// blue, and opens its address when clicked.

// wParam: the address, at most 255 characters, of which the control keeps a copy; lParam 0. The
// result is 1, or 0 for a longer address, which changes nothing.
inline constexpr UINT LM_SETADDRESS = WM_USER + 10;

// Registers the class and makes its font. Once per process; further calls do nothing.
void RegisterLinkClass();

// Deletes the control's font at the end of the process.
void DeleteLinkFont();
