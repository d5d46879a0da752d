#pragma once

#include <string>

#include "e2e/editor.h"
#include "imaging/image_class.h"

// What the editor under test should hold and show. Its document is worked out anew in this
// process's own record `doc`, from the template package: the test moves and adds there what the
// user moves and adds in the editor.

// A picture of the package's folder Templates.
ImageClass Template(const std::string& name);

// Makes `doc` that of a fresh start for a side ("all", "sov", "psy") and its icon count.
void ExpectFreshDocument(const std::string& side, int icons);

// The saved picture is exactly what `doc` shows.
void ExpectSaved(const ImageClass& picture);
// Whether the picture is what the clipboard holds for it: lines lack their last pixels there.
bool IsShown(const ImageClass& picture);
// Waits for the view to show it.
void ExpectShown(const Editor& editor);

// The sprite and its palette hold exactly what reducing this very picture to `colours` gives.
// Turned back into a picture, as the game shows it, they are saved as <sprite>.png.
void ExpectSprite(const std::string& shpPath, const std::string& palPath, const ImageClass& picture,
                  int colours);
