#include <vector>

#include "document/load_screen_doc.h"
#include "export/palette_mapping.h"
#include "export/quantizer.h"
#include "ratio.h"
#include "sample_picture.h"

namespace {

ShpPalette PaletteOf(const ImageClass& picture) {
  QuantizerClass quantizer(kPaletteEntries, 8);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  ShpPalette palette;
  for (int32_t i = 0; i < kPaletteEntries; ++i) {
    palette.entries[i] = {static_cast<uint8_t>(table[i] >> 16), static_cast<uint8_t>(table[i] >> 8),
                          static_cast<uint8_t>(table[i])};
  }
  return palette;
}

void PlainScan(const ImageClass& picture, const ShpPalette& palette, std::vector<uint8_t>& out) {
  size_t at = 0;
  for (int32_t y = 0; y < picture.height; ++y) {
    for (int32_t x = 0; x < picture.width; ++x) {
      const auto pixel = static_cast<int32_t>(picture.Row(y)[x]);
      out[at++] = static_cast<uint8_t>(NearestColor(palette, pixel >> 16 & 0xFF, pixel >> 8 & 0xFF,
                                                    pixel & 0xFF, kPaletteEntries));
    }
  }
}

// Mapping all pixels against NearestColor pixel by pixel.
void MapAgainstPlainScan(benchmark::State& state) {
  ImageClass picture;
  picture.Create(kPictureWidth, kPictureHeight);
  PaintSample(picture);
  const ShpPalette palette = PaletteOf(picture);
  std::vector<uint8_t> mapped(kPictureWidth * kPictureHeight), scanned(mapped.size());
  MeasureRatio(
      state,
      [&] {
        for (int32_t y = 0; y < kPictureHeight; ++y) {
          MapToPalette(picture.Row(y), kPictureWidth, palette, kPaletteEntries,
                       mapped.data() + y * kPictureWidth);
        }
      },
      [&] { PlainScan(picture, palette, scanned); });
  if (mapped != scanned) state.SkipWithError("the indices differ from the plain scan's");
}
BENCHMARK(MapAgainstPlainScan)->UseManualTime()->Unit(benchmark::kMillisecond);

// Building the octree against one pass over the pixels that sums their channels.
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
      [&] {
        uint64_t sum = 0;
        for (int32_t y = 0; y < picture.height; ++y) {
          for (int32_t x = 0; x < picture.width; ++x) {
            const uint32_t pixel = picture.Row(y)[x];
            sum += (pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) + (pixel & 0xFF);
          }
        }
        benchmark::DoNotOptimize(sum);
      });
}
BENCHMARK(QuantizeAgainstSum)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
