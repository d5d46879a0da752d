#include "platform/standin/resource_scanner.h"

#include <algorithm>
#include <cctype>

#include "platform/standin/failure.h"

namespace standin {
namespace {

bool IsWordCharacter(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) || letter == '_';
}

// Reads a text from behind its first quote to behind its last one. A doubled quote stands for one;
// of the escapes, those for a line break and a backslash are known.
std::string ReadText(const std::string& script, size_t& place, int line) {
  std::string text;
  for (; place < script.size() && script[place] != '\n'; ++place) {
    const char next = place + 1 < script.size() ? script[place + 1] : '\0';
    if (script[place] == '"' && next != '"') return ++place, text;
    const bool escaped = script[place] == '\\';
    if (escaped && next != 'n' && next != '\\') break;
    if (escaped || script[place] == '"') ++place;
    text += escaped && next == 'n' ? '\n' : script[place];
  }
  Unsupported("resource script, line " + std::to_string(line) + ": a text does not end");
}

}  // namespace

std::vector<Token> ScanResources(const std::string& script) {
  std::vector<Token> tokens;
  int line = 1;
  for (size_t place = 0; place < script.size();) {
    const char first = script[place];
    if (std::isspace(static_cast<unsigned char>(first))) {
      line += first == '\n' ? 1 : 0;
      ++place;
    } else if (first == '"') {
      tokens.push_back({Token::Kind::Text, ReadText(script, ++place, line), line});
    } else if (IsWordCharacter(first)) {
      const auto begin = script.begin() + static_cast<std::ptrdiff_t>(place);
      const std::string word(begin, std::find_if_not(begin, script.end(), IsWordCharacter));
      const bool digit = std::isdigit(static_cast<unsigned char>(first));
      tokens.push_back({digit ? Token::Kind::Number : Token::Kind::Word, word, line});
      place += word.size();
    } else {
      tokens.push_back({Token::Kind::Sign, {first}, line});
      ++place;
    }
  }
  tokens.push_back({Token::Kind::End, "", line});
  return tokens;
}

}  // namespace standin
