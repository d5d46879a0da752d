#pragma once

#include "imaging/bitmap_class.h"
#include "platform/win32.h"

// Shows the Open dialog with a preview of the selected file, starting in the folder of the buffer's
// path, and loads the chosen file into an empty surface. 1 when loaded. 0 when it can't be read, or
// when the user cancelled or chose a path that the buffer can't hold: the buffer is empty then.
int OpenImageWithPreview(HWND owner, char (&path)[MAX_PATH], BitmapClass& surface);
