#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "imagelib/imagelib.h"
#include "support/file_content.h"
#include "support/temp_folder.h"

// Pictures and their files, as the tests of the image library use them.

// Files that make_pictures.py has made.
constexpr char kPictures[] = CORVANTA_SOURCE "/tests/imagelib/pictures/";

// Rows of pixels; none for no picture.
using Picture = std::vector<std::vector<std::uint32_t>>;

// Soft gradients in three channels, no two neighbours alike; for sides of up to 100.
inline Picture Gradient(int width, int height) {
  Picture picture(static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int pixel = (40 + 2 * x) << 16 | (200 - y) << 8 | (90 + x + y);
      picture[static_cast<std::size_t>(y)].push_back(static_cast<std::uint32_t>(pixel));
    }
  }
  return picture;
}

// Largest difference of any channel of any pixel of two pictures of one size.
inline int Distance(const Picture& a, const Picture& b) {
  int worst = 0;
  for (std::size_t y = 0; y < a.size(); ++y) {
    for (std::size_t i = 0; i < 4 * a[y].size(); ++i) {
      const auto channel = [&](const Picture& of) {
        return of.at(y).at(i / 4) >> i % 4 * 8 & 0xFF;
      };
      worst = std::max(worst, std::abs(static_cast<int>(channel(a) - channel(b))));
    }
  }
  return worst;
}

inline int SavePicture(const std::string& path, const Picture& picture) {
  std::vector<std::uint32_t> pixels;
  for (const auto& row : picture) pixels.insert(pixels.end(), row.begin(), row.end());
  return ImageSave(path.c_str(), pixels.data(), static_cast<int>(picture.front().size()),
                   static_cast<int>(picture.size()));
}

// Size and pixels, as the editor asks for them; nothing if either call fails. A word after the
// buffer watches for overruns.
inline Picture LoadPicture(const std::string& path) {
  constexpr std::uint32_t kWatch = 0xA5C3F00D;
  ImageSize size{};
  if (ImageGetSize(path.c_str(), &size) == 0) return {};
  const auto width = static_cast<std::size_t>(size.width);
  const auto height = static_cast<std::size_t>(size.height);
  std::vector<std::uint32_t> pixels(width * height + 1, kWatch);
  const int loaded = ImageLoad(path.c_str(), pixels.data());
  EXPECT_EQ(kWatch, pixels.back());
  Picture picture;
  for (auto row = pixels.data(); loaded && picture.size() < height; row += width) {
    picture.emplace_back(row, row + width);
  }
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
  std::string path_ = folder_.Path("picture.png");
};
