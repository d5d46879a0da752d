#include <algorithm>

#include "imagelib/picture_files.h"

namespace {

class ImageLibDamage : public ImageLibTest {
 protected:
  // Calls check(type, bytes of a whole file) for each type that the library reads.
  template <class Check>
  void ForEachType(Check check) {
    for (const std::string type : {"png", "bmp", "jpg", "tif"}) {
      if (Readable(type)) check(type, SavedFile(type));
    }
    if (Readable("gif")) check("gif", ReadContent(kPictures + std::string("tiny.gif")));
  }
  std::string SavedFile(const std::string& type) const {
    const std::string path = folder_.Path("whole." + type);
    EXPECT_NE(0, SavePicture(path, Gradient(5, 3)));
    return ReadContent(path);
  }
  int SizeOf(const std::string& file, ImageSize size = {}) const {
    WriteContent(path_, file);
    return ImageGetSize(path_.c_str(), &size);
  }
};

// By its size already: decoders differ in what they let pass, the walk through the file does not.
TEST_F(ImageLibDamage, EveryTruncationIsRefusedButMoreBytesDoNoHarm) {
  ForEachType([this](const std::string& type, const std::string& whole) {
    // A GIF file's last byte only says that nothing follows.
    for (std::size_t length = 0; length + (type == "gif") < whole.size(); ++length) {
      EXPECT_EQ(0, SizeOf(whole.substr(0, length))) << type << " of " << length << " bytes";
    }
    WriteContent(path_, whole);
    const Picture picture = LoadPicture(path_);
    EXPECT_FALSE(picture.empty()) << type;
    WriteContent(path_, whole + std::string(100, '\xEE'));
    EXPECT_EQ(picture, LoadPicture(path_)) << type;
  });
}

TEST_F(ImageLibDamage, FlippedBytesNeverCrashNorFillTheTopByte) {
  ForEachType([this](const std::string& type, const std::string& whole) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
      for (const int mask : {0x01, 0x80, 0xFF}) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ mask);
        WriteContent(path_, damaged);
        for (const auto& row : LoadPicture(path_)) {
          EXPECT_LE(*std::max_element(row.begin(), row.end()), 0xFFFFFFU)
              << type << " byte " << at << " mask " << mask;
        }
      }
    }
  });
}

std::string BigEndian(std::uint32_t value) {
  std::string bytes;
  for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(value >> shift);
  return bytes;
}

// The size is taken from the header alone, so a patched header shows the limit.
TEST_F(ImageLibDamage, SizesThatCannotBeTrueAreRefused) {
  std::string png = SavedFile("png"), jpeg = SavedFile("jpg");
  const std::size_t frame = jpeg.find("\xFF\xC0");
  ASSERT_NE(std::string::npos, frame);
  const struct {
    std::uint32_t width, height;
    int result;
  } rows[] = {{16384, 1, 1},     {16385, 1, 0}, {1, 16384, 1},     {1, 16385, 0},
              {65535, 65535, 0}, {0, 1, 0},     {16384, 16384, 0}, {1, 0, 0}};
  for (const auto& row : rows) {
    png.replace(16, 8, BigEndian(row.width) + BigEndian(row.height));
    jpeg.replace(frame + 5, 4, BigEndian(row.height << 16 | row.width));
    EXPECT_EQ(row.result, SizeOf(png)) << row.width << " x " << row.height;
    EXPECT_EQ(row.result, SizeOf(jpeg)) << row.width << " x " << row.height;
  }
}

TEST_F(ImageLibDamage, JpegWithoutItsWholeScanIsRefused) {
  const std::string jpeg = SavedFile("jpg"), end = "\xFF\xD9";
  EXPECT_EQ(0, SizeOf(jpeg.substr(0, jpeg.find("\xFF\xDA")) + end));
  WriteContent(path_, jpeg.substr(0, jpeg.size() - 6) + end);
  // The system's decoder fills such a gap with grey.
  EXPECT_TRUE(Readable("tif") || LoadPicture(path_).empty());
}

}  // namespace
