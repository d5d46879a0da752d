#include "dialogs/catalogue.h"

#include <algorithm>

#include "document/load_screen_doc.h"
#include "settings/ini_class.h"

namespace {

constexpr int kLongestValue = 255;

// Takes the next piece off the front of the text; an empty one when only commas are left.
std::string_view TakePiece(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(','), text.size()));
  const std::string_view piece = text.substr(0, text.find(','));
  text.remove_prefix(piece.size());
  return piece;
}

void ShowError(HWND dialog, const char* text) {
  MessageBoxA(dialog, text, "Error", MB_OK | MB_ICONHAND);
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

std::optional<std::vector<CatalogueEntry>> ReadCatalogue(HWND dialog, const char* section,
                                                         LeadingSpaces spaces) {
  SetCurrentDirectoryA(doc.appDir);
  IniClass settings("Settings.ini");
  if (!settings.Load()) {
    ShowError(dialog, "Error: Can't find Settings.ini file in application directory!");
    return std::nullopt;
  }
  if (!settings.SectionExists(section)) {
    ShowError(dialog, "Error: File Settings.ini invalid!");
    return std::nullopt;
  }
  std::vector<CatalogueEntry> entries;
  const int count = settings.GetKeyCount(section);
  for (int i = 0; i < count; ++i) {
    char value[kLongestValue + 1];
    if (!settings.GetString(section, settings.GetKeyName(section, i), value, kLongestValue)) {
      continue;
    }
    if (auto entry = SplitCatalogueEntry(value, spaces)) entries.push_back(std::move(*entry));
  }
  return entries;
}
