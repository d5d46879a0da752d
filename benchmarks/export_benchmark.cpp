#include <vector>

#include "document/load_screen_doc.h"
#include "export/quantizer.h"
#include "export/shp_palette.h"
#include "ratio.h"
#include "sample_picture.h"

namespace {

// One pass over the pixels that sums their channels.
void SumChannels(const ImageClass& picture) {
  uint64_t sum = 0;
  for (int32_t y = 0; y < picture.height; ++y) {
    for (int32_t x = 0; x < picture.width; ++x) {
      const uint32_t pixel = picture.Row(y)[x];
      sum += (pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) + (pixel & 0xFF);
    }
  }
  benchmark::DoNotOptimize(sum);
}

// Giving all pixels the nearest of 256 palette entries, which looks at each entry for each pixel.
void MapAgainstSum(benchmark::State& state) {
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  PaintSample(picture);
  QuantizerClass quantizer(kPaletteEntries, 8);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  const ShpPalette palette = PaletteOf(table);
  std::vector<uint8_t> row(kPictureWidth);
  MeasureRatio(
      state,
      [&] {
        for (int32_t y = 0; y < kPictureHeight; ++y) {
          MapToPalette(picture.Row(y), kPictureWidth, palette, kPaletteEntries, row.data());
          benchmark::DoNotOptimize(row.data());
        }
      },
      [&] { SumChannels(picture); });
}
BENCHMARK(MapAgainstSum)->UseManualTime()->Unit(benchmark::kMillisecond);

// Building the octree.
void QuantizeAgainstSum(benchmark::State& state) {
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  PaintSample(picture);
  MeasureRatio(
      state,
      [&] {
        QuantizerClass quantizer(kPaletteEntries, 8);
        quantizer.AddSurface(picture);
      },
      [&] { SumChannels(picture); });
}
BENCHMARK(QuantizeAgainstSum)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
