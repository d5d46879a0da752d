#include "settings/catalogue.h"

#include <gtest/gtest.h>

#include "support/file_content.h"
#include "support/temp_folder.h"

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

TEST(CatalogueTest, FirstCharactersOfAValueCount) {
  const TempFolder folder;
  WriteContent(folder.Path("s.ini"), "[s]\n1=none\n2=Flag," + std::string(300, 'n') + "\n");
  std::vector<CatalogueEntry> entries;
  EXPECT_STREQ(nullptr, ReadCatalogue(folder.Path("s.ini").c_str(), "s", kKeep, entries));
  ASSERT_EQ(1U, entries.size());
  EXPECT_EQ(std::string(250, 'n'), entries[0].fileName);
}

}  // namespace
