#include "imagelib/picture_files.h"

namespace {

using ImageLibDamage = ImageLibTest;

std::vector<std::string> WrittenTypes() {
  std::vector<std::string> types = {"png", "bmp", "jpg"};
  if (Readable("tif")) types.push_back("tif");
  return types;
}

FileBytes SavedFile(const TempFolder& folder, const std::string& type) {
  const std::string path = folder.Path("whole." + type);
  EXPECT_NE(SavePicture(path, Gradient(5, 3)), 0);
  return ReadFileBytes(path);
}

void PutBigEndian(FileBytes* file, std::size_t at, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) {
    (*file)[at + static_cast<std::size_t>(i)] =
        static_cast<std::uint8_t>(value >> (8 * (bytes - 1 - i)));
  }
}

// By its size already: decoders differ in what they let pass, the walk through the file does not.
TEST_F(ImageLibDamage, EveryTruncationIsRefused) {
  ImageSize size{};
  for (const std::string& type : WrittenTypes()) {
    const FileBytes whole = SavedFile(folder_, type);
    const std::string path = folder_.Path("damaged." + type);
    for (std::size_t length = 0; length < whole.size(); ++length) {
      WriteFileBytes(path, FileBytes(whole.begin(), whole.begin() + static_cast<long>(length)));
      EXPECT_EQ(ImageGetSize(path.c_str(), &size), 0)
          << type << " cut to " << length << " of " << whole.size();
    }
    WriteFileBytes(path, whole);
    EXPECT_TRUE(LoadPicture(path)) << type;
  }
}

TEST_F(ImageLibDamage, FlippedBytesNeverCrashNorFillTheTopByte) {
  for (const std::string& type : WrittenTypes()) {
    const FileBytes whole = SavedFile(folder_, type);
    const std::string path = folder_.Path("damaged." + type);
    for (std::size_t at = 0; at < whole.size(); ++at) {
      for (const int mask : {0x01, 0x80, 0xFF}) {
        FileBytes damaged = whole;
        damaged[at] = static_cast<std::uint8_t>(damaged[at] ^ mask);
        WriteFileBytes(path, damaged);
        const std::optional<Picture> loaded = LoadPicture(path);
        if (!loaded) continue;
        const auto dirty = [](std::uint32_t pixel) { return pixel >> 24 != 0; };
        EXPECT_TRUE(std::none_of(loaded->pixels.begin(), loaded->pixels.end(), dirty))
            << type << " byte " << at << " mask " << mask;
      }
    }
  }
}

// The size is taken from the header alone, so a patched header shows the limit.
TEST_F(ImageLibDamage, SidesBeyondTheLimitAreRefused) {
  FileBytes png = SavedFile(folder_, "png");
  FileBytes jpeg = SavedFile(folder_, "jpg");
  const FileBytes frame = {0xFF, 0xC0};
  const auto found = std::search(jpeg.begin(), jpeg.end(), frame.begin(), frame.end());
  ASSERT_NE(found, jpeg.end());
  const auto jpegSize = static_cast<std::size_t>(found - jpeg.begin()) + 5;
  struct Row {
    std::uint32_t width;
    std::uint32_t height;
    int result;
  };
  for (const Row row : {Row{16384, 1, 1}, Row{16385, 1, 0}, Row{1, 16384, 1}, Row{1, 16385, 0},
                        Row{65535, 65535, 0}, Row{0, 1, 0}, Row{1, 0, 0}}) {
    SCOPED_TRACE(testing::Message() << row.width << "x" << row.height);
    PutBigEndian(&png, 16, row.width, 4);
    PutBigEndian(&png, 20, row.height, 4);
    PutBigEndian(&jpeg, jpegSize, row.height, 2);
    PutBigEndian(&jpeg, jpegSize + 2, row.width, 2);
    WriteFileBytes(folder_.Path("a.png"), png);
    WriteFileBytes(folder_.Path("a.jpg"), jpeg);
    ImageSize size{};
    EXPECT_EQ(ImageGetSize(folder_.Path("a.png").c_str(), &size) != 0, row.result != 0);
    EXPECT_EQ(ImageGetSize(folder_.Path("a.jpg").c_str(), &size) != 0, row.result != 0);
  }
}

TEST_F(ImageLibDamage, TinyFileCannotClaimAHugePicture) {
  FileBytes png = SavedFile(folder_, "png");
  PutBigEndian(&png, 16, 16384, 4);
  PutBigEndian(&png, 20, 16384, 4);
  WriteFileBytes(folder_.Path("a.png"), png);
  ImageSize size{};
  EXPECT_EQ(ImageGetSize(folder_.Path("a.png").c_str(), &size), 0);
}

TEST_F(ImageLibDamage, BytesAfterThePictureDoNoHarm) {
  for (const std::string& type : WrittenTypes()) {
    FileBytes file = SavedFile(folder_, type);
    const std::string path = folder_.Path("longer." + type);
    WriteFileBytes(path, file);
    const std::optional<Picture> picture = LoadPicture(path);
    file.insert(file.end(), 100, 0xEE);
    WriteFileBytes(path, file);
    EXPECT_TRUE(picture) << type;
    EXPECT_EQ(LoadPicture(path), picture) << type;
  }
}

}  // namespace
