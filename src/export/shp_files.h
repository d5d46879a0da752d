#pragma once

#include <cstdint>
#include <vector>

#include "export/shp_palette.h"
#include "files/file_class.h"

// The game's sprite and palette files. All numbers are little-endian.
//
//   SHP: one uncompressed frame, for the editor's 800 x 520 pixels 416032 bytes
//     0  u16 0          8  u16 frame x 0       16  u32 0, u32 0, u32 0
//     2  u16 width      10 u16 frame y 0       28  u32 offset of the pixels, 32
//     4  u16 height     12 u16 frame width     32  one palette index per pixel, rows from the top
//     6  u16 frames 1   14 u16 frame height
//
//   PAL, 768 bytes: 256 entries of red, green and blue on a scale of 0 to 63

#pragma pack(push, 1)
struct SHP2FILEHEADER {
  uint16_t headerZero;
  uint16_t imageWidth;
  uint16_t imageHeight;
  uint16_t frameCount;
};

struct SHP2FRAMEINFO {
  uint16_t frameX;
  uint16_t frameY;
  uint16_t frameWidth;
  uint16_t frameHeight;
  uint32_t reserved1;
  uint32_t reserved2;
  uint32_t reserved3;
  uint32_t dataOffset;
};
#pragma pack(pop)

// The result of a file operation: null when it succeeded, otherwise the message of the step that
// failed. What was written up to then stays on disk.
using FailedStep = const char*;

// Creates the sprite file, replacing an existing one, and writes its two records for a frame of the
// given size. On success it stays open for FinishShpFile.
FailedStep BeginShpFile(FileClass& file, const char* path, uint16_t width, uint16_t height);

// Writes the frame's indices, one a pixel and at least one, and closes the file.
FailedStep FinishShpFile(FileClass& file, const std::vector<uint8_t>& indices);

// Reads a palette from the first 768 bytes of a file. A component above 63 wraps: only the low 8
// bits of its fourfold count.
FailedStep ReadPalFile(const char* path, ShpPalette& palette);

// Creates the file, replacing an existing one. The components lose their two low bits.
FailedStep WritePalFile(const char* path, const ShpPalette& palette);
