#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <sstream>

#include "imaging/image_files.h"
#include "platform/win32.h"
#include "support/file_content.h"
#include "support/surface_text.h"
#include "support/temp_folder.h"
#include "support/template_pictures.h"
#include "tools/run.h"

namespace {

using namespace std::string_literals;

// Two frames in a picture of 3 x 2: the whole of it, and two pixels at (1, 1).
const std::string kSprite(
    "\0\0\3\0\2\0\2\0"
    "\0\0\0\0\3\0\2\0\0\0\0\0\0\0\0\0\0\0\0\0\x38\0\0\0"
    "\1\0\1\0\2\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\x3E\0\0\0"
    "\0\1\2\3\2\1\1\2",
    64);
const std::string kPalette = "\0\0\0\x3F\0\0\0\x3F\0\0\0\x3F"s + std::string(756, '\0');
const Legend kLegend = {{'.', 0}, {'r', 0xFC0000}, {'g', 0xFC00}, {'b', 0xFC}};

// A folder with some files, which is the current one.
class SpriteTest : public testing::Test {
 protected:
  SpriteTest() {
    GetCurrentDirectoryA(MAX_PATH, before_);
    SetCurrentDirectoryA(folder_.Path().c_str());
    std::filesystem::create_directory("folder");
    WriteContent("ok.shp", kSprite);
    WriteContent("ok.pal", kPalette);
    WriteContent("short.pal", kPalette.substr(1));
    WriteContent("eight.pal", "\0\x40"s + kPalette);
    InitImageFiles();
    ImageClass small;
    Draw(small, "rg|bb", kLegend);
    SaveImageFile("small.bmp", small);
    SaveImageFile("screen.png", PlainPicture(800, 520, 0x8040C0));
  }
  ~SpriteTest() override { SetCurrentDirectoryA(before_); }

  // What a command prints, errors first, and its exit code, if that is not 0.
  static std::string Run(const std::string& command) {
    std::istringstream text(command);
    const std::vector<std::string> words(std::istream_iterator<std::string>(text), {});
    Output output;
    const ExitCode code = RunSprite(words, output);
    return output.err + output.out + (code ? "=" + std::to_string(code) : "");
  }
  static ImageClass Loaded(const char* path) {
    ImageClass picture;
    EXPECT_TRUE(LoadImageFile(path, picture)) << path;
    return picture;
  }

 private:
  TempFolder folder_;
  char before_[MAX_PATH] = "";
};

const std::string kSee = "; see corvanta-sprite --help\n=2";

const struct {
  const char* command;
  std::string result;
} kCommands[] = {
    {"--version", "corvanta-sprite 1.1\n"},
    {"", "error: there is no command" + kSee},
    {"draw", "error: there is no command 'draw'" + kSee},
    {"show ok.shp ok.pal", "error: show does not take 2 files" + kSee},
    {"show ok.shp ok.pal a.png", ""},
    {"show --verbose ok.shp --frame 1 -- ok.pal -a.PNG", "-a.PNG: 3 x 2, frame 1 of 2\n"},
    {"show ok.shp ok.pal a.jpg",
     "error: a.jpg: the picture's name should end in .png or .bmp" + kSee},
    {"show ok.shp ok.pal a.png --frame", "error: --frame lacks its value" + kSee},
    {"show ok.shp ok.pal a.png --frame 1x",
     "error: --frame takes a number from 0 to 65534, not '1x'" + kSee},
    {"show ok.shp ok.pal a.png --frame 2", "error: ok.shp: has no frame 2: its last is 1\n=1"},
    {"show ok.shp ok.pal a.png --colors 2", "error: there is no option --colors here" + kSee},
    {"show folder ok.pal a.png", "error: folder: cannot be opened\n=1"},
    {"show ok.shp short.pal a.png", "error: short.pal: has 767 bytes; a palette has 768\n=1"},
    {"show ok.shp eight.pal a.png",
     "warning: eight.pal: the byte at offset 1 is 64, but colours go from 0 to 63: their "
     "four-folds wrap\n"},
    {"show ok.shp ok.pal none/a.png", "error: none/a.png: cannot be written\n=1"},
    {"make screen.png m.shp m.pal --colors 1 --verbose", "m.shp: 800 x 520\nm.pal: its palette\n"},
    {"make screen.png m.shp", "error: OUT.pal is missing" + kSee},
    {"make screen.png m.shp m.pal --colors 257",
     "error: --colors takes a number from 1 to 256, not '257'" + kSee},
    {"make screen.png m.shp --palette ok.pal --colors 2",
     "error: --colors and --palette exclude each other" + kSee},
    {"make screen.png m.shp M.shp", "error: M.shp is given for two files" + kSee},
    {"make screen.png .\\SCREEN.png m.pal", "error: .\\SCREEN.png is given for two files" + kSee},
    {"make screen.png ok.pal m.pal --palette ok.pal",
     "error: ok.pal is given for two files" + kSee},
    {"make screen.png m.shp m.pal --any-size --any-size",
     "error: --any-size is given twice" + kSee},
    {"make small.bmp m.shp m.pal",
     "error: small.bmp: is 2 x 2, not 800 x 520 (--any-size takes it as it is)\n=1"},
    {"make ok.pal m.shp m.pal", "error: ok.pal: is no picture that can be read\n=1"},
    {"make none.png m.shp m.pal", "error: none.png: cannot be found\n=1"},
    {"check none", "error: none: is no folder that can be read\n=1"},
};

TEST_F(SpriteTest, CommandsSayWhatIsWrong) {
  for (const auto& row : kCommands) EXPECT_EQ(row.result, Run(row.command)) << row.command;
  EXPECT_NE(std::string::npos, Run("make --help").find("\nExamples:\n"));
}

TEST_F(SpriteTest, ShowDrawsAFrameAtItsPlace) {
  EXPECT_EQ("", Run("show ok.shp ok.pal a.png"));
  EXPECT_EQ(Rows(".rg|bgr"), Drawn(Loaded("a.png"), kLegend));
  EXPECT_EQ("", Run("show ok.shp ok.pal a.png --frame 1"));
  EXPECT_EQ(Rows("...|.rg"), Drawn(Loaded("a.png"), kLegend));
}

const struct {
  size_t offset;
  uint8_t value;
  const char* fault;
} kDamages[] = {
    {0, 1, "its first field (offset 0) is 1, but should be 0"},
    {2, 0, "its picture width (offset 2) is 0, but should be 1 to 16384"},
    {3, 0x40, "its picture width (offset 2) is 16387, but should be 1 to 16384"},
    {4, 0, "its picture height (offset 4) is 0, but should be 1 to 16384"},
    {6, 0, "its number of frames (offset 6) is 0, but should be 1 to 65535"},
    {6, 3, "it ends within its frame records, after 64 bytes"},
    {32, 3, "its frame x (offset 32) is 3, but should be 0 to 2"},
    {34, 2, "its frame y (offset 34) is 2, but should be 0 to 1"},
    {36, 3, "its frame width (offset 36) is 3, but should be 1 to 2"},
    {38, 0, "its frame height (offset 38) is 0, but should be 1"},
    {40, 3, "its first reserved field (offset 40) is 3, but should be 0"},
    {48, 1, "its third reserved field (offset 48) is 1, but should be 0"},
    {52, 55, "its offset of the indices (offset 52) is 55, but should be 56 to 62"},
    {52, 63, "its offset of the indices (offset 52) is 63, but should be 56 to 62"},
};

TEST_F(SpriteTest, ShowNamesTheFieldThatIsWrong) {
  for (const auto& damage : kDamages) {
    std::string bytes = kSprite;
    bytes[damage.offset] = static_cast<char>(damage.value);
    WriteContent("bad.shp", bytes);
    EXPECT_EQ("error: bad.shp: "s + damage.fault + "\n=1",
              Run("show bad.shp ok.pal a.png --frame 1"));
  }
  for (size_t size = 0; size < kSprite.size(); ++size) {
    WriteContent("bad.shp", kSprite.substr(0, size));
    EXPECT_TRUE(Run("show bad.shp ok.pal a.png --frame 1").ends_with("\n=1")) << size;
  }
  EXPECT_FALSE(std::filesystem::exists("a.png"));
}

// The sprite of small.bmp but for its four indices.
const std::string kMade("\0\0\2\0\2\0\1\0\0\0\0\0\2\0\2\0\0\0\0\0\0\0\0\0\0\0\0\0\x20\0\0\0", 32);

TEST_F(SpriteTest, MakeWritesTheExportsBytes) {
  EXPECT_EQ("", Run("make small.bmp m.shp m.pal --any-size"));
  EXPECT_EQ(kMade + "\2\1\0\0"s, ReadContent("m.shp"));
  EXPECT_EQ("\0\0\x3F\0\x3F\0\x3F\0\0"s + std::string(759, '\0'), ReadContent("m.pal"));
  // With a palette: of the wanted colours, and left alone.
  EXPECT_EQ("", Run("make small.bmp m.shp n.pal --any-size --palette ok.pal"));
  EXPECT_EQ(kMade + "\1\2\3\3"s, ReadContent("m.shp"));
  EXPECT_EQ(kPalette, ReadContent("n.pal"));
  WriteContent("n.pal", kPalette + "more");
  EXPECT_EQ("warning: n.pal: has 772 bytes, of which only the first 768 count\n",
            Run("make screen.png m.shp n.pal --palette n.pal"));
  EXPECT_EQ(kPalette + "more", ReadContent("n.pal"));
  EXPECT_EQ(416032u, ReadContent("m.shp").size());
}

TEST_F(SpriteTest, FilesAreReplacedBothOrNotAtAll) {
  WriteContent("m.shp", "old");
  EXPECT_EQ("error: folder: cannot be written\n=1", Run("make screen.png m.shp folder"));
  EXPECT_EQ("old", ReadContent("m.shp"));
  for (const auto& entry : std::filesystem::directory_iterator(".")) {
    EXPECT_NE(".tmp", entry.path().extension().string());
  }
}

}  // namespace
