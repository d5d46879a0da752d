#pragma once

#include <vector>

#include "platform/win32.h"
#include "settings/catalogue.h"

// What the dialogs share.

// Runs a dialog of the program's resources until it is ended; its result, or 0 when it can't be
// shown.
INT_PTR RunDialog(int templateId, HWND owner, DLGPROC procedure, LPARAM parameter = 0);

// Makes the application folder the current one, where it stays, and reads a catalogue of its
// "Settings.ini". False, after a message owned by the dialog, when there is none.
bool LoadCatalogue(HWND dialog, const char* section, LeadingSpaces spaces,
                   std::vector<CatalogueEntry>& entries);
