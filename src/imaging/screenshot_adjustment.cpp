#include "imaging/screenshot_adjustment.h"

#include "imaging/pixel_colour.h"

namespace {

constexpr int32_t kNeutralLightness = 255;

}  // namespace

uint32_t AdjustColour(uint32_t colour, const ScreenshotAdjustment& adjustment) {
  colour = adjustment.greyscale ? Greyscale(colour)
                                : ScaleChannels(colour, static_cast<uint32_t>(adjustment.red),
                                                static_cast<uint32_t>(adjustment.green),
                                                static_cast<uint32_t>(adjustment.blue));
  const int32_t excess = adjustment.lightness - kNeutralLightness;
  return excess > 0 ? Lighten(colour, static_cast<uint32_t>(excess))
                    : Darken(colour, static_cast<uint32_t>(-excess));
}

void AdjustColours(ImageClass& picture, const ScreenshotAdjustment& adjustment) {
  for (int32_t y = 0; y < picture.height; ++y) {
    for (int32_t x = 0; x < picture.width; ++x) {
      uint32_t* const pixel = picture.PixelAddress(x, y);
      *pixel = AdjustColour(*pixel, adjustment);
    }
  }
}
