#include "e2e/load_screen_plans.h"

#include "resources/resource.h"

namespace {

constexpr int kBlue = IDC_ADD_ALLIED, kRed = IDC_ADD_SOVIET, kViolet = IDC_ADD_YURI;

}  // namespace

const std::vector<Plan>& LoadScreenPlans() {
  static const std::vector<Plan> plans = {Plan{"Allied",
                                               "all",
                                               IDC_SETTINGS_ALLIED,
                                               IDC_SETTINGS_THREE,
                                               {"cruiser", "skimmer", "strike_jet"},
                                               "battlefield2.png",
                                               {52, 39},
                                               IDC_SHOT_RED,
                                               VK_RIGHT,
                                               {{"Move small map", VK_LEFT, 44},
                                                {"Move small map", VK_DOWN, 14},
                                                {"Move large map", VK_LEFT, 87},
                                                {"Move large map", VK_DOWN, 28}},
                                               {{"fleet", kBlue, {575, 80}},
                                                {"spearhead_left", kBlue, {520, 125}},
                                                {"submarine", kBlue, {400, 125}},
                                                {"infantry", kRed, {470, 210}},
                                                {"radar", kRed, {560, 235}},
                                                {"arrow_down_left", kBlue, {300, 106}}}},
                                          Plan{"Soviet",
                                               "sov",
                                               IDC_SETTINGS_SOVIET,
                                               IDC_SETTINGS_THREE,
                                               {"heavytank", "bomber", "radar_dome"},
                                               "battlefield1.png",
                                               {58, 52},
                                               IDC_SHOT_BLUE,
                                               VK_RIGHT,
                                               {{"Move small map", VK_RIGHT, 11},
                                                {"Move small map", VK_UP, 5},
                                                {"Move large map", VK_RIGHT, 22},
                                                {"Move large map", VK_UP, 8}},
                                               {{"armour", kRed, {480, 140}},
                                                {"spearhead_left", kRed, {425, 195}},
                                                {"aircraft", kRed, {560, 260}},
                                                {"infantry", kBlue, {380, 200}},
                                                {"arrow_left", kRed, {190, 155}},
                                                {"flag", kBlue, {155, 160}}}},
                                          Plan{"Yuri",
                                               "psy",
                                               IDC_SETTINGS_YURI,
                                               IDC_SETTINGS_TWO,
                                               {"searchlight", "submarine"},
                                               "battlefield2.png",
                                               {69, 49},
                                               IDC_SHOT_GREEN,
                                               VK_LEFT,
                                               {{"Move small map", VK_RIGHT, 28},
                                                {"Move small map", VK_DOWN, 10},
                                                {"Move target box", VK_DOWN, 2},
                                                {"Move large map", VK_RIGHT, 56},
                                                {"Move large map", VK_DOWN, 24}},
                                               {{"base", kViolet, {480, 200}},
                                                {"radar", kViolet, {540, 120}},
                                                {"submarine", kViolet, {420, 290}},
                                                {"question", kBlue, {200, 250}}}}};
  return plans;
}
