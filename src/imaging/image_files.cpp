#include "imaging/image_files.h"

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "imagelib/imagelib.h"

char imageFilter[256];

namespace {

// What the filter holds besides the pattern list, which stands in it twice, leaves this much.
constexpr size_t kLongestPatterns = 109;

size_t PixelCount(int32_t width, int32_t height) {
  return static_cast<size_t>(width) * static_cast<size_t>(height);
}

}  // namespace

void BuildImageFilter(const char* patterns, char (&filter)[256]) {
  std::string list = patterns;
  if (list.size() > kLongestPatterns) {
    const size_t end = list.rfind(';', kLongestPatterns);
    list.resize(end == std::string::npos ? 0 : end);
  }
  using namespace std::string_literals;
  const std::string text = "Image files:(" + list + ")\0"s + list + "\0All files (*.*)\0*.*\0\0"s;
  std::fill(std::begin(filter), std::end(filter), '\0');
  std::copy(text.begin(), text.end(), filter);
}

bool InitImageFiles() {
  if (!ImageInit()) return false;
  BuildImageFilter(ImageOpenFilterStr(), imageFilter);
  return true;
}

int LoadImageFile(const char* path, BitmapClass& surface) {
  ImageSize size{};
  if (!ImageGetSize(path, &size) || size.width <= 0 || size.height <= 0) return 0;
  // Not zeroed before the decoder fills it: that takes as long as some decoders.
  const auto pixels =
      std::make_unique_for_overwrite<uint32_t[]>(PixelCount(size.width, size.height));
  if (!ImageLoad(path, pixels.get())) return 0;
  if (surface.CreateFromPixels(pixels.get(), size.width, size.height)) return 1;
  surface.Free();
  return 0;
}

int TryLoadImageFile(const char* path, BitmapClass& surface) {
  try {
    return LoadImageFile(path, surface);
  } catch (const std::bad_alloc&) {
    surface.Free();
    return 0;
  }
}

int SaveImageFile(const char* path, const BitmapClass& surface) {
  if (!surface.valid) return 0;
  std::vector<uint32_t> buffer;
  buffer.reserve(PixelCount(surface.width, surface.height));
  for (int32_t y = 0; y < surface.height; ++y) {
    const uint32_t* row = surface.Row(y);
    buffer.insert(buffer.end(), row, row + surface.width);
  }
  return ImageSave(path, buffer.data(), surface.width, surface.height);
}
