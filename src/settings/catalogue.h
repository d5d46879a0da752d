#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The picture catalogues of "Settings.ini": each value of a catalogue's section is a text to show
// and the name of a picture in the Templates folder, with a comma between them.

// How much of a value is read, in bytes.
inline constexpr size_t kLongestCatalogueValue = 255;

struct CatalogueEntry {
  std::string text;
  std::string fileName;
};

// What becomes of spaces between the comma and the file name.
enum class LeadingSpaces { kKeep, kSkip };

// Splits a value at its commas, of which a run counts as one. What follows the second piece is
// ignored. Nothing for fewer than two pieces.
std::optional<CatalogueEntry> SplitCatalogueEntry(std::string_view value, LeadingSpaces spaces);

// Reads the section of a settings file into `entries`, without the values that are no entries.
// Null, or the message to show, with no entries, when the file or the section is missing.
const char* ReadCatalogue(const char* path, const char* section, LeadingSpaces spaces,
                          std::vector<CatalogueEntry>& entries);
