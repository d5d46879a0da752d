#include <iterator>

#include "imagelib/container.h"

namespace imagelib {
namespace {

constexpr std::uint32_t kWidth = 256;
constexpr std::uint32_t kHeight = 257;
constexpr std::uint32_t kStripOffsets = 273;
constexpr std::uint32_t kStripLengths = 279;
constexpr std::uint32_t kTileOffsets = 324;
constexpr std::uint32_t kTileLengths = 325;

// One field of a directory: a list of unsigned numbers of 2 or 4 bytes.
struct Field {
  std::size_t at = 0;
  std::uint32_t count = 0;
  std::uint32_t bytesEach = 0;
};

// Byte table: order "II" or "MM", 42 in 2 bytes, offset of the first directory 4. A directory is
// its number of fields 2, then fields of 12 bytes: tag 2, type 2 (3: 16-bit, 4: 32-bit), count 4,
// and the values themselves where they fit into 4 bytes, otherwise their offset.
class TiffFile {
 public:
  explicit TiffFile(ByteView file) : file_(file), bigEndian_(Read8(file, 0) == 'M') {}

  // Whether the file holds the first directory and the values of all its fields.
  bool HoldsDirectory() const {
    const std::size_t directory = Number(4, 4);
    const std::uint32_t fields = Number(directory, 2);
    // The offset of a next directory follows the fields.
    if (directory + 2 + std::size_t{12} * fields + 4 > file_.size()) return false;
    for (std::uint32_t i = 0; i < fields; ++i) {
      const std::size_t at = directory + 2 + std::size_t{12} * i;
      const std::uint64_t bytes = std::uint64_t{Number(at + 4, 4)} * TypeBytes(Number(at + 2, 2));
      if (bytes > 4 && Number(at + 8, 4) + bytes > file_.size()) return false;
    }
    return true;
  }

  // An absent, unusable or cut-off field has a count of 0.
  Field Find(std::uint32_t tag) const {
    const std::size_t directory = Number(4, 4);
    const std::uint32_t fields = Number(directory, 2);
    for (std::uint32_t i = 0; i < fields; ++i) {
      const std::size_t at = directory + 2 + std::size_t{12} * i;
      if (at >= file_.size()) break;
      if (Number(at, 2) == tag) return FieldAt(at);
    }
    return {};
  }

  // Value `index` of a field; 0 past its last.
  std::uint32_t Value(const Field& field, std::uint32_t index) const {
    if (index >= field.count) return 0;
    return Number(field.at + std::size_t{field.bytesEach} * index, field.bytesEach);
  }

  // Whether the file holds all strips or tiles; lengths may be missing in old files.
  bool HoldsData(const Field& offsets, const Field& lengths) const {
    for (std::uint32_t i = 0; i < offsets.count; ++i) {
      const std::uint64_t offset = Value(offsets, i);
      if (offset >= file_.size() || offset + Value(lengths, i) > file_.size()) return false;
    }
    return offsets.count > 0;
  }

 private:
  std::uint32_t Number(std::size_t at, std::uint32_t bytes) const {
    if (bytes == 2) return bigEndian_ ? Read16Be(file_, at) : Read16Le(file_, at);
    return bigEndian_ ? Read32Be(file_, at) : Read32Le(file_, at);
  }

  // Bytes of one value of a field's type, 0 for types from later on.
  static std::uint32_t TypeBytes(std::uint32_t type) {
    constexpr std::uint32_t kBytes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
    return type < std::size(kBytes) ? kBytes[type] : 0;
  }

  Field FieldAt(std::size_t at) const {
    const std::uint32_t type = Number(at + 2, 2);
    Field field;
    field.bytesEach = TypeBytes(type);
    const std::uint64_t count = Number(at + 4, 4);
    const std::uint64_t bytes = count * field.bytesEach;
    field.at = bytes <= 4 ? at + 8 : Number(at + 8, 4);
    if ((type != 3 && type != 4) || field.at + bytes > file_.size()) return {};
    field.count = static_cast<std::uint32_t>(count);
    return field;
  }

  ByteView file_;
  bool bigEndian_;
};

}  // namespace

std::optional<RawSize> WalkTiff(ByteView file) {
  const TiffFile tiff(file);
  if (!tiff.HoldsDirectory()) return std::nullopt;
  const bool complete = tiff.HoldsData(tiff.Find(kStripOffsets), tiff.Find(kStripLengths)) ||
                        tiff.HoldsData(tiff.Find(kTileOffsets), tiff.Find(kTileLengths));
  if (!complete) return std::nullopt;
  return RawSize{tiff.Value(tiff.Find(kWidth), 0), tiff.Value(tiff.Find(kHeight), 0)};
}

}  // namespace imagelib
