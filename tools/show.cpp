#include "tools/show.h"

#include "imaging/image_class.h"
#include "imaging/image_files.h"
#include "tools/output_texts.h"
#include "tools/sprite_file.h"

namespace {

uint32_t PixelOf(const ShpColour& colour) {
  return uint32_t{colour.red} << 16 | uint32_t{colour.green} << 8 | colour.blue;
}

// The whole picture of a sprite. What the frame leaves free has the palette's first colour.
ImageClass PictureOf(const SpriteFrame& frame, const ShpPalette& palette) {
  ImageClass picture;
  picture.Create(frame.header.imageWidth, frame.header.imageHeight);
  picture.Fill(PixelOf(palette.entries[0]));
  const uint8_t* index = frame.indices.data();
  for (int32_t y = 0; y < frame.info.frameHeight; ++y) {
    uint32_t* row = picture.Row(frame.info.frameY + y) + frame.info.frameX;
    for (int32_t x = 0; x < frame.info.frameWidth; ++x) row[x] = PixelOf(palette.entries[*index++]);
  }
  return picture;
}

}  // namespace

ExitCode Show(const Arguments& arguments, Output& output) {
  const std::string &shp = arguments.Files()[0], &pal = arguments.Files()[1],
                    &out = arguments.Files()[2];
  int32_t number = 0;
  std::string fault = arguments.Number("--frame", 0, UINT16_MAX - 1, number);
  if (fault.empty()) fault = PictureNameFault(out);
  if (fault.empty()) fault = OverwritingFault(out, {shp, pal});
  if (!fault.empty()) return output.Misuse(fault);

  SpriteFrame frame;
  fault = ReadSpriteFrame(shp, static_cast<uint32_t>(number), frame);
  if (!fault.empty()) return output.Fail(shp, fault);
  ShpPalette palette;
  std::string doubt;
  fault = ReadPalette(pal, palette, doubt);
  if (!fault.empty()) return output.Fail(pal, fault);
  if (!doubt.empty()) output.Warn(pal, doubt);

  if (!SaveImageFile(out.c_str(), PictureOf(frame, palette))) {
    return output.Fail(out, "cannot be written");
  }
  if (arguments.Has("--verbose")) {
    output.out += out + ": " + SizeText(frame.header.imageWidth, frame.header.imageHeight) +
                  ", frame " + std::to_string(number) + " of " +
                  std::to_string(frame.header.frameCount) + "\n";
  }
  return kDone;
}
