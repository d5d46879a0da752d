#pragma once

#include "platform/win32.h"

// Lets the user choose a picture as the screenshot of the document, cropped to 234 x 232 if it is
// larger. doc.lastFilePath proposes the folder and receives the path. The messages are owned by the
// dialog.
//
// True when a new screenshot took effect, which is none at all when the user gave up cropping.
// False when nothing has changed but doc.lastFilePath.
bool ChooseScreenshot(HWND dialog);
