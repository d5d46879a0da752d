#include "settings/catalogue.h"

#include <gtest/gtest.h>

namespace {

constexpr LeadingSpaces kKeep = LeadingSpaces::kKeep, kSkip = LeadingSpaces::kSkip;

TEST(CatalogueTest, ValuesAreSplitAtCommas) {
  const struct {
    const char *name, *value;
    LeadingSpaces spaces;
    const char* entry;  // "text|file name", or "" for none
  } rows[] = {{"TwoPieces", "Flag,flag.png", kKeep, "Flag|flag.png"},
              {"RunsOfCommas", ",,Flag,,,flag.png", kKeep, "Flag|flag.png"},
              {"MorePieces", "Flag,flag.png,x,y", kKeep, "Flag|flag.png"},
              {"SpacesKept", " Flag ,  flag.png ", kKeep, " Flag |  flag.png "},
              {"SpacesSkipped", " Flag ,  flag.png ", kSkip, " Flag |flag.png "},
              {"OnlySpacesKept", "Flag, ", kKeep, "Flag| "},
              {"OnlySpacesSkipped", "Flag, ", kSkip, ""},
              {"OnePiece", ",Flag,", kKeep, ""},
              {"OnlyCommas", ",,,", kSkip, ""}};
  for (const auto& row : rows) {
    const auto entry = SplitCatalogueEntry(row.value, row.spaces);
    EXPECT_EQ(row.entry, entry ? entry->text + "|" + entry->fileName : "") << row.name;
  }
}

}  // namespace
