#pragma once

#include "platform/win32.h"

// The editor's whole life: starts it, runs the message loop and shuts down. Returns the exit code
// of the process, which is 0 also when start-up fails after its message.
int RunEditor(HINSTANCE instance, int showCommand);

// Makes the executable's folder the application directory, doc.appDir.
void FindAppDir();

// Start-up, with the application directory set, up to the shown main window. False, after a message
// where there is one to give, when the editor can't start.
bool StartEditor(HINSTANCE instance, int showCommand);

// Frees what start-up and editing have made, after the message loop has ended or start-up failed.
void ShutDownEditor();
