#include "imaging/image_files.h"

#include <gtest/gtest.h>

#include "imagelib/imagelib.h"
#include "imaging/dib_class.h"
#include "imaging/image_class.h"
#include "support/allocations.h"
#include "support/surface_text.h"
#include "support/temp_folder.h"

namespace {

TEST(ImageFilterTest, OffersThePatternsThatFit) {
  const std::string longest(109, 'x'), shorter(107, 'y');
  const struct {
    std::string patterns, kept;
  } rows[] = {{"*.png;*.bmp", "*.png;*.bmp"},
              {longest, longest},
              {shorter + ";*.b", shorter},
              {longest + "x", ""}};
  for (const auto& row : rows) {
    char filter[256];
    std::fill(std::begin(filter), std::end(filter), '?');
    BuildImageFilter(row.patterns.c_str(), filter);
    std::string text = "Image files:(" + row.kept + ")!" + row.kept + "!All files (*.*)!*.*!!";
    std::replace(text.begin(), text.end(), '!', '\0');
    text.resize(sizeof filter);
    EXPECT_EQ(text, std::string(filter, sizeof filter));
  }
}

TEST(ImageFilesTest, BothKindsOfSurfaceAreSavedAndLoadedFromTheTopRow) {
  ASSERT_TRUE(InitImageFiles());
  EXPECT_STREQ((std::string("Image files:(") + ImageOpenFilterStr() + ")").c_str(), imageFilter);
  const TempFolder folder;
  const std::string path = folder.Path("picture.png");
  ImageClass image, loadedImage;
  DIBClass dib, loadedDib;
  EXPECT_EQ(0, SaveImageFile(path.c_str(), image)) << "an empty surface";
  EXPECT_EQ(0, LoadImageFile(path.c_str(), image)) << "a missing file";
  EXPECT_EQ(0, image.valid);
  Draw(image, "#23|432");
  Draw(dib, "##|23|K4");
  EXPECT_NE(0, SaveImageFile(path.c_str(), image));
  EXPECT_EQ(1, LoadImageFile(path.c_str(), loadedDib));
  EXPECT_EQ(Rows("#23|432"), Drawn(loadedDib));
  EXPECT_NE(0, SaveImageFile(path.c_str(), dib));
  EXPECT_EQ(1, LoadImageFile(path.c_str(), loadedImage));
  EXPECT_EQ(Rows("##|23|K4"), Drawn(loadedImage));
  for (BitmapClass* surface : std::initializer_list<BitmapClass*>{&loadedImage, &loadedDib}) {
    surface->Free();
    const int failures =
        FailEachAllocation([&] { return TryLoadImageFile(path.c_str(), *surface) == 1; },
                           [&] { EXPECT_EQ(0, surface->valid) << "out of memory"; });
    EXPECT_GE(failures, 1);
  }
  ImageUnInit();
  imageFilter[0] = '\0';
}

}  // namespace
