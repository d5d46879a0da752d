#include "export/shp_export.h"

#include <vector>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "export/quantizer.h"
#include "imaging/image_class.h"

namespace {

constexpr uint32_t kTreeDepth = 8;
constexpr int32_t kRowsPerStep = 50;

// Fills the palette from the picture's colours; the number of entries that stand for one.
int32_t GeneratePalette(const ImageClass& picture, int32_t colours, ShpPalette& palette) {
  QuantizerClass quantizer(static_cast<uint32_t>(colours), kTreeDepth);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  palette = PaletteOf(table);
  return static_cast<int32_t>(quantizer.EntryCount());
}

std::vector<uint8_t> MapPicture(const ImageClass& picture, const ShpPalette& palette,
                                int32_t usedEntries, const ExportProgress& progress) {
  std::vector<uint8_t> indices(kShpDataSize);
  uint8_t* row = indices.data();
  for (int32_t y = 0; y < kPictureHeight; ++y, row += kPictureWidth) {
    MapToPalette(picture.Row(y), kPictureWidth, palette, usedEntries, row);
    if (y % kRowsPerStep == 0) progress(ExportStep::RowsMapped);
  }
  return indices;
}

}  // namespace

FailedStep RunShpExport(const ShpExport& request, const ExportProgress& progress) {
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&picture);
  progress(ExportStep::Composed);

  ShpPalette palette;
  int32_t usedEntries = request.colours;
  if (request.paletteMode == kExistingPalette) {
    if (const FailedStep failed = ReadPalFile(request.palettePath, palette)) return failed;
  } else {
    usedEntries = GeneratePalette(picture, request.colours, palette);
  }
  progress(ExportStep::PaletteMade);

  FileClass file;
  if (const FailedStep failed = BeginShpFile(file, request.shpPath)) return failed;
  const std::vector<uint8_t> indices = MapPicture(picture, palette, usedEntries, progress);
  if (const FailedStep failed = FinishShpFile(file, indices.data())) return failed;
  progress(ExportStep::DataWritten);

  if (request.paletteMode == kExistingPalette) return nullptr;
  return WritePalFile(request.palettePath, palette);
}
