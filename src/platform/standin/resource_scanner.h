// Splits a resource script into words, numbers, texts and signs.
#pragma once

#include <string>
#include <vector>

namespace standin {

struct Token {
  enum class Kind { Word, Number, Text, Sign, End };
  Kind kind = Kind::End;
  std::string text;  // the word, the sign, or the text without its quotes and escapes
  int line = 0;
};

// The last token is of the kind End.
std::vector<Token> ScanResources(const std::string& script);

}  // namespace standin
