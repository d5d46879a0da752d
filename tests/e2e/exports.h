#pragma once

#include <string>

#include "e2e/editor.h"

// Saves the picture by File, "Save as...", compares it with what the view shows, and returns it.
ImageClass SavePicture(const Editor& editor, const std::string& name);

// Exports <name>.shp and <name>.pal with a generated palette of so many colours and compares them
// with the picture. They are turned back into a picture, which is saved as <name>.shp.png and
// returned: the screen as the game shows it. The palette's name is chosen by the button "..." or
// pasted.
enum class PaletteName { Chosen, Pasted };
ImageClass ExportSprite(const Editor& editor, const std::string& name, const ImageClass& picture,
                        int colours, PaletteName how);
