#include "inputs.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "imaging/image_files.h"

namespace {

// Loads a file of the template package; a benchmark of an empty picture would mean nothing.
void Load(const char* name, ImageClass& image) {
  static const bool started = InitImageFiles();
  image.Free();
  if (started && LoadImageFile((std::string(CORVANTA_TEMPLATES "/") + name).c_str(), image)) return;
  std::fprintf(stderr, "Can't load %s\n", name);
  std::exit(1);
}

template <class Pixel>
ImageClass MakePicture(Pixel pixel) {
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  uint32_t index = 0;
  for (int32_t y = 0; y < picture.height; ++y) {
    std::generate_n(picture.Row(y), picture.width, [&] { return pixel(index++); });
  }
  return picture;
}

}  // namespace

void LoadStartUp() {
  Load("Templates/all_worldmap.png", doc.worldMap);
  Load("Templates/all_2icomain.png", doc.sideOverlay);
  Load("Templates/com_largetargetbox.png", doc.largeTargetBox);
  Load("Templates/com_smalltargetbox.png", doc.smallTargetBox);
  Load("Templates/com_worldmap2x.png", doc.worldMap2x);
  doc.iconCount = 2;
  for (ImageClass& icon : doc.icons) icon.Free();
  doc.screenshot.Free();
  doc.items.elements.clear();
}

void AddIconsAndScreenshot() {
  Load("Templates/cam_lighttank.png", doc.icons[0]);
  Load("Templates/cam_gunship.png", doc.icons[1]);
  ImageClass battlefield;
  Load("samples/battlefield1.png", battlefield);
  doc.screenshot.Free();
  doc.screenshot.Create(234, 232);
  doc.screenshot.CopyRegion(battlefield, 0, 0, 520, 360, 234, 232);
}

void AddItems(int count) {
  ItemClass item;
  Load("Templates/sym_explosion.png", item.image);
  for (int i = 0; i < count; ++i) {
    item.x = 37 * i;
    item.y = 97 * i % 440;
    item.selected = i == 0;
    doc.items.Add(item);
  }
}

ImageClass MapPicture() {
  LoadStartUp();
  AddIconsAndScreenshot();
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&picture);
  return picture;
}

ImageClass NoisePicture() {
  // Each step can be undone within 24 bits, so that no two pixels share a colour.
  return MakePicture([](uint32_t index) {
    constexpr uint32_t kColours = 0xFFFFFF;
    uint32_t colour = index * 0x9E3779B1 & kColours;
    colour = (colour ^ colour >> 13) * 0x85EBCA6B & kColours;
    return colour ^ colour >> 11;
  });
}

ImageClass FlatPicture() {
  return MakePicture([](uint32_t) { return 0x2A4F6EU; });
}
