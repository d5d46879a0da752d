#include "imaging/image_files.h"

#include <gtest/gtest.h>

#include "imagelib/imagelib.h"
#include "imaging/dib_class.h"
#include "imaging/image_class.h"
#include "support/file_content.h"
#include "support/picture_difference.h"
#include "support/surface_text.h"
#include "support/temp_folder.h"
#include "support/template_pictures.h"

namespace {

using namespace std::string_literals;

// The whole buffer, so that what follows the double NUL is compared too.
std::string FilterOf(const std::string& patterns) {
  char filter[256];
  std::fill(std::begin(filter), std::end(filter), '?');
  BuildImageFilter(patterns.c_str(), filter);
  return std::string(filter, sizeof filter);
}

std::string Padded(const std::string& text) {
  std::string padded(256, '\0');
  text.copy(padded.data(), padded.size());
  return padded;
}

TEST(ImageFilterTest, OffersTheLibrarysTypesFirst) {
  EXPECT_EQ(Padded("Image files:(*.png;*.bmp)\0*.png;*.bmp\0All files (*.*)\0*.*\0"s),
            FilterOf("*.png;*.bmp"));
}

TEST(ImageFilterTest, LongestListFillsTheBuffer) {
  const std::string list = "*." + std::string(107, 'x');
  EXPECT_EQ(Padded("Image files:(" + list + ")\0"s + list + "\0All files (*.*)\0*.*\0\0"s),
            FilterOf(list));
}

TEST(ImageFilterTest, PatternsThatDoNotFitAreLeftOff) {
  const std::string list = "*." + std::string(103, 'x') + ";*.p";
  EXPECT_EQ(Padded("Image files:(" + list + ")\0"s + list + "\0All files (*.*)\0*.*\0"s),
            FilterOf(list + ";*.bmp"));
  EXPECT_EQ(Padded("Image files:()\0\0All files (*.*)\0*.*\0"s), FilterOf(std::string(200, 'x')));
}

class ImageFilesTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(InitImageFiles()); }
  void TearDown() override {
    ImageUnInit();
    imageFilter[0] = '\0';
  }

  TempFolder folder_;
};

TEST_F(ImageFilesTest, InitBuildsTheFilterOfTheLibrarysTypes) {
  EXPECT_EQ(FilterOf(ImageOpenFilterStr()), std::string(imageFilter, sizeof imageFilter));
}

TEST_F(ImageFilesTest, SavedSurfaceLoadsIntoBothKinds) {
  const ImageClass saved = MakePicture(76, 60, ZoomedMapPixel);
  for (const char* name : {"icon.png", "icon.bmp"}) {
    ASSERT_NE(0, SaveImageFile(folder_.Path(name).c_str(), saved));
    ImageClass image;
    ASSERT_EQ(1, LoadImageFile(folder_.Path(name).c_str(), image));
    DIBClass dib;
    ASSERT_EQ(1, LoadImageFile(folder_.Path(name).c_str(), dib));
    for (const BitmapClass* loaded :
         {static_cast<BitmapClass*>(&image), static_cast<BitmapClass*>(&dib)}) {
      ASSERT_EQ(1, loaded->valid);
      EXPECT_EQ("", Difference(saved, *loaded));
    }
    EXPECT_EQ(ZoomedMapPixel(0, 59), dib.bits[0]);
  }
}

TEST_F(ImageFilesTest, DibIsSavedFromItsTopRow) {
  DIBClass dib;
  Draw(dib, "#2|34");
  ASSERT_NE(0, SaveImageFile(folder_.Path("dib.png").c_str(), dib));
  ImageClass image;
  ASSERT_EQ(1, LoadImageFile(folder_.Path("dib.png").c_str(), image));
  EXPECT_EQ(Rows("#2|34"), Drawn(image));
}

TEST_F(ImageFilesTest, UnreadableFilesLeaveTheSurfaceEmpty) {
  WriteContent(folder_.Path("text.png"), "no picture");
  for (const char* name : {"missing.png", "text.png", ""}) {
    ImageClass image;
    DIBClass dib;
    EXPECT_EQ(0, LoadImageFile(folder_.Path(name).c_str(), image)) << name;
    EXPECT_EQ(0, LoadImageFile(folder_.Path(name).c_str(), dib)) << name;
    EXPECT_EQ(0, image.valid) << name;
    EXPECT_EQ(0, dib.valid) << name;
  }
}

TEST_F(ImageFilesTest, NothingIsSavedWithoutPixelsOrFolder) {
  EXPECT_EQ(0, SaveImageFile(folder_.Path("empty.png").c_str(), ImageClass()));
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("empty.png")));
  EXPECT_EQ(0, SaveImageFile(folder_.Path("none\\a.png").c_str(), PlainPicture(2, 2, 1)));
}

}  // namespace
