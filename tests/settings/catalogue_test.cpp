#include "settings/catalogue.h"

#include <gtest/gtest.h>

#include "files/template_path.h"
#include "platform/win32.h"
#include "support/case_name.h"

namespace {

constexpr LeadingSpaces kKeep = LeadingSpaces::kKeep;
constexpr LeadingSpaces kSkip = LeadingSpaces::kSkip;

struct SplitCase {
  const char* name;
  const char* value;
  LeadingSpaces spaces;
  const char* entry;  // "text|file name", or "" for none
};

class CatalogueSplitTest : public testing::TestWithParam<SplitCase> {};

TEST_P(CatalogueSplitTest, SplitsAtCommas) {
  const auto entry = SplitCatalogueEntry(GetParam().value, GetParam().spaces);
  EXPECT_EQ(GetParam().entry, entry ? entry->text + "|" + entry->fileName : "");
}

INSTANTIATE_TEST_SUITE_P(
    Values, CatalogueSplitTest,
    testing::Values(SplitCase{"TwoPieces", "Flag,flag.png", kKeep, "Flag|flag.png"},
                    SplitCase{"RunOfCommas", "Flag,,,flag.png", kKeep, "Flag|flag.png"},
                    SplitCase{"CommasInFront", ",,Flag,flag.png", kKeep, "Flag|flag.png"},
                    SplitCase{"MorePieces", "Flag,flag.png,x,y", kKeep, "Flag|flag.png"},
                    SplitCase{"CommaBehind", "Flag,flag.png,", kKeep, "Flag|flag.png"},
                    SplitCase{"SpacesKept", " Flag ,  flag.png ", kKeep, " Flag |  flag.png "},
                    SplitCase{"SpacesSkipped", " Flag ,  flag.png ", kSkip, " Flag |flag.png "},
                    SplitCase{"OnlySpacesKept", "Flag, ", kKeep, "Flag| "},
                    SplitCase{"OnlySpacesSkipped", "Flag, ", kSkip, ""},
                    SplitCase{"OnePiece", "Flag", kKeep, ""},
                    SplitCase{"OnePieceBehindAComma", ",flag.png", kKeep, ""},
                    SplitCase{"OnlyCommas", ",,,", kSkip, ""}, SplitCase{"Nothing", "", kKeep, ""}),
    CaseName());

TEST(TemplatePathTest, PathsThatFitNoBufferAreEmpty) {
  EXPECT_EQ("C:\\x\\Templates\\a.png", TemplatePath("C:\\x\\", "a.png"));
  const std::string longest(MAX_PATH - 1 - 10, 'n');
  EXPECT_EQ("Templates\\" + longest, TemplatePath("", longest.c_str()));
  EXPECT_EQ("", TemplatePath("", (longest + "n").c_str()));
}

}  // namespace
