#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32.h"

// The picture catalogues of "Settings.ini": each value of a catalogue's section is a text to show
// and the name of a picture in the Templates folder, with a comma between them.

struct CatalogueEntry {
  std::string text;
  std::string fileName;
};

// What becomes of spaces between the comma and the file name.
enum class LeadingSpaces { kKeep, kSkip };

// Splits a value at its commas, of which a run counts as one. What follows the second piece is
// ignored. Nothing for fewer than two pieces.
std::optional<CatalogueEntry> SplitCatalogueEntry(std::string_view value, LeadingSpaces spaces);

// Makes the application folder the current one, where it stays, and reads the section of its
// "Settings.ini", without the values that are no entries. Nothing, after a message owned by the
// dialog, when the file or the section is missing.
std::optional<std::vector<CatalogueEntry>> ReadCatalogue(HWND dialog, const char* section,
                                                         LeadingSpaces spaces);
