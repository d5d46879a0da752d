#pragma once

#include <cstdint>

#include "imaging/image_class.h"

// A colour adjustment of the screenshot.
struct ScreenshotAdjustment {
  int32_t red = 255;  // factors of the channels, 0 to 255, in 256ths
  int32_t green = 255;
  int32_t blue = 255;
  int32_t lightness = 255;  // 0 to 511: below 255 darkens by what is missing, above lightens
  bool greyscale = false;   // instead of the factors
};

// One pixel with the adjustment applied, its top byte 0.
uint32_t AdjustColour(uint32_t colour, const ScreenshotAdjustment& adjustment);

// Applies the adjustment to every pixel.
void AdjustColours(ImageClass& picture, const ScreenshotAdjustment& adjustment);
