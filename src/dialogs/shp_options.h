#pragma once

#include "platform/win32.h"

// Choices of "SHP save options" that outlive one opening of it.
extern int paletteMode;             // a PaletteMode
extern char palettePath[MAX_PATH];  // the palette file to write or read

// Shows "SHP save options" for a sprite file to write at the path. OK runs the export inside the
// dialog, which ends with it.
void OpenShpOptions(const char* shpPath);
