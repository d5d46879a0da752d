#include "settings/ini_class.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "files/text_file.h"
#include "platform/win32.h"

namespace {

std::string_view TrimSpaces(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view WithoutComment(std::string_view line) { return line.substr(0, line.find(';')); }

bool EqualIgnoringCase(std::string_view text, std::string_view lowerCase) {
  const auto same = [](char a, char lower) {
    return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == lower;
  };
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(), same);
}

// How much of a value counts as a number or as yes and no.
constexpr size_t kLongestWord = 79;

}  // namespace

IniLine ParseIniLine(std::string_view line) {
  IniLine parsed;
  parsed.text = TrimSpaces(WithoutComment(line));
  const size_t equals = parsed.text.find('=');
  const bool one = equals == parsed.text.rfind('=');
  if (one && equals > 0 && equals + 1 < parsed.text.size()) parsed.equals = equals;
  return parsed;
}

std::string_view SectionName(std::string_view header) {
  return TrimSpaces(header.substr(1, header.size() - 2));
}

std::vector<size_t>::const_iterator IniSection::PlaceOf(std::string_view key) const {
  return std::lower_bound(
      firsts.begin(), firsts.end(), key,
      [this](size_t i, std::string_view wanted) { return pairs[i].first < wanted; });
}

const std::string* IniSection::Find(std::string_view key) const {
  const auto place = PlaceOf(key);
  return place != firsts.end() && pairs[*place].first == key ? &pairs[*place].second : nullptr;
}

void IniSection::Add(std::string_view key, std::string_view value) {
  if (!Find(key)) firsts.insert(PlaceOf(key), pairs.size());
  pairs.emplace_back(key, value);
}

bool IniClass::SetFileName(const char* path) {
  fileName = path;
  hasName = fileName.size() < MAX_PATH;
  if (!hasName) fileName.clear();
  return hasName;
}

bool IniClass::Load() {
  Clear();
  std::string text;
  if (!hasName || !ReadTextFile(fileName.c_str(), text)) return false;
  LinePieces pieces(text, kLongestPiece);
  for (std::string_view line; pieces.Next(line);) ParseLine(line);
  return true;
}

void IniClass::ParseLine(std::string_view text) {
  const IniLine line = ParseIniLine(text);
  if (line.IsHeader()) {
    sections.push_back(
        {std::string(SectionName(line.text).substr(0, kLongestSectionName)), {}, {}});
  }
  if (!line.IsKeyLine() || sections.empty()) return;
  sections.back().Add(line.text.substr(0, std::min(line.equals, kLongestKey)),
                      line.text.substr(line.equals + 1));
}

void IniClass::Reset() {
  fileName.clear();
  hasName = false;
  Clear();
}

const IniSection* IniClass::FindSection(std::string_view section) const {
  if (!hasName) return nullptr;
  for (const IniSection& candidate : sections) {
    if (candidate.name == section) return &candidate;
  }
  return nullptr;
}

const std::string* IniClass::FindValue(std::string_view section, std::string_view key) const {
  const IniSection* found = FindSection(section);
  return found ? found->Find(key) : nullptr;
}

int IniClass::GetKeyCount(std::string_view section) const {
  const IniSection* found = FindSection(section);
  return found ? static_cast<int>(found->pairs.size()) : 0;
}

const char* IniClass::GetKeyName(std::string_view section, int index) const {
  if (index < 0 || index >= GetKeyCount(section)) return nullptr;
  return FindSection(section)->pairs[static_cast<size_t>(index)].first.c_str();
}

bool IniClass::GetString(std::string_view section, std::string_view key, char* output,
                         int n) const {
  const std::string* value = FindValue(section, key);
  if (!value || n < 0) return false;
  const size_t copied = value->copy(output, static_cast<size_t>(n));
  std::fill(output + copied, output + n + 1, '\0');
  return true;
}

bool IniClass::GetBool(std::string_view section, std::string_view key, bool whenMissing) const {
  const std::string* value = FindValue(section, key);
  if (!value) return whenMissing;
  const std::string_view word = std::string_view(*value).substr(0, kLongestWord);
  return EqualIgnoringCase(word, "yes") || EqualIgnoringCase(word, "true");
}

int IniClass::GetInt(std::string_view section, std::string_view key, int whenMissing) const {
  const std::string* value = FindValue(section, key);
  if (!value) return whenMissing;
  const long long number = std::strtoll(value->substr(0, kLongestWord).c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(number, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

int IniClass::GetSectionCount() const { return hasName ? static_cast<int>(sections.size()) : 0; }

const char* IniClass::GetSectionName(int index) const {
  if (index < 0 || index >= GetSectionCount()) return nullptr;
  return sections[static_cast<size_t>(index)].name.c_str();
}
