#include <gtest/gtest.h>

#include <filesystem>

#include "imaging/image_files.h"
#include "support/file_content.h"
#include "support/temp_folder.h"
#include "support/template_pictures.h"
#include "tools/run.h"
#include "tools/settings_check.h"

namespace {

using namespace std::string_literals;

// What "check" finds in a folder.
std::string Found(const std::string& folder, ExitCode expected) {
  Output output;
  const std::vector<std::string> words = {"check", folder};
  EXPECT_EQ(expected, RunSprite(words, output)) << folder;
  EXPECT_EQ("", output.out);
  return output.err;
}

TEST(PackageCheckTest, NothingIsWrongWithTheShippedPackage) {
  EXPECT_EQ("", Found(CORVANTA_SOURCE "/templates", kDone));
}

// A picture of one colour with a pixel of another at (1, 0).
struct Picture {
  int32_t width, height;
  uint32_t colour, spot;
};
constexpr Picture kMissing = {0, 0, 0, 0}, kUnreadable = {1, 0, 0, 0};
constexpr uint32_t kBlue = kKeyColour, kYellow = kSideMarker, kGrey = 0x808080;

const std::string kLongName(240, 'n');

// In the order in which they are found.
const struct {
  const char* file;
  Picture picture;
  const char* findings;
} kPictures[] = {
    {"com_largetargetbox.png",
     {455, 289, kGrey, kGrey},
     "error: @is 455 x 289, but should be at most 454 x 468: the editor does not draw it\n"},
    {"com_smalltargetbox.png",
     {455, 80, kBlue, 0x0000F0},
     "warning: @has 1 pixel of nearly pure blue (0, 0, 255), the first at 1, 0\n"
     "error: @is 455 x 80, but should be at most 454 x 288, narrower and lower than the frame\n"},
    {"com_worldmap2x.png",
     {281, 276, kGrey, kGrey},
     "error: @is 281 x 276, but should be at least 281 x 277\n"},
    {"all_worldmap.png",
     {800, 519, kGrey, kGrey},
     "error: @is 800 x 519, but should be at least 800 x 520\n"},
    {"sov_worldmap.png",
     {800, 520, kGrey, kGrey},
     "error: @is 800 x 520, but should be 800 x 519 like the map before it\n"},
    {"psy_worldmap.png", kUnreadable, "error: @is no picture that can be read\n"},
    {"all_2icomain.png",
     {801, 520, kBlue, kGrey},
     "error: @is 801 x 520, but should be at most 800 x 520: the editor does not draw it\n"},
    {"all_3icomain.png",
     {800, 520, kGrey, kGrey},
     "warning: @has no pure blue (0, 0, 255): nothing is transparent\n"},
    {"sov_2icomain.png", kMissing, "error: @is missing\n"},
    {"sym_dot.png",
     {20, 20, kBlue, kGrey},
     "warning: @has no pure yellow (255, 255, 0): no part takes the side's colour\n"},
    {"sym_rally.png",
     {20, 20, kYellow, 0xFFE000},
     "warning: @has no pure blue (0, 0, 255): nothing is transparent\n"
     "warning: @has 1 pixel of nearly pure yellow (255, 255, 0), the first at 1, 0\n"},
    {"sym_warning.png",
     {701, 420, kBlue, kYellow},
     "error: @is 701 x 420, but should be at most 700 x 420: the editor does not draw it where it "
     "places it\n"},
    {"cam_rifleman.png",
     {77, 60, kGrey, kGrey},
     "error: @is 77 x 60, but should be 76 x 60: the editor refuses it\n"},
    {"cam_sapper.png",
     {76, 59, kGrey, kGrey},
     "error: @is 76 x 59, but should be 76 x 60: the editor refuses it\n"},
    {kLongName.c_str(), kMissing, "error: @has a path of more than 259 bytes\n"},
    {"readme.txt", kMissing, "warning: @is missing or empty: the About box shows no text\n"},
};

void Damage(const std::string& path, const Picture& wanted) {
  if (wanted.width == 0) {
    std::error_code none;  // where the path is too long
    std::filesystem::remove(path, none);
  } else if (wanted.height == 0) {
    WriteContent(path, ReadContent(path).substr(0, 1000));
  } else {
    ImageClass picture = PlainPicture(wanted.width, wanted.height, wanted.colour);
    picture.PutPixel(1, 0, wanted.spot);
    EXPECT_TRUE(SaveImageFile(path.c_str(), picture));
  }
}

TEST(PackageCheckTest, EveryDamagedPictureIsNamedWithItsReason) {
  const TempFolder folder;
  std::filesystem::copy(CORVANTA_SOURCE "/templates", folder.Path(),
                        std::filesystem::copy_options::recursive);
  ASSERT_TRUE(InitImageFiles());
  std::string expected;
  for (const auto& row : kPictures) {
    Damage(folder.Path("Templates/"s + row.file), row.picture);
    const std::string name = "Templates\\"s + row.file + ": ";
    for (const char* c = row.findings; *c; ++c) expected += *c == '@' ? name : std::string(1, *c);
  }
  const std::string settings = ReadContent(folder.Path("Settings.ini"));
  WriteContent(folder.Path("Settings.ini"),
               settings + "\nagain=Again,cam_sapper.png\nlong=Long," + kLongName + "\n");
  EXPECT_EQ(expected, Found(folder.Path(), kFound));
  // Warnings alone leave nothing to mend.
  std::filesystem::remove_all(folder.Path("Templates"));
  std::filesystem::copy(CORVANTA_SOURCE "/templates/Templates", folder.Path("Templates"));
  WriteContent(folder.Path("Settings.ini"), settings);
  Damage(folder.Path("Templates/com_largetargetbox.png"), {287, 289, kGrey, kGrey});
  WriteContent(folder.Path("Templates/readme.txt"), "\xE9");
  EXPECT_EQ(
      "warning: Templates\\com_largetargetbox.png: is 287 x 289, but should be at least 288 x "
      "283 to enclose the zoomed map\n"
      "warning: Templates\\readme.txt: is not UTF-8: the About box shows other characters\n",
      Found(folder.Path(), kDone));
}

const std::string kBoth = "[SymbolsList]\nk=T,f.png\n[CameosList]\nk=T, f.png\n";
const std::string kMore =
    "[CameosList]\na=A,a.png\n[SymbolsList]\n";  // its next line is the fourth

const struct {
  std::string text, findings;  // each finding up to its end or a colon in it
} kSettings[] = {
    {kBoth + "[Other]\nk=A\nk=B\n; =;=\n\x1A\r\n", ""},
    {"", "error: has no section [CameosList]|error: has no section [SymbolsList]|"},
    {"a=b\n[Symbolslist]\n[CameosList]\nk=T,f.png\n",
     "warning: line 1 stands before the first section and is ignored|"
     "error: has no section [SymbolsList]|"},
    {kMore + "\n", "warning: has no entries in [SymbolsList]|"},
    {kBoth + "[SymbolsList]\nq=Q,q.png\n", "error: line 5 opens [SymbolsList] again|"},
    {kMore + "a=A,a.png\na\na=\na=b=c\na=C,c.png",
     "warning: line 5 has no '='|error: line 6 has nothing on one side of its '='|"
     "error: line 7 has more than one '='|error: line 8 has the key of line 4|"},
    {kMore + std::string(65, 'k') + "=A,a\n" + std::string(64, 'k') + "=B,b\n" +
         std::string(64, 'j') + "=C,c",
     "warning: line 4 has a key of more than 64 bytes|error: line 5 has the key of line 4|"},
    {kMore + "a=" + std::string(253, 't') + ",f\nb=" + std::string(254, 't') + ",f",
     "error: line 5 has more than 255 bytes behind its '='|"},
    {kMore + "a =A,a\nb= B,b\nc=C,,c\nd=,d\ne=A,e",
     "warning: line 4 has a space before its '=', which belongs to the key|"
     "warning: line 5 has a space behind its '=', which belongs to the text|"
     "warning: line 6 has more than one comma|"
     "error: line 7 names no text and file with a comma between|"
     "warning: line 8 has the text of line 4|"},
    {kMore + "a=A,a;" + std::string(4088, 'c') + "\nb=B,b",
     "error: line 4 is longer than 4093 bytes|"},
    {kMore + "a=A,a;" + std::string(4087, 'c') + "\nb=B,b", ""},
    {kBoth + "[" + std::string(64, 's') + "]",
     "warning: line 5 names a section with more than 63 bytes|"},
    {"\xFF\xFE[\0S\0"s, "error: is UTF-16; the editor reads UTF-8|"},
    {"\xEF\xBB\xBF" + kBoth,
     "warning: begins with a byte order mark, which counts as a part of its first line|"
     "warning: line 1 has no '='|warning: line 2 stands before the first section and is ignored|"
     "error: has no section [SymbolsList]|"},
    {kMore + "a=\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80,a", ""},
    {kMore + "a=\xE0\x80\x80,a", "error: line 4 is not UTF-8|"},
    {kMore + "a=\xED\xA0\x80,a", "error: line 4 is not UTF-8|"},
    {kMore + "a=\xF0\x9F\x98",
     "error: line 4 is not UTF-8|error: line 4 names no text and file "
     "with a comma between|"},
    {kMore + "a=A,a\0=\n"s, "error: line 4 has a zero byte, which hides the rest of the line|"},
    {kMore + "a=A,a\n\x1A\nb=B,b\n", "error: line 5 has a byte 1A (Ctrl+Z), which ends the text|"},
};

TEST(PackageCheckTest, EverySettingsLineThatIsTakenOtherwiseIsNamed) {
  const TempFolder folder;
  for (const auto& row : kSettings) {
    WriteContent(folder.Path("Settings.ini"), row.text);
    Output output;
    Findings findings(output);
    CheckSettings(folder.Path(""), findings);
    std::string found;
    for (size_t at = 0, end = 0; at < output.err.size(); at = end + 1) {
      end = output.err.find('\n', at);
      std::string line = output.err.substr(at, end - at);
      line.erase(line.find("Settings.ini: "), 14);
      found += line.substr(0, line.find(':', 9)) + "|";
    }
    EXPECT_EQ(row.findings, found) << row.text;
  }
}

}  // namespace
