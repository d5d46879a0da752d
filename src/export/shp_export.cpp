#include "export/shp_export.h"

#include <vector>

#include "export/quantizer.h"

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
  std::vector<uint8_t> indices(static_cast<size_t>(picture.width) *
                               static_cast<size_t>(picture.height));
  PaletteMapper mapper(palette, usedEntries);
  uint8_t* row = indices.data();
  for (int32_t y = 0; y < picture.height; ++y, row += picture.width) {
    mapper.Map(picture.Row(y), picture.width, row);
    if (y % kRowsPerStep == 0) progress(ExportStep::RowsMapped);
  }
  return indices;
}

}  // namespace

bool AreSameFile(const char* one, const char* other) {
  char full[2][MAX_PATH] = {};
  const DWORD length = GetFullPathNameA(one, MAX_PATH, full[0], nullptr);
  GetFullPathNameA(other, MAX_PATH, full[1], nullptr);
  return length > 0 && length < MAX_PATH && lstrcmpiA(full[0], full[1]) == 0;
}

FailedStep RunShpExport(const ImageClass& picture, const ShpExport& request,
                        const ExportProgress& progress) {
  ShpPalette palette;
  int32_t usedEntries = request.colours;
  const bool oneFile = AreSameFile(request.shpPath, request.palettePath);
  if (request.paletteMode == kExistingPalette) {
    if (const FailedStep failed = ReadPalFile(request.palettePath, palette)) return failed;
    if (oneFile) return "SHP file open error!";
  } else {
    if (oneFile) return "Palette file create error!";
    usedEntries = GeneratePalette(picture, request.colours, palette);
  }
  progress(ExportStep::PaletteMade);

  FileClass file;
  if (const FailedStep failed =
          BeginShpFile(file, request.shpPath, static_cast<uint16_t>(picture.width),
                       static_cast<uint16_t>(picture.height)))
    return failed;
  const std::vector<uint8_t> indices = MapPicture(picture, palette, usedEntries, progress);
  if (const FailedStep failed = FinishShpFile(file, indices)) return failed;
  progress(ExportStep::DataWritten);

  if (request.paletteMode == kExistingPalette) return nullptr;
  return WritePalFile(request.palettePath, palette);
}
