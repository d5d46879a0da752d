#include "imagelib/picture_files.h"

// Kinds of files that the library itself never writes.
namespace {

using ImageLibFormats = ImageLibTest;
using Pixels = std::vector<std::uint32_t>;

const Pixels kColours = {0xFF0000, 0x00FF00, 0x0000FF, 0x102030, 0xC0B0A0, 0xFFFFFF};
const Pixels kGreys = {0x000000, 0x282828, 0x505050, 0x787878, 0xA0A0A0, 0xC8C8C8};

FileBytes FromHex(const std::string& hex) {
  FileBytes bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoi(hex.substr(i, 2), nullptr, 16)));
  }
  return bytes;
}

struct PngRow {
  const char* name;
  const char* hex;  // What stands between the signature with IHDR's name and the IEND chunk.
  Pixels pixels;
};

// Pictures of 3 x 2. Those with alpha or a transparent key keep the stored colours everywhere.
const PngRow kPngs[] = {
    {"Palette",
     "00000003000000020803000000AAAA962800000012504C5445FF000000FF000000FF102030C0B0A0"
     "FFFFFF1EB75C84000000104944415478DA63606064626066610500002E0010FAD8C70C",
     kColours},
    {"PaletteWithAlpha",
     "000000030000000204030000006F5A7B2900000012504C5445FF000000FF000000FF102030C0B0A0"
     "FFFFFF1EB75C840000000274524E5300809B2B4E180000000E4944415478DA636054603009000001"
     "4300A6C3A5112B",
     kColours},
    {"Grey8",
     "00000003000000020800000000B81F39C6000000104944415478DA6360D00860A85870020005F802"
     "591C152FF1",
     kGreys},
    {"Grey2",
     "00000003000000020200000000F2AF21670000000C4944415478DA639060780200013000FD6830CF"
     "DF",
     {0x000000, 0x555555, 0xAAAAAA, 0xFFFFFF, 0xAAAAAA, 0x555555}},
    {"Grey16",
     "00000003000000021000000000E88FE585000000164944415478DA636060D0D0080860A8A858B0E0"
     "C40900148604B1173B710F",
     kGreys},
    {"GreyAlpha",
     "00000003000000020804000000377DAE91000000164944415478DA636060D0300A4861A898B6E0C4"
     "895F0016CA05472946F089",
     kGreys},
    {"ColourWithKey",
     "000000030000000208020000001216F14D0000000674524E530000000000FF43A4E81C0000001849"
     "44415478DA63F8CFC0C000C1020A0607362CF8FFFF3F004031086B0C76A035",
     kColours},
    {"ColourAlpha",
     "000000030000000208060000009D74661A000000204944415478DA63F8CF0004FF198C80440A8380"
     "82C1B4031B169CF8FFFFFF2F006A890B596D72702E",
     kColours},
    {"Colour16",
     "0000000300000002100200000042862D0E0000001F4944415478DA63F8FF9F010C90680101050503"
     "830307366C58B0E03F180000F23610D56AE893E3",
     kColours},
    {"ColourAlpha16",
     "00000003000000021006000000CDE4BA590000002C4944415478DA63F8FF9F010A402C2323082B25"
     "8541404041C1C060DAB40307366C58B0E0C489FF60F0EB1700977F16B13AC4F99F",
     kColours},
    {"ColourWithGamma",
     "000000030000000208020000001216F14D0000000467414D41000186A031E8965F00000018494441"
     "5478DA63F8CFC0C000C1020A0607362CF8FFFF3F004031086B0C76A035",
     kColours},
    {"Interlaced",
     "000000030000000208020000016511C1DB000000194944415478DA63F8CF0002FFC14840C1E0C086"
     "05FFFFFF07004330086B40745D83",
     kColours},
};

TEST_F(ImageLibFormats, EveryKindOfPngGivesItsStoredColours) {
  for (const PngRow& row : kPngs) {
    const std::string hex =
        std::string("89504E470D0A1A0A0000000D49484452") + row.hex + "0000000049454E44AE426082";
    WriteFileBytes(folder_.Path("a.png"), FromHex(hex));
    EXPECT_EQ(LoadPicture(folder_.Path("a.png")), (Picture{3, 2, row.pixels})) << row.name;
  }
}

TEST_F(ImageLibFormats, GifGivesItsColoursWhereItIsListed) {
  WriteFileBytes(folder_.Path("a.gif"),
                 FromHex("47494638396103000200F20500FF000000FF000000FF102030C0B0A0FFFFFF0000000000"
                         "0021F90400000000002C000000000300020000030408214395003B"));
  if (Readable("gif")) {
    EXPECT_EQ(LoadPicture(folder_.Path("a.gif")), (Picture{3, 2, kColours}));
  } else {
    EXPECT_FALSE(LoadPicture(folder_.Path("a.gif")));
  }
}

struct BmpRow {
  const char* name;
  int bits;
  bool topRowFirst;
  bool masks;
};

void Put(FileBytes* file, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) file->push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

// A picture of 3 x 2 in kColours.
FileBytes MakeBmp(const BmpRow& row) {
  const int palette = row.bits == 8 ? 6 * 4 : 0;
  const std::uint32_t offset = static_cast<std::uint32_t>(54 + palette + (row.masks ? 12 : 0));
  const int rowBytes = (3 * row.bits + 31) / 32 * 4;
  FileBytes file = {'B', 'M'};
  Put(&file, offset + static_cast<std::uint32_t>(2 * rowBytes), 4);
  Put(&file, 0, 4);
  for (const std::uint32_t field : {offset, 40u, 3u, row.topRowFirst ? 0xFFFFFFFEu : 2u}) {
    Put(&file, field, 4);
  }
  Put(&file, 1, 2);
  Put(&file, static_cast<std::uint32_t>(row.bits), 2);
  const std::uint32_t used = row.bits == 8 ? 6 : 0;
  for (const std::uint32_t field : {row.masks ? 3u : 0u, 0u, 0u, 0u, used, 0u})
    Put(&file, field, 4);
  if (row.masks) {
    for (const std::uint32_t mask : {0xFF0000u, 0x00FF00u, 0x0000FFu}) Put(&file, mask, 4);
  }
  for (int i = 0; i < palette / 4; ++i) Put(&file, kColours[static_cast<std::size_t>(i)], 4);
  for (int y = 0; y < 2; ++y) {
    const std::size_t line = file.size();
    const int first = row.topRowFirst == (y == 0) ? 0 : 3;
    for (int i = first; i < first + 3; ++i) {
      const auto index = static_cast<std::uint32_t>(i);
      // The fourth byte means nothing here and holds rubbish.
      Put(&file, row.bits == 8 ? index : kColours[index] | 0xEE000000, row.bits / 8);
    }
    file.resize(line + static_cast<std::size_t>(rowBytes));
  }
  return file;
}

TEST_F(ImageLibFormats, EveryKindOfBmpGivesItsStoredColours) {
  constexpr BmpRow kRows[] = {
      {"Palette", 8, false, false},       {"PaletteTopDown", 8, true, false},
      {"Colour24", 24, false, false},     {"Colour24TopDown", 24, true, false},
      {"Colour32", 32, false, false},     {"Colour32TopDown", 32, true, false},
      {"Colour32Masks", 32, false, true},
  };
  for (const BmpRow& row : kRows) {
    FileBytes file = MakeBmp(row);
    WriteFileBytes(folder_.Path("a.bmp"), file);
    EXPECT_EQ(LoadPicture(folder_.Path("a.bmp")), (Picture{3, 2, kColours})) << row.name;
    file.pop_back();
    WriteFileBytes(folder_.Path("a.bmp"), file);
    EXPECT_FALSE(LoadPicture(folder_.Path("a.bmp"))) << row.name << " without its last byte";
  }
}

}  // namespace
