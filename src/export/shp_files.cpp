#include "export/shp_files.h"

#include <bit>
#include <cstring>

static_assert(std::endian::native == std::endian::little, "the records are written as they lie");
static_assert(sizeof(SHP2FILEHEADER) == 8 && sizeof(SHP2FRAMEINFO) == 24);

namespace {

// Applies change(component) to every component of the palette.
template <class Change>
void ForComponents(ShpPalette& palette, Change change) {
  for (ShpColour& entry : palette.entries) {
    entry.red = static_cast<uint8_t>(change(entry.red));
    entry.green = static_cast<uint8_t>(change(entry.green));
    entry.blue = static_cast<uint8_t>(change(entry.blue));
  }
}

}  // namespace

FailedStep BeginShpFile(FileClass& file, const char* path, uint16_t width, uint16_t height) {
  const SHP2FILEHEADER header = {0, width, height, 1};
  const SHP2FRAMEINFO frame = {0, 0, width, height, 0, 0, 0, sizeof header + sizeof frame};
  file.SetName(path);
  if (!file.Open(1)) return "SHP file open error!";
  if (!file.Write(&header, sizeof header)) return "SHP file write error (SHP2FILEHEADER)!";
  if (!file.Write(&frame, sizeof frame)) return "SHP file write error (SHP2FRAMEINFO)!";
  return nullptr;
}

FailedStep FinishShpFile(FileClass& file, const std::vector<uint8_t>& indices) {
  if (!file.Write(indices.data(), static_cast<uint32_t>(indices.size()))) {
    return "SHP file write error (Image data)!";
  }
  file.Close();
  return nullptr;
}

FailedStep ReadPalFile(const char* path, ShpPalette& palette) {
  FileClass file(path);
  if (!file.Open(0)) return "PAL file open error!";
  if (!file.Read(&palette, sizeof palette)) return "PAL file read error!";
  ForComponents(palette, [](int component) { return component * 4; });
  return nullptr;
}

FailedStep WritePalFile(const char* path, const ShpPalette& palette) {
  ShpPalette scaled = palette;
  ForComponents(scaled, [](int component) { return component >> 2; });
  FileClass file(path);
  if (!file.Open(1)) return "Palette file create error!";
  if (!file.Write(&scaled, sizeof scaled)) return "Palette file write error!";
  return nullptr;
}
