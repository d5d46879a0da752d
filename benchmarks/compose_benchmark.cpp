#include "document/composition.h"

#include <cstring>
#include <vector>

#include "document/load_screen_doc.h"
#include "inputs.h"
#include "ratio.h"

namespace {

// Composes into a surface of a kind, against one copy of the picture's bytes.
void MeasureCompose(benchmark::State& state, BitmapClass& target) {
  std::vector<uint32_t> from(size_t{kPictureWidth} * kPictureHeight, 1), to(from);
  const Ratio ratio(
      state, [&] { ComposeLoadScreen(&target); },
      [&] {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(uint32_t));
        benchmark::DoNotOptimize(to.data());
      });
  state.counters["copies"] = ratio.Longer();
}

template <class Prepare>
void ComposeAgainstCopy(benchmark::State& state, Prepare prepare, bool dib) {
  prepare();
  if (dib) {
    DIBClass target(kPictureWidth, kPictureHeight);
    MeasureCompose(state, target);
  } else {
    ImageClass target;
    target.Create(kPictureWidth, kPictureHeight);
    MeasureCompose(state, target);
  }
}

void FullScreen() {
  LoadStartUp();
  AddIconsAndScreenshot();
  AddItems(20);
}

// Half of the overlay's pixels, as they come, let the map show through.
void NoiseOverlay() {
  LoadStartUp();
  doc.sideOverlay = NoisePicture();
  for (int32_t y = 0; y < doc.sideOverlay.height; ++y) {
    uint32_t* row = doc.sideOverlay.Row(y);
    for (int32_t x = 0; x < doc.sideOverlay.width; ++x) {
      if (row[x] & 1) row[x] = kKeyColour;
    }
  }
}

#define CORVANTA_COMPOSE(name, prepare)                               \
  BENCHMARK_CAPTURE(ComposeAgainstCopy, name##_dib, prepare, true)    \
      ->UseManualTime()                                               \
      ->Unit(benchmark::kMicrosecond);                                \
  BENCHMARK_CAPTURE(ComposeAgainstCopy, name##_image, prepare, false) \
      ->UseManualTime()                                               \
      ->Unit(benchmark::kMicrosecond)
CORVANTA_COMPOSE(start, LoadStartUp);
CORVANTA_COMPOSE(full, FullScreen);
CORVANTA_COMPOSE(noise, NoiseOverlay);

}  // namespace
