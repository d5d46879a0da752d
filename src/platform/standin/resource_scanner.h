// Splits a resource script into words, numbers, texts and signs.
#pragma once

#include <string>

namespace standin {

struct Token {
  enum class Kind { Word, Number, Text, Sign, End };
  Kind kind = Kind::End;
  std::string text;  // the word, the sign, or the text without its quotes and escapes
  long number = 0;
  int line = 0;
};

class ResourceScanner {
 public:
  explicit ResourceScanner(const std::string& script);

  const Token& Current() const { return current_; }
  // Hands the current token over and reads the next one.
  Token Take();

 private:
  void Advance();
  void SkipSpace();
  std::string ReadText();
  bool At(size_t offset, const char* characters) const;

  const std::string& script_;
  size_t position_ = 0;
  int line_ = 1;
  Token current_;
};

}  // namespace standin
