#include "tools/sprite_file.h"

#include <algorithm>

namespace {

// A field with the values that it may have.
struct Field {
  const char* name;
  uint64_t offset;  // in the file
  uint32_t value, least, most;
};

std::string FieldFault(const Field& field) {
  std::string text = std::string("its ") + field.name + " (offset " + std::to_string(field.offset) +
                     ") is " + std::to_string(field.value) + ", but should be ";
  if (field.least != field.most) text += std::to_string(field.least) + " to ";
  return text + std::to_string(field.most);
}

template <size_t N>
std::string FirstFault(const Field (&fields)[N]) {
  for (const Field& field : fields) {
    if (field.value < field.least || field.value > field.most) return FieldFault(field);
  }
  return {};
}

std::string EndsWithin(const char* what, uint64_t size) {
  return std::string("it ends within its ") + what + ", after " + std::to_string(size) + " bytes";
}

std::string HeaderFault(const SHP2FILEHEADER& header) {
  return FirstFault({{"first field", 0, header.headerZero, 0, 0},
                     {"picture width", 2, header.imageWidth, 1, kLongestSide},
                     {"picture height", 4, header.imageHeight, 1, kLongestSide},
                     {"number of frames", 6, header.frameCount, 1, UINT16_MAX}});
}

// `start` is where the frame's record lies, `tableEnd` where the last one ends.
std::string FrameFault(const SpriteFrame& frame, uint32_t start, uint32_t tableEnd, uint32_t size) {
  const auto& [header, info, indices] = frame;
  std::string fault =
      FirstFault({{"frame x", start, info.frameX, 0, header.imageWidth - 1U},
                  {"frame y", start + 2, info.frameY, 0, header.imageHeight - 1U},
                  {"frame width", start + 4, info.frameWidth, 1,
                   static_cast<uint32_t>(std::max(header.imageWidth - info.frameX, 1))},
                  {"frame height", start + 6, info.frameHeight, 1,
                   static_cast<uint32_t>(std::max(header.imageHeight - info.frameY, 1))},
                  {"first reserved field", start + 8, info.reserved1, 0, 0},
                  {"second reserved field", start + 12, info.reserved2, 0, 0},
                  {"third reserved field", start + 16, info.reserved3, 0, 0}});
  if (!fault.empty()) return fault;
  const uint32_t area = uint32_t{info.frameWidth} * info.frameHeight;
  const uint64_t needed = uint64_t{tableEnd} + area;
  if (size < needed) return EndsWithin("indices", size);
  return FirstFault(
      {{"offset of the indices", start + 20, info.dataOffset, tableEnd, size - area}});
}

}  // namespace

std::string ReadSpriteFrame(const std::string& path, uint32_t index, SpriteFrame& frame) {
  FileClass file(path.c_str());
  if (!file.Open(0)) return "cannot be opened";
  const uint32_t size = file.GetSize();
  if (size > INT32_MAX) return "is larger than 2 gigabytes";
  if (!file.Read(&frame.header, sizeof frame.header)) return EndsWithin("header", size);
  if (std::string fault = HeaderFault(frame.header); !fault.empty()) return fault;
  const uint32_t count = frame.header.frameCount;
  if (index >= count) {
    return "has no frame " + std::to_string(index) + ": its last is " + std::to_string(count - 1);
  }
  const auto record = [](uint32_t i) {
    return static_cast<uint32_t>(sizeof(SHP2FILEHEADER) + i * sizeof(SHP2FRAMEINFO));
  };
  if (size < record(count)) return EndsWithin("frame records", size);
  file.Seek(static_cast<int32_t>(record(index)), 0);
  if (!file.Read(&frame.info, sizeof frame.info)) return "cannot be read";
  if (std::string fault = FrameFault(frame, record(index), record(count), size); !fault.empty()) {
    return fault;
  }
  frame.indices.resize(size_t{frame.info.frameWidth} * frame.info.frameHeight);
  file.Seek(static_cast<int32_t>(frame.info.dataOffset), 0);
  if (file.Read(frame.indices.data(), static_cast<uint32_t>(frame.indices.size()))) return {};
  return "cannot be read";
}

std::string ReadPalette(const std::string& path, ShpPalette& palette, std::string& doubt) {
  FileClass file(path.c_str());
  if (!file.Open(0)) return "cannot be opened";
  const uint32_t size = file.GetSize();
  uint8_t bytes[sizeof(ShpPalette)];
  if (!file.Read(bytes, sizeof bytes)) {
    return "has " + std::to_string(size) + " bytes; a palette has " + std::to_string(sizeof bytes);
  }
  file.Close();
  const auto high = std::find_if(std::begin(bytes), std::end(bytes),
                                 [](uint8_t component) { return component > 63; });
  if (high != std::end(bytes)) {
    doubt = "the byte at offset " + std::to_string(high - std::begin(bytes)) + " is " +
            std::to_string(*high) + ", but colours go from 0 to 63: their four-folds wrap";
  } else if (size > sizeof bytes) {
    doubt = "has " + std::to_string(size) + " bytes, of which only the first 768 count";
  }
  if (const FailedStep failed = ReadPalFile(path.c_str(), palette)) return failed;
  return {};
}
