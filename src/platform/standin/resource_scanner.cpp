#include "platform/standin/resource_scanner.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

#include "platform/standin/failure.h"

namespace standin {
namespace {

bool IsWordCharacter(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) || letter == '_';
}

}  // namespace

ResourceScanner::ResourceScanner(const std::string& script) : script_(script) { Advance(); }

Token ResourceScanner::Take() {
  Token token = current_;
  Advance();
  return token;
}

bool ResourceScanner::At(size_t offset, const char* characters) const {
  const size_t place = position_ + offset;
  return place < script_.size() && std::strchr(characters, script_[place]) != nullptr;
}

void ResourceScanner::SkipSpace() {
  while (At(0, " \t\r\n")) {
    if (script_[position_++] == '\n') ++line_;
  }
}

// A doubled quote stands for one; of the escapes, those for a line break and a backslash are known.
std::string ResourceScanner::ReadText() {
  std::string text;
  for (++position_; position_ < script_.size() && script_[position_] != '\n'; ++position_) {
    char letter = script_[position_];
    if (letter == '"') {
      if (!At(1, "\"")) {
        ++position_;
        return text;
      }
      ++position_;
    } else if (letter == '\\') {
      if (!At(1, "n\\")) break;
      letter = script_[++position_] == 'n' ? '\n' : '\\';
    }
    text += letter;
  }
  Unsupported("resource script, line " + std::to_string(line_) + ": a text does not end");
}

void ResourceScanner::Advance() {
  SkipSpace();
  current_ = {};
  current_.line = line_;
  if (position_ >= script_.size()) return;
  const size_t start = position_;
  const char first = script_[start];
  if (first == '"') {
    current_.kind = Token::Kind::Text;
    current_.text = ReadText();
    return;
  }
  if (!IsWordCharacter(first)) {
    current_.kind = Token::Kind::Sign;
    current_.text = first;
    ++position_;
    return;
  }
  while (position_ < script_.size() && IsWordCharacter(script_[position_])) ++position_;
  current_.text = script_.substr(start, position_ - start);
  current_.kind = Token::Kind::Word;
  if (!std::isdigit(static_cast<unsigned char>(first))) return;
  char* end = nullptr;
  current_.kind = Token::Kind::Number;
  current_.number = std::strtol(current_.text.c_str(), &end, 0);
  if (*end && std::strcmp(end, "L") != 0)
    Unsupported("resource script, line " + std::to_string(line_) + ": number " + current_.text);
}

}  // namespace standin
