#include "settings/catalogue.h"

#include <algorithm>

#include "settings/ini_class.h"

namespace {

constexpr int kLongestValue = int{kLongestCatalogueValue};

// Takes the next piece off the front of the text; an empty one when only commas are left.
std::string_view TakePiece(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(','), text.size()));
  const std::string_view piece = text.substr(0, text.find(','));
  text.remove_prefix(piece.size());
  return piece;
}

}  // namespace

std::optional<CatalogueEntry> SplitCatalogueEntry(std::string_view value, LeadingSpaces spaces) {
  const std::string_view text = TakePiece(value);
  std::string_view fileName = TakePiece(value);
  if (spaces == LeadingSpaces::kSkip) {
    fileName.remove_prefix(std::min(fileName.find_first_not_of(' '), fileName.size()));
  }
  if (text.empty() || fileName.empty()) return std::nullopt;
  return CatalogueEntry{std::string(text), std::string(fileName)};
}

const char* ReadCatalogue(const char* path, const char* section, LeadingSpaces spaces,
                          std::vector<CatalogueEntry>& entries) {
  entries.clear();
  IniClass settings(path);
  if (!settings.Load()) return "Error: Can't find Settings.ini file in application directory!";
  if (!settings.SectionExists(section)) return "Error: File Settings.ini invalid!";
  const int count = settings.GetKeyCount(section);
  for (int i = 0; i < count; ++i) {
    char value[kLongestValue + 1];
    if (!settings.GetString(section, settings.GetKeyName(section, i), value, kLongestValue)) {
      continue;
    }
    if (auto entry = SplitCatalogueEntry(value, spaces)) entries.push_back(std::move(*entry));
  }
  return nullptr;
}
