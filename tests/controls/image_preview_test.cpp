#include "controls/image_preview.h"

#include <gtest/gtest.h>

TEST(FitPreviewTest, FitsAndCentres) {
  const struct {
    const char* name;
    int32_t controlWidth, controlHeight, width, height;
    PreviewPlacement place;
  } cases[] = {{"smaller", 300, 251, 234, 232, {33, 9, 234, 232}},
               {"just as large", 200, 180, 200, 180, {0, 0, 200, 180}},
               {"too wide", 200, 180, 400, 100, {0, 65, 200, 50}},
               {"too high", 200, 180, 100, 400, {77, 0, 45, 180}},
               {"wide, but higher than the control", 200, 100, 201, 150, {33, 0, 134, 100}},
               {"thin line vanishes", 200, 180, 16384, 1, {0, 90, 200, 0}}};
  for (const auto& test : cases) {
    const PreviewPlacement place =
        FitPreview(test.controlWidth, test.controlHeight, test.width, test.height);
    EXPECT_EQ(std::pair(test.place.x, test.place.y), std::pair(place.x, place.y)) << test.name;
    EXPECT_EQ(std::pair(test.place.width, test.place.height), std::pair(place.width, place.height))
        << test.name;
  }
}
