#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "imagelib/imagelib.h"
#include "support/temp_folder.h"

// Pictures and their files, as the tests of the image library use them.

using FileBytes = std::vector<std::uint8_t>;

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  bool operator==(const Picture&) const = default;
};

inline void PrintTo(const Picture& picture, std::ostream* out) {
  *out << picture.width << "x" << picture.height << std::hex;
  for (const std::uint32_t pixel : picture.pixels) *out << " " << pixel;
  *out << std::dec;
}

// Soft gradients in three channels, no two neighbours alike; for sides of up to 100.
inline Picture Gradient(int width, int height) {
  Picture picture{width, height, {}};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int red = 40 + 2 * x;
      const int green = 200 - y;
      const int blue = 90 + x + y;
      picture.pixels.push_back(static_cast<std::uint32_t>(red << 16 | green << 8 | blue));
    }
  }
  return picture;
}

inline FileBytes ReadFileBytes(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  return FileBytes(std::istreambuf_iterator<char>(stream), {});
}

inline void WriteFileBytes(const std::string& path, const FileBytes& bytes) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  stream.close();
  ASSERT_FALSE(stream.fail()) << path;
}

inline int SavePicture(const std::string& path, const Picture& picture) {
  return ImageSave(path.c_str(), picture.pixels.data(), picture.width, picture.height);
}

// Size and pixels, as the editor asks for them; nothing if either call fails. A word after the
// buffer watches for overruns.
inline std::optional<Picture> LoadPicture(const std::string& path) {
  constexpr std::uint32_t kWatch = 0xA5C3F00D;
  ImageSize size{};
  if (ImageGetSize(path.c_str(), &size) == 0) return std::nullopt;
  Picture picture{size.width, size.height, {}};
  const auto count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
  picture.pixels.assign(count + 1, kWatch);
  const int loaded = ImageLoad(path.c_str(), picture.pixels.data());
  EXPECT_EQ(picture.pixels.back(), kWatch);
  picture.pixels.pop_back();
  if (loaded == 0) return std::nullopt;
  return picture;
}

// Whether the library lists a file type ("tif") as readable here.
inline bool Readable(const std::string& extension) {
  const std::string list = std::string(ImageOpenFilterStr()) + ";";
  return list.find("*." + extension + ";") != std::string::npos;
}

class ImageLibTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(ImageInit(), 0); }
  void TearDown() override { ImageUnInit(); }

  TempFolder folder_;
};
