#include "document/load_screen_doc.h"

#include <gtest/gtest.h>

#include "document/shell_calls.h"
#include "support/editor_fixture.h"

namespace {

using DocumentTest = EditorFixture;

TEST_F(DocumentTest, SideAndIconCountChooseTheTemplatesOnly) {
  const struct {
    int side, count;
    const char* status;
  } steps[] = {{Soviet, 3, "Soviet - 3"}, {Yuri, 3, "Yuri - 3"},     {Yuri, 2, "Yuri - 2"},
               {Soviet, 2, "Soviet - 2"}, {Allied, 3, "Allied - 3"}, {Allied, 2, "Allied - 2"}};
  doc.worldMapX = 50;
  for (ImageClass& icon : doc.icons) icon = PlainPicture(76, 60, 7);
  doc.screenshot = PlainPicture(234, 232, 8);
  for (const auto& step : steps) {
    SCOPED_TRACE(step.status);
    SetSide(step.side);
    SetIconCount(step.count);
    EXPECT_EQ(step.status, StatusText(0));
    EXPECT_EQ(WorldMapPixel(step.side, 849, 519), CanvasPixel(799, 519)) << "shown at once";
    EXPECT_EQ(OverlayPixel(step.side, step.count, 240, 370), CanvasPixel(240, 370));
    EXPECT_EQ(step.count == 3, CanvasPixel(519, 439) == 7) << "the third icon stays loaded";
    EXPECT_EQ(8U, CanvasPixel(775, 498)) << "so does the screenshot";
  }
  for (const int none : {1, 4}) SetIconCount(none);
  EXPECT_EQ(2, doc.iconCount);
  EXPECT_STREQ("Yuri", SideName(7));
}

}  // namespace
