#include <set>
#include <sstream>

#include "imagelib/picture_files.h"

// Kinds of files that the library itself never writes. make_pictures.py makes them, and the pixels
// that another decoder reads in them.
namespace {

using ImageLibFormats = ImageLibTest;

// What the library does not read natively. The system does, all but the two `kVarying`: it may
// refuse any order of masks, and have any colour for an index without an entry.
const std::set<std::string> kVarying = {"colour32_other_masks.bmp", "palette8_short.bmp"};
const std::set<std::string> kRefused = {"cmyk.jpg",         "colour16_555.bmp", "palette1.bmp",
                                        "colour16_565.bmp", "palette4.bmp",     "palette8_rle.bmp"};

// Rounding of 16 bits, and of what JPEG files keep.
int Tolerance(const std::string& name) {
  return name.ends_with(".jpg") ? 12 : name.find("16") != std::string::npos;
}

Picture NextPicture(std::istream& text) {
  Picture picture;
  for (std::string line; std::getline(text, line) && !line.empty();) {
    std::istringstream row(line);
    row >> std::hex;
    picture.emplace_back();
    for (std::uint32_t pixel = 0; row >> pixel;) picture.back().push_back(pixel);
  }
  return picture;
}

TEST_F(ImageLibFormats, OddKindsShowWhatAnotherDecoderReads) {
  const bool native = !Readable("gif");
  std::istringstream expected(ReadContent(CORVANTA_SOURCE "/tests/imagelib/expected.txt"));
  for (std::string name; std::getline(expected, name);) {
    const Picture picture = NextPicture(expected), loaded = LoadPicture(kPictures + name);
    if (kVarying.count(name) && !native) continue;
    const bool refused = native && (kVarying.count(name) || kRefused.count(name) ||
                                    name.ends_with("gif") || name.ends_with("tif"));
    if (refused || loaded.size() != picture.size()) {
      EXPECT_EQ(refused ? Picture() : picture, loaded) << name;
    } else {
      EXPECT_LE(Distance(picture, loaded), Tolerance(name)) << name;
    }
    if (!name.ends_with("png") && name.find("colour") == std::string::npos) continue;
    const std::string file = ReadContent(kPictures + name);
    WriteContent(path_, file.substr(0, file.size() - 1));
    EXPECT_EQ(Picture(), LoadPicture(path_)) << name << " without its last byte";
  }
}

}  // namespace
