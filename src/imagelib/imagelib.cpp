#include "imagelib/imagelib.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "imagelib/codecs.h"
#include "imagelib/container.h"
#include "imagelib/file_bytes.h"
#include "imagelib/replace_file.h"

namespace {

using imagelib::Bytes;
using imagelib::Container;

struct Library {
  int users = 0;
  // ImageLoad is not told how much room its buffer has; this is what the caller allocated by.
  struct Report {
    std::string path;
    ImageSize size;
  };
  std::vector<Report> reported;
};

Library& State() {
  static Library library;
  return library;
}

// Runs one call. Exceptions end here: the caller is another module with a C++ runtime of its own.
template <typename Call>
int Guarded(Call call) {
  try {
    return call() ? 1 : 0;
  } catch (const std::exception&) {
    return 0;
  }
}

struct PictureFile {
  Bytes bytes;
  Container container;
};

std::optional<PictureFile> OpenPicture(const char* path) {
  std::optional<Bytes> bytes = imagelib::ReadPictureFile(path);
  if (!bytes) return std::nullopt;
  const std::optional<Container> container = imagelib::Inspect(*bytes);
  if (!container || !imagelib::CanDecode(container->type)) return std::nullopt;
  return PictureFile{std::move(*bytes), *container};
}

bool GetSize(const char* path, ImageSize* size) {
  std::erase_if(State().reported, [path](const auto& report) { return report.path == path; });
  const std::optional<PictureFile> picture = OpenPicture(path);
  if (!picture) return false;
  const ImageSize found{picture->container.width, picture->container.height};
  State().reported.push_back({path, found});
  *size = found;
  return true;
}

bool Load(const char* path, std::uint32_t* pixels) {
  const auto& reports = State().reported;
  const auto report = std::find_if(reports.begin(), reports.end(),
                                   [path](const auto& known) { return known.path == path; });
  if (report == reports.end()) return false;
  const ImageSize room = report->size;
  const std::optional<PictureFile> picture = OpenPicture(path);
  if (!picture || picture->container.width != room.width ||
      picture->container.height != room.height) {
    return false;
  }
  if (!imagelib::Decode(picture->bytes, picture->container, pixels)) return false;
  const std::size_t count =
      static_cast<std::size_t>(room.width) * static_cast<std::size_t>(room.height);
  for (std::size_t i = 0; i < count; ++i) pixels[i] &= 0x00FFFFFF;
  return true;
}

bool Save(const char* path, const std::uint32_t* pixels, int width, int height) {
  if (width < 1 || height < 1 || width > imagelib::kMaxSide || height > imagelib::kMaxSide) {
    return false;
  }
  Bytes file;
  return imagelib::Encode(imagelib::TypeOfName(path), pixels, width, height, &file) &&
         imagelib::ReplaceFile(path, file);
}

}  // namespace

int ImageInit() {
  if (State().users == 0 && !imagelib::StartCodecs()) return 0;
  ++State().users;
  return 1;
}

void ImageUnInit() {
  if (State().users == 0 || --State().users > 0) return;
  State().reported.clear();
  imagelib::StopCodecs();
}

const char* ImageOpenFilterStr() { return imagelib::ReadablePatterns(); }

const char* ImageGetDesc() { return imagelib::CodecDescription(); }

int ImageGetSize(const char* path, ImageSize* size) {
  if (State().users == 0 || path == nullptr || size == nullptr) return 0;
  return Guarded([=] { return GetSize(path, size); });
}

int ImageLoad(const char* path, uint32_t* pixels) {
  if (State().users == 0 || path == nullptr || pixels == nullptr) return 0;
  return Guarded([=] { return Load(path, pixels); });
}

int ImageSave(const char* path, const uint32_t* pixels, int width, int height) {
  if (State().users == 0 || path == nullptr || pixels == nullptr) return 0;
  return Guarded([=] { return Save(path, pixels, width, height); });
}
