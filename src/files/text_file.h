#pragma once

#include <string>
#include <string_view>

// Reading of a text file by the C runtime's rules for text mode, the same on every system: CR LF is
// one line feed, and a byte 0x1A (Ctrl+Z) ends the text.

// Reads a whole file, which others may have open meanwhile. False, with `text` empty, when it can't
// be opened or read.
bool ReadTextFile(const char* path, std::string& text);

// Applies the text mode's rules to a file's bytes.
void TranslateTextMode(std::string& text);

// Hands out a text line by line without the line feeds, a line longer than a piece in several
// pieces. The line feed counts to its line's length. A NUL hides the rest of its piece.
class LinePieces {
 public:
  // The text must outlive the pieces.
  LinePieces(std::string_view text, size_t longestPiece) : rest(text), longest(longestPiece) {}

  // The next piece, false at the end of the text.
  bool Next(std::string_view& piece);

 private:
  std::string_view rest;
  size_t longest;
};
