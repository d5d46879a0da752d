#include "export/shp_export.h"

#include <gtest/gtest.h>

#include <set>

#include "document/composition.h"
#include "document/item_operations.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"
#include "support/sprite.h"

namespace {

using Steps = std::vector<ExportStep>;

class ShpExportTest : public EditorFixture {
 protected:
  // Runs the export of the document; the steps that it reported stand in steps_.
  FailedStep Export(int mode, int32_t colours) {
    steps_.clear();
    return RunShpExport(Composed(), {shp_.c_str(), mode, pal_.c_str(), colours},
                        [this](ExportStep step) { steps_.push_back(step); });
  }
  // The pixels of the sprite file, as palette indices.
  std::vector<uint8_t> Indices() const {
    const std::string content = ReadContent(File("out.shp"));
    EXPECT_EQ(416032U, content.size());
    return std::vector<uint8_t>(content.begin() + 32, content.end());
  }
  static ImageClass Composed() {
    ImageClass picture;
    picture.Create(kPictureWidth, kPictureHeight);
    ComposeLoadScreen(&picture);
    return picture;
  }
  // Holds the two files against the picture: each pixel has the nearest of the first n entries.
  void ExpectMapped(const ShpPalette& palette, int32_t n) const {
    const ImageClass picture = Composed();
    const std::vector<uint8_t> indices = Indices();
    size_t at = 0;
    for (int32_t y = 0; y < kPictureHeight; ++y) {
      for (int32_t x = 0; x < kPictureWidth; ++x, ++at) {
        const uint32_t pixel = picture.ReadPixel(x, y);
        const auto part = [pixel](int shift) {
          return static_cast<int32_t>(pixel >> shift & 0xFF);
        };
        if (NearestColor(palette, part(16), part(8), part(0), n) == indices[at]) continue;
        FAIL() << "entry " << int{indices[at]} << " at " << x << ", " << y;
      }
    }
  }

  std::string shp_ = AppPath("out.shp"), pal_ = AppPath("out.pal");
  Steps steps_;
};

TEST_F(ShpExportTest, GeneratedPaletteIsWrittenAndUsed) {
  for (const int32_t colours : {256, 40, 5, 1}) {
    ASSERT_STREQ(nullptr, Export(kGeneratePalette, colours));
    const auto [palette, used] = GeneratedPalette(Composed(), colours);
    EXPECT_LE(used, colours);
    EXPECT_EQ(SixBitBytes(palette), ReadContent(File("out.pal"))) << colours << " colours";
    ExpectMapped(palette, used);
  }
}

TEST_F(ShpExportTest, ThirteenStepsAreReported) {
  Steps expected = {ExportStep::PaletteMade};
  expected.insert(expected.end(), 11, ExportStep::RowsMapped);
  expected.push_back(ExportStep::DataWritten);
  ASSERT_STREQ(nullptr, Export(kGeneratePalette, 16));
  EXPECT_EQ(expected, steps_);
  ASSERT_STREQ(nullptr, Export(kExistingPalette, 16));
  EXPECT_EQ(expected, steps_);
}

TEST_F(ShpExportTest, ExistingPaletteIsReadAndLeftAlone) {
  std::string content;
  for (int i = 0; i < 768; ++i) content += static_cast<char>(i * 37 % 64);
  WriteContent(File("out.pal"), content + "trailer");
  ASSERT_STREQ(nullptr, Export(kExistingPalette, 16));
  EXPECT_EQ(content + "trailer", ReadContent(File("out.pal")));
  for (const uint8_t index : Indices()) ASSERT_LT(index, 16);
  ShpPalette palette;
  ASSERT_STREQ(nullptr, ReadPalFile(pal_.c_str(), palette));
  ExpectMapped(palette, 16);
}

TEST_F(ShpExportTest, OneColourFillsTheSpriteWithEntryZero) {
  AddItem(PlainPicture(800, 520, 0x8040C7), 0, 0, 0);
  ASSERT_STREQ(nullptr, Export(kGeneratePalette, 256));
  const std::vector<uint8_t> indices = Indices();
  EXPECT_EQ(std::set<uint8_t>({0}), std::set<uint8_t>(indices.begin(), indices.end()));
  const std::string palette = ReadContent(File("out.pal"));
  EXPECT_EQ("\x20\x10\x31" + std::string(765, '\0'), palette) << "unused entries are black";
}

struct Failure {
  const char* name;
  int mode;
  const char* shp;
  const char* pal;
  const char* message;
  size_t shpSize;  // what is left of the sprite file
};

const Failure kFailures[] = {
    {"PaletteMissing", kExistingPalette, "a.shp", "none.pal", "PAL file open error!", 0},
    {"PaletteShort", kExistingPalette, "a.shp", "short.pal", "PAL file read error!", 0},
    {"PaletteIsAFolder", kExistingPalette, "a.shp", "Templates", "PAL file open error!", 0},
    {"SpriteFolderMissing", kGeneratePalette, "none\\a.shp", "a.pal", "SHP file open error!", 0},
    {"SpriteIsAFolder", kGeneratePalette, "Templates", "a.pal", "SHP file open error!", 0},
    {"PaletteFolderMissing", kGeneratePalette, "a.shp", "none\\a.pal", "Palette file create error!",
     416032},
    {"PaletteFileIsAFolder", kGeneratePalette, "a.shp", "Templates", "Palette file create error!",
     416032},
};

TEST_F(ShpExportTest, EachFailureLeavesWhatWasWritten) {
  WriteContent(File("short.pal"), std::string(767, '\1'));
  for (const Failure& failure : kFailures) {
    std::filesystem::remove(File("a.shp"));
    shp_ = AppPath(failure.shp);
    pal_ = AppPath(failure.pal);
    EXPECT_STREQ(failure.message, Export(failure.mode, 256)) << failure.name;
    EXPECT_EQ(failure.shpSize, ReadContent(File("a.shp")).size()) << failure.name;
    EXPECT_FALSE(std::filesystem::exists(File("a.pal"))) << failure.name;
  }
}

}  // namespace
