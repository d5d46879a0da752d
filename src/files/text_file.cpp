#include "files/text_file.h"

#include <algorithm>
#include <memory>

#include "platform/win32.h"

namespace {

constexpr char kCtrlZ = 0x1A;

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

bool ReadAll(HANDLE file, std::string& text) {
  char block[65536];
  for (DWORD read = 0; ReadFile(file, block, sizeof block, &read, nullptr);) {
    if (read == 0) return true;
    text.append(block, read);
  }
  return false;
}

}  // namespace

bool ReadTextFile(const char* path, std::string& text) {
  text.clear();
  // Whoever has the file open in an editor of text must still be able to use it here.
  const HANDLE handle = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const std::unique_ptr<void, HandleCloser> file(handle);
  if (!ReadAll(file.get(), text)) {
    text.clear();
    return false;
  }
  TranslateTextMode(text);
  return true;
}

void TranslateTextMode(std::string& text) {
  text.resize(std::min(text.find(kCtrlZ), text.size()));
  auto to = text.begin();
  for (auto from = text.begin(); from != text.end(); ++from) {
    const bool startsLineEnd = *from == '\r' && from + 1 != text.end() && from[1] == '\n';
    if (!startsLineEnd) *to++ = *from;
  }
  text.erase(to, text.end());
}

bool LinePieces::Next(std::string_view& piece) {
  if (rest.empty()) return false;
  const size_t lineFeed = rest.substr(0, longest).find('\n');
  const size_t length =
      lineFeed == std::string_view::npos ? std::min(longest, rest.size()) : lineFeed + 1;
  piece = rest.substr(0, lineFeed == std::string_view::npos ? length : lineFeed);
  piece = piece.substr(0, piece.find('\0'));
  rest.remove_prefix(length);
  return true;
}
