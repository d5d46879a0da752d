#include "tools/text_check.h"

#include <algorithm>

#include "files/file_class.h"

namespace {

constexpr char kCtrlZ = 0x1A;

size_t LineOf(std::string_view bytes, size_t at) {
  return static_cast<size_t>(
             std::count(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(at), '\n')) +
         1;
}

// The position of the first byte of a text that is not UTF-8, npos for none.
size_t FirstStray(std::string_view text) {
  const auto byte = [text](size_t i) { return static_cast<uint8_t>(text[i]); };
  for (size_t i = 0; i < text.size();) {
    const uint8_t lead = byte(i);
    const size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 0 || lead > 0xF4 || length > text.size() - i) return i;
    for (size_t k = 1; k < length; ++k) {
      if (byte(i + k) >> 6 != 2) return i;
    }
    // Longer than need be, half of a surrogate pair, or past the last character.
    const uint8_t second = length > 2 ? byte(i + 1) : 0xA0;
    if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
        (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F)) {
      return i;
    }
    i += length;
  }
  return std::string_view::npos;
}

std::string InLine(std::string_view bytes, size_t at, const char* what) {
  return "line " + std::to_string(LineOf(bytes, at)) + " " + what;
}

}  // namespace

bool ReadBytes(const std::string& path, std::string& bytes) {
  FileClass file(path.c_str());
  if (!file.Open(0)) return false;
  bytes.resize(file.GetSize());
  return bytes.empty() || file.Read(bytes.data(), static_cast<uint32_t>(bytes.size()));
}

bool IsUtf8(std::string_view text) { return FirstStray(text) == std::string_view::npos; }

bool CheckEncoding(const char* file, std::string_view bytes, Findings& findings) {
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
    findings.Error(file, "is UTF-16; the editor reads UTF-8");
    return false;
  }
  if (bytes.starts_with("\xEF\xBB\xBF")) {
    findings.Warn(file, "begins with a byte order mark, which counts as a part of its first line");
  }
  if (const size_t stray = FirstStray(bytes); stray != std::string_view::npos) {
    findings.Error(file, InLine(bytes, stray, "is not UTF-8: the editor shows other characters"));
  }
  if (const size_t zero = bytes.find('\0'); zero != std::string_view::npos) {
    findings.Error(file, InLine(bytes, zero, "has a zero byte, which hides the rest of the line"));
  }
  const size_t end = bytes.find(kCtrlZ);
  if (bytes.find_first_not_of("\r\n\x1A", std::min(end, bytes.size())) != std::string_view::npos) {
    findings.Error(file, InLine(bytes, end, "has a byte 1A (Ctrl+Z), which ends the text"));
  }
  return true;
}
