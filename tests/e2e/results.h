#pragma once

#include <string>

#include "imaging/image_class.h"

// Where the editor under test stands: the executable that CORVANTA_E2E_EXE names, otherwise the one
// beside this program. Settings.ini, Templates and ImageLib.dll stand beside it.
std::string EditorPath();
// A file in the editor's folder.
std::string EditorFile(const std::string& name);

// A file among the results: in the folder CORVANTA_E2E_DIR, otherwise e2e beside the build folder.
// The folder is made when it is missing.
std::string ResultPath(const std::string& name);
// The same for a file that the editor is about to write: one left by an earlier run is removed.
std::string NewResultPath(const std::string& name);

// A file of the repository's template package.
std::string SamplePath(const std::string& name);

// Loads a picture, as soon as whoever writes it has done so.
ImageClass LoadPicture(const std::string& path);
// Saves a picture among the results.
void SaveResult(const std::string& name, const ImageClass& picture);
