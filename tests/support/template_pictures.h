#pragma once

#include <cstdint>
#include <string>

#include "imaging/image_class.h"

// The templates that the tests give the editor. Every pixel tells its picture and its place there.

struct PictureSize {
  int32_t width;
  int32_t height;
};

struct TemplateSizes {
  PictureSize worldMap = {900, 600};
  PictureSize zoomedMap = {700, 500};
  PictureSize frame = {295, 289};
  PictureSize targetBox = {60, 58};
  PictureSize overlay = {800, 520};
};

// Pixels of the templates by position. Maps up to 1024 and frames up to 512 pixels each way.
uint32_t WorldMapPixel(int32_t side, int32_t x, int32_t y);
uint32_t ZoomedMapPixel(int32_t x, int32_t y);
uint32_t FramePixel(int32_t x, int32_t y);
// Every fourth diagonal is transparent.
uint32_t TargetBoxPixel(int32_t x, int32_t y);
// One colour for the side and the icon count in columns 240 to 539 of rows 370 to 449, where the
// icons stand, and transparent elsewhere.
uint32_t OverlayPixel(int32_t side, int32_t iconCount, int32_t x, int32_t y);

// A picture of pixel(x, y).
template <class Pixel>
ImageClass MakePicture(int32_t width, int32_t height, Pixel pixel) {
  ImageClass picture;
  picture.Create(width, height);
  for (int32_t y = 0; y < height; ++y) {
    for (int32_t x = 0; x < width; ++x) picture.PutPixel(x, y, pixel(x, y));
  }
  return picture;
}

// A picture of one colour.
ImageClass PlainPicture(int32_t width, int32_t height, uint32_t colour);

// Writes all templates of the three sides into an existing folder.
void WriteTemplates(const std::string& folder, const TemplateSizes& sizes);
