#pragma once

#include <cstdint>
#include <functional>

#include "export/shp_files.h"
#include "imaging/image_class.h"

// Where the palette of an export comes from.
enum PaletteMode : int { kGeneratePalette = 0, kExistingPalette = 1 };

struct ShpExport {
  const char* shpPath;
  int paletteMode;          // a PaletteMode
  const char* palettePath;  // written when the palette is generated, read otherwise
  int32_t colours;          // 1 to 256: pixels use only the palette's first entries
};

// How far an export has come: one call a step, RowsMapped after the first row and every 50 more.
enum class ExportStep { PaletteMade, RowsMapped, DataWritten };
using ExportProgress = std::function<void(ExportStep)>;

// Whether two paths name one file, by the names only: upper and lower case make no difference, nor
// do ".\" and its like.
bool AreSameFile(const char* one, const char* other);

// Writes the picture as a sprite file and, when it is generated, its palette. Unused entries of a
// generated palette are black in the file and no pixel's colour. One file for both is refused
// before either would replace the other. Throws std::bad_alloc.
FailedStep RunShpExport(const ImageClass& picture, const ShpExport& request,
                        const ExportProgress& progress);
