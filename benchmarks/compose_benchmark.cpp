#include "document/composition.h"

#include <algorithm>

#include "document/load_screen_doc.h"
#include "ratio.h"
#include "sample_picture.h"

namespace {

void MakeSample(ImageClass& image, int32_t width, int32_t height) {
  image.Free();
  image.Create(width, height);
  PaintSample(image);
}

// One repaint's composition against one plain copy of the picture's pixels.
void ComposeAgainstCopy(benchmark::State& state) {
  MakeSample(doc.worldMap, 1600, 1040);
  MakeSample(doc.worldMap2x, 3200, 2080);
  MakeSample(doc.largeTargetBox, 295, 289);
  MakeSample(doc.smallTargetBox, 60, 58);
  MakeSample(doc.sideOverlay, kPictureWidth, kPictureHeight);
  for (int32_t y = 0; y < kPictureHeight; y += 2) {
    std::fill_n(doc.sideOverlay.Row(y), kPictureWidth, kKeyColour);
  }
  doc.worldMapX = 1000;
  ImageClass canvas, plain;
  MakeSample(canvas, kPictureWidth, kPictureHeight);
  MakeSample(plain, kPictureWidth, kPictureHeight);
  MeasureRatio(
      state, [&] { ComposeLoadScreen(&canvas); }, [&] { plain.Draw(canvas, 0, 0); });
}
BENCHMARK(ComposeAgainstCopy)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
