#include "export/shp_files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/file_content.h"
#include "support/temp_folder.h"

namespace {

class ShpFilesTest : public testing::Test {
 protected:
  TempFolder folder_;
  std::string path_ = folder_.Path("file");
};

TEST_F(ShpFilesTest, SpriteFileIsWrittenByteForByte) {
  WriteContent(path_, std::string(500000, 'x'));
  std::vector<uint8_t> indices(800 * 520);
  for (size_t i = 0; i < indices.size(); ++i) indices[i] = static_cast<uint8_t>(i % 251);
  indices.front() = 7;
  indices.back() = 200;
  FileClass file;
  ASSERT_STREQ(nullptr, BeginShpFile(file, path_.c_str(), 800, 520));
  ASSERT_STREQ(nullptr, FinishShpFile(file, indices));
  EXPECT_STREQ("Not-open", file.GetName());
  const std::string content = ReadContent(path_);
  ASSERT_EQ(416032U, content.size()) << "the longer file before is replaced";
  const std::string head(
      "\0\0\x20\x03\x08\x02\x01\0\0\0\0\0\x20\x03\x08\x02"
      "\0\0\0\0\0\0\0\0\0\0\0\0\x20\0\0\0",
      32);
  EXPECT_EQ(head, content.substr(0, 32));
  EXPECT_TRUE(std::equal(indices.begin(), indices.end(), content.begin() + 32,
                         [](uint8_t a, char b) { return a == static_cast<uint8_t>(b); }));
}

TEST_F(ShpFilesTest, PaletteFileHasSixBitComponents) {
  ShpPalette palette;
  palette.entries[0] = {255, 128, 3};
  palette.entries[1] = {3, 4, 7};
  palette.entries[255] = {252, 8, 64};
  WriteContent(path_, std::string(1000, 'x'));
  ASSERT_STREQ(nullptr, WritePalFile(path_.c_str(), palette));
  const std::string content = ReadContent(path_);
  ASSERT_EQ(768U, content.size());
  EXPECT_EQ(std::string("\x3F\x20\0\0\1\1\0", 7), content.substr(0, 7));
  EXPECT_EQ("\x3F\x02\x10", content.substr(765));
  ShpPalette read;
  ASSERT_STREQ(nullptr, ReadPalFile(path_.c_str(), read));
  for (int i = 0; i < kPaletteEntries; ++i) {
    EXPECT_EQ(palette.entries[i].red & 0xFC, read.entries[i].red) << i;
    EXPECT_EQ(palette.entries[i].green & 0xFC, read.entries[i].green) << i;
    EXPECT_EQ(palette.entries[i].blue & 0xFC, read.entries[i].blue) << i;
  }
}

TEST_F(ShpFilesTest, ComponentsAbove63Wrap) {
  std::string content(768, '\0');
  content.replace(0, 6, "\x3F\x0A\x00\x40\x41\xFF", 6);
  WriteContent(path_, content);
  ShpPalette palette;
  ASSERT_STREQ(nullptr, ReadPalFile(path_.c_str(), palette));
  EXPECT_EQ(252, palette.entries[0].red);
  EXPECT_EQ(40, palette.entries[0].green);
  EXPECT_EQ(0, palette.entries[0].blue);
  EXPECT_EQ(0, palette.entries[1].red);
  EXPECT_EQ(4, palette.entries[1].green);
  EXPECT_EQ(252, palette.entries[1].blue);
}

TEST_F(ShpFilesTest, PaletteNeeds768BytesAndTakesNoMore) {
  ShpPalette palette;
  for (size_t size = 0; size < 768; ++size) {
    WriteContent(path_, std::string(size, '\1'));
    ASSERT_STREQ("PAL file read error!", ReadPalFile(path_.c_str(), palette)) << size << " bytes";
  }
  WriteContent(path_, std::string(768, '\1') + std::string(256, '\2'));
  ASSERT_STREQ(nullptr, ReadPalFile(path_.c_str(), palette));
  EXPECT_EQ(4, palette.entries[255].blue);
}

TEST_F(ShpFilesTest, DataForAClosedFileIsAnError) {
  FileClass closed;
  EXPECT_STREQ("SHP file write error (Image data)!", FinishShpFile(closed, {1, 2, 3}));
}

}  // namespace
