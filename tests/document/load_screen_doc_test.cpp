#include "document/load_screen_doc.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "document/shell_calls.h"
#include "imagelib/imagelib.h"
#include "shell/main_window.h"
#include "support/editor_fixture.h"

namespace {

class DocumentTest : public EditorFixture {};

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
  EXPECT_STREQ("Yuri", SideName(7));
}

// An application folder in which the editor has not been started yet.
class TemplatesTest : public EditorFixture {
 protected:
  void SetUp() override { WriteDefaultTemplates(); }
};

TEST_F(TemplatesTest, MissingFixedTemplateStopsStartUpWithItsMessage) {
  const std::pair<const char*, const char*> templates[] = {
      {"com_largetargetbox.png", "Error: Can't find com_largetargetbox.png file."},
      {"com_smalltargetbox.png", "Error: Can't find com_smalltargetbox.png file."},
      {"com_worldmap2x.png", "Error: Can't find com_worldmap2x.PNG file."}};
  for (const auto& [name, message] : templates) {
    const std::string file = File(std::string("Templates/") + name);
    std::filesystem::rename(file, File("kept.png"));
    user.Answer("Corvanta", message, MB_ICONHAND, IDOK);
    EXPECT_FALSE(Start()) << name;
    EXPECT_EQ(nullptr, doc.mainWindow);
    std::filesystem::rename(File("kept.png"), file);
    FreeDocumentImages();
    doc.canvas.Free();
    ImageUnInit();
  }
  EXPECT_EQ(nullptr, FindWindowA(kMainClassName, nullptr));
}

}  // namespace
