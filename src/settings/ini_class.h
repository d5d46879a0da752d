#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a line of a settings file says, nothing cut yet.
struct IniLine {
  std::string_view text;                   // without its comment and the spaces at its ends
  size_t equals = std::string_view::npos;  // where key and value part; npos for no key line

  bool IsKeyLine() const { return equals != std::string_view::npos; }
  // Whether the text is a name in brackets.
  bool IsHeader() const { return !text.empty() && text.front() == '[' && text.back() == ']'; }
};

// The name in a header's brackets.
std::string_view SectionName(std::string_view header);

// Reads one line without its line feed. A header that holds an '=' is a key line too.
IniLine ParseIniLine(std::string_view line);

// A section of a settings file: its key/value pairs in file order, repeated keys included.
struct IniSection {
  std::string name;  // at most IniClass::kLongestSectionName characters
  std::vector<std::pair<std::string, std::string>> pairs;
  std::vector<size_t> firsts;  // the first pair of each key, in the order of the keys

  void Add(std::string_view key, std::string_view value);
  // The value of the first key of that name, null for none.
  const std::string* Find(std::string_view key) const;

 private:
  std::vector<size_t>::const_iterator PlaceOf(std::string_view key) const;
};

// Reader of a plain text settings file: sections in brackets, "key=value" lines below them,
// comments from ';' to the end of a line. The whole file is held in memory; nothing is ever
// written. Names match byte for byte, and the first match in file order wins.
//
//   line           at most 4094 characters including its end; the rest is the next line
//   section name   at most 63 characters, the rest is cut off
//   key            at most 64 characters, the rest is cut off
//   value          no limit of its own
//
// A line with more than one '=', or with '=' at either end, is no key line. No line is an error.
class IniClass {
 public:
  static constexpr size_t kLongestPiece = 4094;
  static constexpr size_t kLongestSectionName = 63;
  static constexpr size_t kLongestKey = 64;

  IniClass() = default;
  explicit IniClass(const char* path) { SetFileName(path); }
  IniClass(const IniClass&) = delete;
  IniClass& operator=(const IniClass&) = delete;

  // Names the file for the next Load; what is loaded stays. A path of MAX_PATH characters or more
  // is refused: false, and no file is named any more.
  bool SetFileName(const char* path);

  // Replaces the content by the file's. False, with no content, when it can't be opened or read.
  bool Load();

  // Forgets the content but not the file name.
  void Clear() { sections.clear(); }
  // Forgets both.
  void Reset();

  bool SectionExists(std::string_view section) const { return FindSection(section) != nullptr; }
  // 0 for an unknown section.
  int GetKeyCount(std::string_view section) const;
  // Null for an unknown section or an index outside it. Valid until the content changes.
  const char* GetKeyName(std::string_view section, int index) const;

  // Writes the value's first n characters, filled up with zeros, and a zero behind them: n + 1
  // bytes. False, with the buffer untouched, when there is no such key or n is negative.
  bool GetString(std::string_view section, std::string_view key, char* output, int n) const;
  // Whether the value is "yes" or "true" in either case; the default when there is no such key.
  bool GetBool(std::string_view section, std::string_view key, bool whenMissing) const;
  // The value's leading decimal number, 0 without digits, limited to the range of int.
  int GetInt(std::string_view section, std::string_view key, int whenMissing) const;

  int GetSectionCount() const;
  // Null for an index outside the list. Valid until the content changes.
  const char* GetSectionName(int index) const;

 private:
  const IniSection* FindSection(std::string_view section) const;
  const std::string* FindValue(std::string_view section, std::string_view key) const;
  void ParseLine(std::string_view line);

  std::vector<IniSection> sections;  // key lines go to the last
  std::string fileName;
  bool hasName = false;
};
