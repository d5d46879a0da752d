#pragma once

#include "platform/win32.h"

// Shows "Screen shot settings", which adjusts the screenshot's colours with a live preview. 0,
// after a hint, when no screenshot is loaded; otherwise 1.
int OpenScreenshotSettings(HWND owner);
