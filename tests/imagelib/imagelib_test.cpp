#include "imagelib/imagelib.h"

#include <cstdlib>
#include <filesystem>

#include "imagelib/picture_files.h"

namespace {

namespace fs = std::filesystem;

using ImageLibRoundTrip = ImageLibTest;
using ImageLibFiles = ImageLibTest;

struct Size {
  int width;
  int height;
};

constexpr Size kSizes[] = {{1, 1}, {2, 3}, {3, 2}, {5, 7}, {76, 60}, {1, 33}, {33, 1}};

// Largest difference of any channel of any pixel.
int Distance(const Picture& a, const Picture& b) {
  int worst = 0;
  for (std::size_t i = 0; i < a.pixels.size(); ++i) {
    for (int shift = 0; shift < 32; shift += 8) {
      const int left = static_cast<int>(a.pixels[i] >> shift & 0xFF);
      const int right = static_cast<int>(b.pixels[i] >> shift & 0xFF);
      worst = std::max(worst, std::abs(left - right));
    }
  }
  return worst;
}

TEST_F(ImageLibRoundTrip, LosslessTypesGiveTheSamePixels) {
  for (const char* type : {"png", "bmp", "tif", "tiff"}) {
    if (!Readable(type)) continue;
    for (const Size size : kSizes) {
      SCOPED_TRACE(testing::Message() << type << " " << size.width << "x" << size.height);
      const Picture picture = Gradient(size.width, size.height);
      const std::string path = folder_.Path(std::string("picture.") + type);
      ASSERT_NE(SavePicture(path, picture), 0);
      EXPECT_EQ(LoadPicture(path), picture);
    }
  }
}

TEST_F(ImageLibRoundTrip, JpegComesBackNearly) {
  for (const char* name : {"picture.jpg", "picture.jpeg"}) {
    for (const Size size : kSizes) {
      SCOPED_TRACE(testing::Message() << name << " " << size.width << "x" << size.height);
      const Picture picture = Gradient(size.width, size.height);
      ASSERT_NE(SavePicture(folder_.Path(name), picture), 0);
      const std::optional<Picture> loaded = LoadPicture(folder_.Path(name));
      ASSERT_TRUE(loaded);
      ASSERT_EQ(loaded->pixels.size(), picture.pixels.size());
      EXPECT_LE(Distance(*loaded, picture), 12);
    }
  }
}

TEST_F(ImageLibRoundTrip, TopBytesAreDropped) {
  const Picture picture{3, 1, {0xFF0000FF, 0x80ABCDEF, 0x01000000}};
  for (const char* name : {"picture.png", "picture.bmp"}) {
    SCOPED_TRACE(name);
    ASSERT_NE(SavePicture(folder_.Path(name), picture), 0);
    EXPECT_EQ(LoadPicture(folder_.Path(name)), (Picture{3, 1, {0x0000FF, 0xABCDEF, 0}}));
  }
}

TEST_F(ImageLibFiles, TypeFollowsTheExtension) {
  struct Row {
    const char* name;
    std::string magic;
  };
  const std::vector<Row> rows = {
      {"a.png", "\x89PNG"},   {"a.PNG", "\x89PNG"},
      {"a.b.Png", "\x89PNG"}, {"a.jpg", "\xFF\xD8"},
      {"a.JPEG", "\xFF\xD8"}, {"a.bmp", "BM"},
      {"a.xyz", "BM"},        {"a", "BM"},
      {"a.png.", "BM"},       {"a.gif", "BM"},
      {"png", "BM"},          {"a.tif", Readable("tif") ? "II*" : "BM"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string path = folder_.Path(row.name);
    ASSERT_NE(SavePicture(path, Gradient(4, 4)), 0);
    const FileBytes bytes = ReadFileBytes(path);
    ASSERT_GT(bytes.size(), row.magic.size());
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + std::ssize(row.magic)), row.magic);
    fs::remove(path);
  }
}

TEST_F(ImageLibFiles, ContentDecidesNotTheName) {
  const Picture picture = Gradient(4, 3);
  ASSERT_NE(SavePicture(folder_.Path("picture.png"), picture), 0);
  fs::rename(folder_.Path("picture.png"), folder_.Path("picture.jpg"));
  EXPECT_EQ(LoadPicture(folder_.Path("picture.jpg")), picture);
}

TEST_F(ImageLibFiles, NamesBeyondAsciiAreOneFileForSavingAndLoading) {
  const std::string path = folder_.Path("gr\xC3\xBC\xC3\xA4.png");
  ASSERT_NE(SavePicture(path, Gradient(4, 3)), 0);
  EXPECT_EQ(LoadPicture(path), Gradient(4, 3));
}

TEST_F(ImageLibFiles, WhatIsNoPictureFileCannotBeRead) {
  fs::create_directory(folder_.Path("folder.png"));
  WriteFileBytes(folder_.Path("empty.png"), {});
  WriteFileBytes(folder_.Path("text.png"), FileBytes(400, 'x'));
  for (const std::string& path :
       {folder_.Path("missing.png"), folder_.Path("folder.png"), folder_.Path("empty.png"),
        folder_.Path("text.png"), folder_.Path("none/x.png"), std::string()}) {
    ImageSize size{-7, -7};
    EXPECT_EQ(ImageGetSize(path.c_str(), &size), 0) << path;
    EXPECT_EQ(size.width, -7) << path;
    std::uint32_t pixel = 1;
    EXPECT_EQ(ImageLoad(path.c_str(), &pixel), 0) << path;
    EXPECT_EQ(pixel, 1u) << path;
  }
}

TEST_F(ImageLibFiles, LoadingNeedsTheSizeFirst) {
  const std::string path = folder_.Path("picture.png");
  ASSERT_NE(SavePicture(path, Gradient(2, 2)), 0);
  std::vector<std::uint32_t> pixels(4, 0x5A);
  EXPECT_EQ(ImageLoad(path.c_str(), pixels.data()), 0);
  EXPECT_EQ(pixels, std::vector<std::uint32_t>(4, 0x5A));
}

TEST_F(ImageLibFiles, EachPathHasItsOwnSize) {
  const std::string first = folder_.Path("first.png");
  const std::string second = folder_.Path("second.png");
  ASSERT_NE(SavePicture(first, Gradient(2, 2)), 0);
  ASSERT_NE(SavePicture(second, Gradient(9, 9)), 0);
  ImageSize size{};
  ASSERT_NE(ImageGetSize(first.c_str(), &size), 0);
  ASSERT_NE(ImageGetSize(second.c_str(), &size), 0);
  std::vector<std::uint32_t> pixels(4);
  EXPECT_NE(ImageLoad(first.c_str(), pixels.data()), 0);
  EXPECT_EQ(pixels, Gradient(2, 2).pixels);
}

TEST_F(ImageLibFiles, PictureThatChangedItsSizeIsNotLoaded) {
  const std::string path = folder_.Path("picture.png");
  for (const Size now : {Size{9, 9}, Size{1, 1}, Size{3, 2}}) {
    ASSERT_NE(SavePicture(path, Gradient(2, 3)), 0);
    ImageSize size{};
    ASSERT_NE(ImageGetSize(path.c_str(), &size), 0);
    ASSERT_NE(SavePicture(path, Gradient(now.width, now.height)), 0);
    std::vector<std::uint32_t> pixels(6, 0x5A);
    EXPECT_EQ(ImageLoad(path.c_str(), pixels.data()), 0);
    EXPECT_EQ(pixels, std::vector<std::uint32_t>(6, 0x5A));
  }
}

TEST_F(ImageLibFiles, FailedSizeForgetsTheEarlierOne) {
  const std::string path = folder_.Path("picture.png");
  ASSERT_NE(SavePicture(path, Gradient(2, 2)), 0);
  const FileBytes bytes = ReadFileBytes(path);
  ImageSize size{};
  ASSERT_NE(ImageGetSize(path.c_str(), &size), 0);
  fs::remove(path);
  ASSERT_EQ(ImageGetSize(path.c_str(), &size), 0);
  WriteFileBytes(path, bytes);
  std::vector<std::uint32_t> pixels(4);
  EXPECT_EQ(ImageLoad(path.c_str(), pixels.data()), 0);
}

TEST_F(ImageLibFiles, SavingWhereNoFileCanBeFails) {
  fs::create_directory(folder_.Path("folder.png"));
  for (const std::string& path :
       {folder_.Path("none/x.png"), folder_.Path("folder.png"), folder_.Path(), std::string()}) {
    EXPECT_EQ(SavePicture(path, Gradient(2, 2)), 0) << path;
  }
  EXPECT_TRUE(fs::is_directory(folder_.Path("folder.png")));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 1) << "something left over";
}

TEST_F(ImageLibFiles, FailedSaveKeepsTheOldFile) {
  const std::string path = folder_.Path("picture.png");
  const Picture old = Gradient(3, 3);
  ASSERT_NE(SavePicture(path, old), 0);
  for (const Size bad : {Size{0, 3}, Size{3, 0}, Size{-1, 3}, Size{16385, 1}, Size{1, 16385}}) {
    EXPECT_EQ(ImageSave(path.c_str(), Gradient(100, 100).pixels.data(), bad.width, bad.height), 0);
    EXPECT_EQ(LoadPicture(path), old);
  }
  fs::permissions(path, fs::perms::owner_read);
  EXPECT_EQ(SavePicture(path, Gradient(5, 5)), 0);
  EXPECT_EQ(LoadPicture(path), old);
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 1) << "something left over";
}

TEST_F(ImageLibFiles, NullPointersAreRefused) {
  const std::string path = folder_.Path("picture.png");
  ASSERT_NE(SavePicture(path, Gradient(1, 1)), 0);
  ImageSize size{};
  std::uint32_t pixel = 0;
  EXPECT_EQ(ImageGetSize(nullptr, &size), 0);
  EXPECT_EQ(ImageGetSize(path.c_str(), nullptr), 0);
  EXPECT_EQ(ImageLoad(nullptr, &pixel), 0);
  EXPECT_EQ(ImageLoad(path.c_str(), nullptr), 0);
  EXPECT_EQ(ImageSave(nullptr, &pixel, 1, 1), 0);
  EXPECT_EQ(ImageSave(path.c_str(), nullptr, 1, 1), 0);
}

// The library counts its users and other tests may be among them: the last one is found by trying.
TEST_F(ImageLibFiles, WorksUntilTheLastUserLeaves) {
  const std::string path = folder_.Path("picture.png");
  ASSERT_NE(SavePicture(path, Gradient(1, 1)), 0);
  ASSERT_NE(ImageInit(), 0);
  ImageUnInit();
  ASSERT_TRUE(LoadPicture(path));
  ImageSize size{};
  int users = 0;
  while (users < 1000 && ImageGetSize(path.c_str(), &size) != 0) {
    ImageUnInit();
    ++users;
  }
  std::uint32_t pixel = 0;
  EXPECT_LT(users, 1000);
  EXPECT_EQ(ImageSave(path.c_str(), &pixel, 1, 1), 0);
  ImageUnInit();
  for (int i = 0; i < users; ++i) ASSERT_NE(ImageInit(), 0);
  EXPECT_EQ(ImageLoad(path.c_str(), &pixel), 0) << "the size outlived the library's users";
  EXPECT_TRUE(LoadPicture(path));
}

TEST(ImageLib, PatternListFitsTheFilterBuffer) {
  const std::string list = ImageOpenFilterStr();
  EXPECT_LE(list.size(), 109u);
  for (const char* type : {"png", "bmp", "jpg", "jpeg"}) EXPECT_TRUE(Readable(type)) << type;
  EXPECT_EQ(list.find(' '), std::string::npos);
  EXPECT_STRNE(ImageGetDesc(), "");
}

}  // namespace
