#include "imagelib/picture_files.h"

// Kinds of files that the library itself never writes.
namespace {

using ImageLibFormats = ImageLibTest;

std::string FromHex(const std::string& hex) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += hex[i + 2] == ' ' ? 3 : 2) {
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

const Picture kColours = {{0x102030, 0xC0B0A0}};

struct PngRow {
  const char* name;
  const char* hex;  // what stands between the size and the IEND chunk
  Picture picture;
};

// Those with alpha keep the stored colours everywhere.
const PngRow kPngs[] = {
    {"PaletteWithAlpha",
     "0803000000C3FC8FB800000006504C5445102030C0B0A034E7F7E10000000274524E5300809B2B4E18"
     "0000000B4944415478016360600400000400028B2F3C13",
     kColours},
    {"Grey2",
     "02000000009BF938F70000000A49444154780163480000006200618A42DC9B",
     {{0x555555, 0xAAAAAA}}},
    {"ColourAlpha", "0806000000F4227F8A00000011494441547801631050306038B061410300095902F188FE1EBE",
     kColours},
    {"Colour16",
     "10020000002BD0349E0000001549444154780163101050503030387060C386050B00159D04E1766A0EA6",
     kColours},
    {"ColourWithGamma",
     "08020000007B40E8DD0000000467414D41000186A031E8965F"
     "0000000F4944415478016310503038B06101000607027155CA8C6D",
     kColours},
    {"Interlaced", "08020000010C47D84B00000010494441547801631050306038B0610100066802714DEB0261",
     kColours},
};

TEST_F(ImageLibFormats, EveryKindOfPngGivesItsStoredColours) {
  for (const PngRow& row : kPngs) {
    WriteContent(path_, FromHex("89504E470D0A1A0A0000000D494844520000000200000001" +
                                std::string(row.hex) + "0000000049454E44AE426082"));
    EXPECT_EQ(row.picture, LoadPicture(path_)) << row.name;
  }
}

TEST_F(ImageLibFormats, GifGivesItsColoursWhereItIsListed) {
  WriteContent(path_, FromHex("474946383961 02000100800000 102030 C0B0A0 2C00000000020001 0000"
                              "0202440A00 3B"));
  EXPECT_EQ(Readable("gif") ? kColours : Picture(), LoadPicture(path_));
}

struct BmpRow {
  const char* name;
  std::int32_t height;
  std::uint32_t bits, compression;
  const char *table, *pixels;  // palette or masks, and rows of a multiple of four bytes
  bool refused = false;
};

constexpr char kPalette[] = "30201000 A0B0C000 0000FF00 FF000000";
constexpr char kMasks[] = "0000FF00 00FF0000 FF000000";

// Pictures of 2 x 2 in which a fourth byte means nothing and holds rubbish.
const BmpRow kBmps[] = {
    {"Palette", 2, 8, 0, kPalette, "02030000 00010000"},
    {"PaletteWithoutTheIndex", 2, 8, 0, kPalette, "02030000 00040000", true},
    {"Colour24", 2, 24, 0, "", "0000FF FF0000 0000 302010 A0B0C0 0000"},
    {"Colour24TopDown", -2, 24, 0, "", "302010 A0B0C0 0000 0000FF FF0000 0000"},
    {"Colour32", 2, 32, 0, "", "0000FFEE FF0000EE 302010EE A0B0C0EE"},
    {"OtherMasks", 2, 32, 3, "0000FF00 00FF0000 000000FF", "0000FFEE FF0000EE 302010EE A0B0C0EE",
     true},
    {"Colour32Masks", 2, 32, 3, kMasks, "0000FFEE FF0000EE 302010EE A0B0C0EE"},
};

std::string MakeBmp(const BmpRow& row) {
  const std::string table = FromHex(row.table), pixels = FromHex(row.pixels);
  const auto offset = static_cast<std::uint32_t>(54 + table.size());
  const auto size = static_cast<std::uint32_t>(offset + pixels.size());
  std::string file = "BM";
  for (const std::uint32_t field :
       {size, 0U, offset, 40U, 2U, static_cast<std::uint32_t>(row.height), row.bits << 16 | 1U,
        row.compression, 0U, 0U, 0U, row.bits == 8 ? 4U : 0U, 0U}) {
    for (const int shift : {0, 8, 16, 24}) file += static_cast<char>(field >> shift);
  }
  return file + table + pixels;
}

TEST_F(ImageLibFormats, EveryKindOfBmpGivesItsStoredColours) {
  for (const BmpRow& row : kBmps) {
    // The system's decoder takes masks of any order, and any colour for an index without an entry.
    if (row.refused && Readable("gif")) continue;
    const std::string file = MakeBmp(row);
    WriteContent(path_, file);
    EXPECT_EQ(row.refused ? Picture() : Picture({{0x102030, 0xC0B0A0}, {0xFF0000, 0x0000FF}}),
              LoadPicture(path_))
        << row.name;
    WriteContent(path_, file.substr(0, file.size() - 1));
    EXPECT_EQ(Picture(), LoadPicture(path_)) << row.name << " without its last byte";
  }
}

}  // namespace
