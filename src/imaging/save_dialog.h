#pragma once

#include "platform/win32.h"

// Shows the system's Save dialog. The buffer's path is proposed, unless no file can have that name,
// and replaced by the chosen one.
// False when the user cancels, which leaves the buffer as the dialog left it, or chooses a path
// that the buffer can't hold, which empties it. The dialog asks no question about an existing file.
bool AskSaveName(HWND owner, char (&path)[MAX_PATH], const char* filter,
                 const char* defaultExtension);
