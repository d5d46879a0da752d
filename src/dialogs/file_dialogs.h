#pragma once

#include "imaging/bitmap_class.h"
#include "platform/win32.h"

// What the editor's Open and Save dialogs have in common: title and folder are the system's.
OPENFILENAMEA FileDialog(HWND owner, char (&path)[MAX_PATH], const char* filter,
                         const char* defaultExtension);

// Shows the system's Save dialog. The buffer's path is proposed, unless no file can have that name,
// and replaced by the chosen one.
// False when the user cancels, which leaves the buffer as the dialog left it, or chooses a path
// that the buffer can't hold, which empties it. The dialog asks no question about an existing file.
bool AskSaveName(HWND owner, char (&path)[MAX_PATH], const char* filter,
                 const char* defaultExtension);

// Asks for a path, which the buffer proposes and receives, and saves the surface there. 0 when the
// user cancelled.
int SaveImageFileAs(HWND owner, char (&path)[MAX_PATH], const BitmapClass& surface);
