#include "imagelib/imagelib.h"

#include <filesystem>
#include <thread>

#include "imagelib/picture_files.h"
#include "platform/win32.h"
#ifdef _WIN32
#include <objbase.h>
#endif

namespace {

namespace fs = std::filesystem;

struct Size {
  int width, height;
};

TEST_F(ImageLibTest, PicturesComeBackWithoutTopBytes) {
  const struct {
    const char* type;
    int distance;
  } rows[] = {{"png", 0}, {"bmp", 0}, {"tif", 0}, {"tiff", 0}, {"jpg", 12}, {"jpeg", 12}};
  for (const auto& row : rows) {
    if (!Readable(row.type)) continue;
    path_ = folder_.Path(std::string("picture.") + row.type);
    for (const Size size : {Size{1, 1}, Size{2, 3}, Size{5, 7}, Size{76, 60}, Size{33, 1}}) {
      const Picture picture = Gradient(size.width, size.height);
      Picture saved = picture;
      saved.back().back() |= 0x81000000;
      EXPECT_NE(0, SavePicture(path_, saved));
      EXPECT_LE(Distance(picture, LoadPicture(path_)), row.distance) << path_ << size.width;
    }
  }
#ifndef _WIN32  // Wine does not do what Windows is asked for
  Picture fine(200, std::vector<std::uint32_t>(200, 0xC02020));
  for (std::size_t i = 0; i < 20000; ++i) fine[i / 100][i % 100 * 2 + i / 100 % 2] = 0x2020C0;
  EXPECT_NE(0, SavePicture(path_, fine));
  EXPECT_LE(Distance(fine, LoadPicture(path_)), 12) << "a JPEG keeps the colour of each pixel";
#endif
  Picture large(132, std::vector<std::uint32_t>(16000));  // more than is decoded at once
  for (std::size_t y = 0; y < large.size(); ++y) large[y][y] = 0xFFFFFF;
  path_ = folder_.Path("large.bmp");
  EXPECT_NE(0, SavePicture(path_, large));
  EXPECT_TRUE(large == LoadPicture(path_));
}

TEST_F(ImageLibTest, ExtensionDecidesTheTypeThatIsWritten) {
  const struct {
    const char* magic;
    std::vector<const char*> names;
  } rows[] = {{"\x89PNG", {"a.png", "a.b.Png"}},
              {"\xFF\xD8", {"a.jpg", "a.JPEG"}},
              {"II*", {"a.tif", "a.TIFF"}},
              {"BM", {"a.bmp", "a.xyz", "a.png.", "a", "png"}}};
  for (const auto& row : rows) {
    for (const std::string name : row.names) {
      if (*row.magic == 'I' && !Readable("tif")) continue;
      EXPECT_NE(0, SavePicture(folder_.Path(name), Gradient(4, 4))) << name;
      EXPECT_EQ(0U, ReadContent(folder_.Path(name)).find(row.magic)) << name;
    }
  }
}

TEST_F(ImageLibTest, ContentDecidesTheTypeThatIsRead) {
  ASSERT_NE(0, SavePicture(path_, Gradient(4, 3)));
  WriteContent(folder_.Path("picture.jpg"), ReadContent(path_));
  EXPECT_EQ(Gradient(4, 3), LoadPicture(folder_.Path("picture.jpg")));
  path_ = folder_.Path("beyond ASCII gr\xC3\xBC\xC3\xA4.png");
  ASSERT_NE(0, SavePicture(path_, Gradient(4, 3)));
  EXPECT_EQ(Gradient(4, 3), LoadPicture(path_));
}

TEST_F(ImageLibTest, WhatIsNoPictureFileHasNoSize) {
  fs::create_directory(folder_.Path("folder.png"));
  WriteContent(folder_.Path("empty.png"), "");
  WriteContent(folder_.Path("text.png"), std::string(400, 'x'));
  for (const char* name :
       {"missing.png", "folder.png", "empty.png", "text.png", "none/x.png", ""}) {
    ImageSize size{-7, -7};
    EXPECT_EQ(0, ImageGetSize(folder_.Path(name).c_str(), &size)) << name;
    EXPECT_EQ(-7, size.width) << name;
  }
  EXPECT_EQ(0, ImageGetSize(nullptr, nullptr));
  EXPECT_EQ(0, ImageLoad(nullptr, nullptr));
  EXPECT_EQ(0, ImageSave(nullptr, nullptr, 1, 1));
}

TEST_F(ImageLibTest, LoadsOnlyAPictureOfTheSizeThatWasReported) {
  std::vector<std::uint32_t> pixels(81, 0x5A);
  const std::vector<std::uint32_t> untouched = pixels;
  const std::string other = folder_.Path("other.png");
  ImageSize size{};
  ASSERT_NE(0, SavePicture(path_, Gradient(2, 3)));
  ASSERT_NE(0, SavePicture(other, Gradient(9, 9)));
  EXPECT_EQ(0, ImageLoad(path_.c_str(), pixels.data())) << "before its size was asked for";
  ASSERT_NE(0, ImageGetSize(path_.c_str(), &size));
  for (const Size now : {Size{9, 9}, Size{3, 3}, Size{1, 3}, Size{2, 4}, Size{2, 2}}) {
    ASSERT_NE(0, SavePicture(path_, Gradient(now.width, now.height)));
    EXPECT_EQ(0, ImageLoad(path_.c_str(), pixels.data())) << now.width << "x" << now.height;
  }
  ASSERT_NE(0, SavePicture(path_, Gradient(2, 3)));
  ASSERT_NE(0, ImageGetSize(other.c_str(), &size));
  EXPECT_EQ(untouched, pixels);
  EXPECT_NE(0, ImageLoad(path_.c_str(), pixels.data())) << "each path has its own size";
  WriteContent(path_, "damaged");
  ASSERT_EQ(0, ImageGetSize(path_.c_str(), &size));
  ASSERT_NE(0, SavePicture(path_, Gradient(2, 3)));
  EXPECT_EQ(0, ImageLoad(path_.c_str(), pixels.data())) << "after its size could not be told";
}

TEST_F(ImageLibTest, SavingKeepsWhatIsThere) {
  WriteContent(folder_.Path("~img00.tmp"), "the user's");
  ASSERT_NE(0, SavePicture(path_, Gradient(3, 3)));
  EXPECT_EQ("the user's", ReadContent(folder_.Path("~img00.tmp")));
  fs::create_directory(folder_.Path("folder.png"));
  for (const char* name : {"none/x.png", "folder.png", "", "picture.gif"}) {
    EXPECT_EQ(0, SavePicture(folder_.Path(name), Gradient(2, 2))) << name;
  }
  const std::vector<std::uint32_t> pixels(16385);
  for (const Size bad : {Size{0, 3}, Size{3, 0}, Size{-1, 3}, Size{16385, 1}, Size{1, 16385}}) {
    EXPECT_EQ(0, ImageSave(path_.c_str(), pixels.data(), bad.width, bad.height));
  }
  fs::permissions(path_, fs::perms::owner_read);
  EXPECT_EQ(0, SavePicture(path_, Gradient(5, 5)));
  fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(Gradient(3, 3), LoadPicture(path_));
  EXPECT_EQ(3, std::distance(fs::directory_iterator(folder_.Path()), {})) << "something left over";
}

// The library counts its users and other tests may be among them: the last one is found by trying.
TEST_F(ImageLibTest, WorksUntilTheLastUserLeaves) {
  ASSERT_NE(0, SavePicture(path_, Gradient(1, 1)));
  ASSERT_NE(0, ImageInit());
  ImageUnInit();
  ImageSize size{};
  int users = 0;
  for (; users < 1000 && ImageGetSize(path_.c_str(), &size) != 0; ++users) ImageUnInit();
  EXPECT_GE(users, 1);
  EXPECT_LT(users, 1000);
  std::uint32_t pixel = 0;
  EXPECT_EQ(0, ImageSave(path_.c_str(), &pixel, 1, 1));
  ImageUnInit();
#ifdef _WIN32
  std::thread([] {
    ASSERT_NE(0, ImageInit());
    ImageUnInit();
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED)) << "its apartment is left";
    EXPECT_NE(0, ImageInit()) << "in one of the other kind";
    ImageUnInit();
    CoUninitialize();
  }).join();
#endif
  for (int i = 0; i < users; ++i) ASSERT_NE(0, ImageInit());
  EXPECT_EQ(0, ImageLoad(path_.c_str(), &pixel)) << "the size outlived the library's users";
  EXPECT_EQ(Gradient(1, 1), LoadPicture(path_));
}

}  // namespace
