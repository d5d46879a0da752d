#include "export/shp_export.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>

#include "support/allocations.h"
#include "support/file_content.h"
#include "support/temp_folder.h"
#include "support/template_pictures.h"

namespace {

using Colours = std::vector<uint32_t>;
using Steps = std::vector<ExportStep>;

class ShpExportTest : public testing::Test {
 protected:
  // Runs an export; the steps that it reported stand in steps_.
  FailedStep Export(const ImageClass& picture, int mode, int32_t colours) {
    steps_.clear();
    return RunShpExport(picture, {shp_.c_str(), mode, pal_.c_str(), colours},
                        [this](ExportStep step) { steps_.push_back(step); });
  }

  TempFolder folder_;
  std::string shp_ = folder_.Path("a.shp"), pal_ = folder_.Path("a.pal");
  Steps steps_;
};

// The last eight are one leaf in the end, which leaves ten of sixteen. Black is nearer to the
// unused entries than to its own.
const Colours kEightMerged = {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,
                              0xFFFFFF, 0x800000, 0x008000, 0x202020, 0x202000, 0x200020,
                              0x200000, 0x002020, 0x002000, 0x000020, 0x000000};
const Colours kTenEntries = {0x040404, 0x00003F, 0x002000, 0x003F00, 0x003F3F,
                             0x200000, 0x3F0000, 0x3F003F, 0x3F3F00, 0x3F3F3F};

const struct {
  const char* name;
  bool exists;
  int32_t colours;
  Colours pixels;
  Colours palette;  // 0x00RRGGBB in six bits; black follows
  std::vector<uint8_t> indices;
} kRows[] = {
    {"OwnEntries", false, 256, {0x8003FF, 0xFB, 7, 0xFB}, {1, 0x3E, 0x20003F}, {2, 1, 0, 1}},
    {"Unused",
     false,
     16,
     kEightMerged,
     kTenEntries,
     {6, 3, 1, 8, 7, 4, 9, 5, 2, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"First3", true, 3, {0xFFFFFF, 0x4000, 0xFC0000}, {0, 0x3F3F3F, 0x3F0000, 0x1000}, {1, 0, 2}},
};

TEST_F(ShpExportTest, KnownPicturesGiveKnownFiles) {
  for (const auto& row : kRows) {
    std::string palette;
    for (const uint32_t entry : row.palette) {
      for (const int shift : {16, 8, 0}) palette += static_cast<char>(entry >> shift);
    }
    palette.resize(768);
    if (row.exists) palette += "left alone";
    WriteContent(pal_, row.exists ? palette : std::string(1000, 'x'));
    ImageClass picture;
    picture.CreateFromPixels(row.pixels.data(), static_cast<int32_t>(row.pixels.size()), 1);
    EXPECT_STREQ(nullptr, Export(picture, row.exists, row.colours)) << row.name;
    EXPECT_EQ(palette, ReadContent(pal_)) << row.name;
    const std::string sprite = ReadContent(shp_);
    EXPECT_EQ(row.indices, std::vector<uint8_t>(sprite.begin() + 32, sprite.end())) << row.name;
  }
}

TEST_F(ShpExportTest, WholePictureTakesThirteenSteps) {
  Steps expected(13, ExportStep::RowsMapped);
  expected.front() = ExportStep::PaletteMade;
  expected.back() = ExportStep::DataWritten;
  ImageClass picture = PlainPicture(800, 520, 0);
  picture.PutPixel(0, 0, 0xFFFFFF);
  picture.PutPixel(798, 519, 0xFFFFFF);
  for (const int mode : {kGeneratePalette, kExistingPalette}) {
    EXPECT_STREQ(nullptr, Export(picture, mode, 2));
    EXPECT_EQ(expected, steps_);
  }
  const std::string head(
      "\0\0\x20\x03\x08\x02\x01\0\0\0\0\0\x20\x03\x08\x02"
      "\0\0\0\0\0\0\0\0\0\0\0\0\x20\0\0\0",
      32);
  const std::string black(416000 - 3, '\0');
  EXPECT_EQ(head + '\1' + black + '\1' + '\0', ReadContent(shp_));
}

struct Failure {
  const char* name;
  int mode;
  const char *shp, *pal;
  const char* message;
  size_t shpSize;  // what is left of the sprite file
};

// A file to which nothing can be written, on Linux and so under Wine.
#ifdef _WIN32
constexpr char kFullDisk[] = "Z:\\dev\\full";
#else
constexpr char kFullDisk[] = "/dev/full";
#endif

const Failure kFailures[] = {
    {"PaletteMissing", kExistingPalette, "b.shp", "none.pal", "PAL file open error!", 0},
    {"PaletteShort", kExistingPalette, "b.shp", "short.pal", "PAL file read error!", 0},
    {"PaletteIsAFolder", kExistingPalette, "b.shp", "folder", "PAL file open error!", 0},
    {"SpriteFolderMissing", kGeneratePalette, "none\\b.shp", "b.pal", "SHP file open error!", 0},
    {"PaletteFolderMissing", kGeneratePalette, "b.shp", "none\\b.pal", "Palette file create error!",
     34},
    {"SpriteOnAFullDisk", kGeneratePalette, kFullDisk, "b.pal",
     "SHP file write error (SHP2FILEHEADER)!", 0},
    {"PaletteOnAFullDisk", kGeneratePalette, "b.shp", kFullDisk, "Palette file write error!", 34},
};

TEST_F(ShpExportTest, EachFailureLeavesWhatWasWritten) {
  WriteContent(folder_.Path("short.pal"), std::string(767, '\1'));
  std::filesystem::create_directory(folder_.Path("folder"));
  for (const Failure& failure : kFailures) {
    std::filesystem::remove(folder_.Path("b.shp"));
    shp_ = failure.shp == kFullDisk ? kFullDisk : folder_.Path(failure.shp);
    pal_ = failure.pal == kFullDisk ? kFullDisk : folder_.Path(failure.pal);
    const bool full = shp_ == kFullDisk || pal_ == kFullDisk;
    if (full && !std::filesystem::exists(kFullDisk)) continue;
    EXPECT_STREQ(failure.message, Export(PlainPicture(2, 1, 1), failure.mode, 256)) << failure.name;
    EXPECT_EQ(failure.shpSize, ReadContent(folder_.Path("b.shp")).size()) << failure.name;
    EXPECT_FALSE(std::filesystem::exists(folder_.Path("b.pal"))) << failure.name;
  }
}

TEST_F(ShpExportTest, OneFileForBothIsRefused) {
  const std::string palette(768, '\7');
  WriteContent(pal_, palette);
  ASSERT_TRUE(SetCurrentDirectoryA(folder_.Path().c_str()));
  for (const char* name : {"a.pal", "A.PAL", ".\\a.pal"}) {
    shp_ = name;
    const ImageClass picture = PlainPicture(2, 1, 1);
    EXPECT_STREQ("Palette file create error!", Export(picture, kGeneratePalette, 2)) << name;
    EXPECT_STREQ("SHP file open error!", Export(picture, kExistingPalette, 2)) << name;
  }
  SetCurrentDirectoryA("..");
  EXPECT_EQ(palette, ReadContent(pal_));
}

TEST_F(ShpExportTest, RunningOutOfMemoryNeverLeavesAPaletteWithoutItsSprite) {
  const ImageClass picture = PlainPicture(30, 20, 0x123456);
  const auto exported = [&] {
    try {
      return Export(picture, kGeneratePalette, 16) == nullptr;
    } catch (const std::bad_alloc&) {
      return false;
    }
  };
  const int failures = FailEachAllocation(exported, [&] {
    const size_t expected = std::filesystem::remove(pal_) ? 632 : 0;
    EXPECT_GE(ReadContent(shp_).size(), expected);
  });
  EXPECT_GT(failures, 3);
  EXPECT_EQ(632U, ReadContent(shp_).size());
}

TEST_F(ShpExportTest, DataForAClosedFileIsAnError) {
  FileClass closed;
  EXPECT_STREQ("SHP file write error (Image data)!", FinishShpFile(closed, {1, 2, 3}));
}

TEST_F(ShpExportTest, ComponentsAbove63Wrap) {
  std::string file("\x3F\x0A\0\x40\x41\xFF", 6), expected("\xFC\x28\0\0\x04\xFC", 6);
  file.resize(800, '\1');  // of which 768 count
  expected.resize(768, '\4');
  WriteContent(pal_, file);
  ShpPalette palette;
  EXPECT_STREQ(nullptr, ReadPalFile(pal_.c_str(), palette));
  EXPECT_EQ(expected, std::string(reinterpret_cast<const char*>(&palette), sizeof palette));
}

}  // namespace
