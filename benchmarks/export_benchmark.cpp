#include <vector>

#include "document/load_screen_doc.h"
#include "export/quantizer.h"
#include "export/shp_palette.h"
#include "inputs.h"
#include "plain_octree.h"
#include "ratio.h"

namespace {

constexpr uint32_t kTreeDepth = 8;

// Gives a picture's pixels the nearest of 256 palette entries, against looking at each entry for
// each pixel.
void MapAgainstScan(benchmark::State& state, ImageClass (*make)()) {
  const ImageClass picture = make();
  QuantizerClass quantizer(kPaletteEntries, kTreeDepth);
  quantizer.AddSurface(picture);
  uint32_t table[kPaletteEntries] = {};
  quantizer.FillPalette(table);
  const ShpPalette palette = PaletteOf(table);
  std::vector<uint8_t> indices(kPictureWidth);
  const Ratio ratio(
      state,
      [&] {
        PaletteMapper mapper(palette, kPaletteEntries);
        for (int32_t y = 0; y < picture.height; ++y) {
          mapper.Map(picture.Row(y), picture.width, indices.data());
        }
      },
      [&] {
        for (int32_t y = 0; y < picture.height; ++y) {
          const uint32_t* row = picture.Row(y);
          for (int32_t x = 0; x < picture.width; ++x) {
            const auto channel = [&](int shift) {
              return static_cast<int32_t>(row[x] >> shift & 0xFF);
            };
            benchmark::DoNotOptimize(
                NearestColor(palette, channel(16), channel(8), channel(0), kPaletteEntries));
          }
        }
      });
  state.counters["faster"] = ratio.Faster();
}

template <class Octree>
void MakePalette(const ImageClass& picture) {
  Octree octree(kPaletteEntries, kTreeDepth);
  octree.AddSurface(picture);
  uint32_t table[kPaletteEntries];
  octree.FillPalette(table);
  benchmark::DoNotOptimize(table);
}

// Makes a picture's palette of 256 colours, against the octree as it is written down.
void OctreeAgainstPlain(benchmark::State& state, ImageClass (*make)()) {
  const ImageClass picture = make();
  const Ratio ratio(
      state, [&] { MakePalette<QuantizerClass>(picture); },
      [&] { MakePalette<PlainOctree>(picture); });
  state.counters["faster"] = ratio.Faster();
}

#define CORVANTA_PICTURES(subject)                \
  BENCHMARK_CAPTURE(subject, map, MapPicture)     \
      ->UseManualTime()                           \
      ->Iterations(20)                            \
      ->Unit(benchmark::kMillisecond);            \
  BENCHMARK_CAPTURE(subject, noise, NoisePicture) \
      ->UseManualTime()                           \
      ->Iterations(20)                            \
      ->Unit(benchmark::kMillisecond);            \
  BENCHMARK_CAPTURE(subject, flat, FlatPicture)   \
      ->UseManualTime()                           \
      ->Iterations(20)                            \
      ->Unit(benchmark::kMillisecond)
CORVANTA_PICTURES(MapAgainstScan);
CORVANTA_PICTURES(OctreeAgainstPlain);

}  // namespace
