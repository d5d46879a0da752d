// Any file as a picture: what is loaded has the size that was told and no top bytes, and comes back
// from a PNG as it was.
#include <zlib.h>

#include <algorithm>

#include "fuzz/fuzz_target.h"
#include "imagelib/imagelib.h"
#include "imaging/dib_class.h"
#include "imaging/image_class.h"
#include "imaging/image_files.h"
#include "support/file_content.h"
#include "support/picture_difference.h"
#include "support/temp_folder.h"

namespace {

constexpr int64_t kMostPixels = 1 << 20;
constexpr size_t kPngSignature = 8;
constexpr size_t kChunkFrame = 12;  // length, type and checksum

const TempFolder& Folder() {
  static const TempFolder folder;
  static const bool started = InitImageFiles();
  Require(started, "the image library starts");
  return folder;
}

uint32_t BigEndian(const std::string& bytes, size_t at) {
  uint32_t number = 0;
  for (size_t i = 0; i < 4; ++i) number = number << 8 | static_cast<uint8_t>(bytes[at + i]);
  return number;
}

// Makes the chunks' checksums right, without which a changed PNG goes no further than its reader.
void MendPng(std::string& bytes) {
  for (size_t at = kPngSignature; bytes.size() >= at + kChunkFrame;) {
    const size_t length = BigEndian(bytes, at);
    if (length > bytes.size() - at - kChunkFrame) return;
    const auto* type = reinterpret_cast<const Bytef*>(bytes.data() + at + 4);
    const auto sum = crc32(0, type, static_cast<uInt>(length + 4));
    at += 8 + length;
    for (int shift = 24; shift >= 0; shift -= 8) bytes[at++] = static_cast<char>(sum >> shift);
  }
}

void CheckPicture(const std::string& path, const ImageSize& size) {
  ImageClass picture;
  DIBClass copy;
  const int loaded = LoadImageFile(path.c_str(), picture);
  Require(loaded == LoadImageFile(path.c_str(), copy), "both kinds of surface load alike");
  Require(loaded == picture.valid && loaded == copy.valid, "only what is loaded is valid");
  if (!loaded) return;
  Require(picture.width == size.width && picture.height == size.height, "the size is as told");
  Require(Difference(picture, copy).empty(), "both kinds of surface get the same pixels");
  for (int32_t y = 0; y < picture.height; ++y) {
    const uint32_t* const row = picture.Row(y);
    Require(*std::max_element(row, row + picture.width) <= 0xFFFFFF, "top bytes are 0");
  }
  const std::string saved = Folder().Path("saved.png");
  // Some file systems wait for the disk when a file is replaced.
  std::remove(saved.c_str());
  ImageClass again;
  Require(SaveImageFile(saved.c_str(), picture) && LoadImageFile(saved.c_str(), again) &&
              Difference(picture, again).empty(),
          "a PNG keeps the picture");
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  if (size % 4 && bytes.substr(1, 3) == "PNG") MendPng(bytes);
  const std::string path = Folder().Path("input");
  std::remove(path.c_str());
  WriteContent(path, bytes);
  ImageSize told{};
  if (!ImageGetSize(path.c_str(), &told)) {
    ImageClass picture;
    Require(!LoadImageFile(path.c_str(), picture) && !picture.valid, "no size, no picture");
    return 0;
  }
  Require(told.width > 0 && told.width <= 16384 && told.height > 0 && told.height <= 16384,
          "sides are 1 to 16384");
  if (int64_t{told.width} * told.height <= kMostPixels) CheckPicture(path, told);
  return 0;
}
