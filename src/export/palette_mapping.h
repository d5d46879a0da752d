#pragma once

#include <cstdint>

#include "export/shp_palette.h"

// Writes for each of `count` pixels 0x00RRGGBB the index that NearestColor gives it among the
// palette's first n entries (1 to 256).
void MapToPalette(const uint32_t* pixels, int32_t count, const ShpPalette& palette, int32_t n,
                  uint8_t* indices);
