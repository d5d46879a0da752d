#include "document/load_screen_doc.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "document/shell_calls.h"
#include "imagelib/imagelib.h"
#include "shell/main_window.h"
#include "support/editor_fixture.h"

namespace {

TEST(LoadScreenDocTest, EverySideHasItsName) {
  EXPECT_STREQ("Allied", SideName(Allied));
  EXPECT_STREQ("Soviet", SideName(Soviet));
  EXPECT_STREQ("Yuri", SideName(Yuri));
  EXPECT_STREQ("Yuri", SideName(7));
}

class DocumentTest : public EditorFixture {
 protected:
  // The side and the icon count whose overlay is loaded: its one colour tells.
  static std::pair<int, int> LoadedOverlay() {
    for (int side = 0; side < 3; ++side) {
      for (int count = 2; count <= 3; ++count) {
        if (doc.sideOverlay.ReadPixel(300, 400) == OverlayPixel(side, count, 300, 400)) {
          return {side, count};
        }
      }
    }
    return {-1, -1};
  }
};

TEST_F(DocumentTest, SideAndIconCountChooseTheTemplates) {
  const struct {
    int side, count;
    const char* status;
  } cases[] = {{Soviet, 3, "Soviet - 3"}, {Yuri, 3, "Yuri - 3"},     {Yuri, 2, "Yuri - 2"},
               {Soviet, 2, "Soviet - 2"}, {Allied, 3, "Allied - 3"}, {Allied, 2, "Allied - 2"}};
  for (const auto& step : cases) {
    SetSide(step.side);
    SetIconCount(step.count);
    EXPECT_EQ(WorldMapPixel(step.side, 899, 599), doc.worldMap.ReadPixel(899, 599)) << step.status;
    EXPECT_EQ(std::pair(step.side, step.count), LoadedOverlay()) << step.status;
    EXPECT_EQ(step.status, StatusText(0));
    EXPECT_EQ(WorldMapPixel(step.side, 0, 0), CanvasPixel(0, 0)) << "shown at once";
    EXPECT_EQ(OverlayPixel(step.side, step.count, 240, 370), CanvasPixel(240, 370));
  }
}

TEST_F(DocumentTest, CurrentSideAndCountReloadNothing) {
  std::filesystem::remove_all(File("Templates"));
  SetStatusText(0, "untouched");
  doc.canvas.Fill(1);
  SetSide(Allied);
  SetIconCount(2);
  for (const int count : {-1, 0, 1, 4}) SetIconCount(count);
  EXPECT_EQ("untouched", StatusText(0));
  EXPECT_EQ(1U, CanvasPixel(0, 0)) << "no repaint";
  EXPECT_EQ(2, doc.iconCount);
}

TEST_F(DocumentTest, OtherSideKeepsOffsetsIconsAndScreenshot) {
  doc.worldMapX = 850;
  doc.worldMapY = 590;
  for (ImageClass& icon : doc.icons) icon = PlainPicture(76, 60, 7);
  doc.screenshot = PlainPicture(234, 232, 8);
  SetIconCount(3);
  SetSide(Soviet);
  SetIconCount(2);
  EXPECT_EQ(850, doc.worldMapX);
  EXPECT_EQ(590, doc.worldMapY);
  for (const ImageClass& icon : doc.icons) EXPECT_EQ(1, icon.valid);
  EXPECT_NE(7U, CanvasPixel(519, 439)) << "two icons";
  SetIconCount(3);
  EXPECT_EQ(7U, CanvasPixel(519, 439)) << "the third icon is still there";
  EXPECT_EQ(8U, CanvasPixel(775, 498));
}

// An application folder in which the editor has not been started yet.
class TemplatesTest : public EditorFixture {
 protected:
  void SetUp() override { WriteDefaultTemplates(); }

  // Another way to write the application folder, of exactly that length.
  void LengthenAppDir(size_t length) {
    std::string longer = doc.appDir;
    while (longer.size() + 1 < length) longer += ".\\";
    if (longer.size() < length) longer += "\\";
    ASSERT_EQ(length, longer.size());
    std::memcpy(doc.appDir, longer.c_str(), length + 1);
  }
};

struct FixedTemplate {
  const char* file;
  const char* message;
};

const FixedTemplate kFixedTemplates[] = {
    {"com_largetargetbox.png", "Error: Can't find com_largetargetbox.png file."},
    {"com_smalltargetbox.png", "Error: Can't find com_smalltargetbox.png file."},
    {"com_worldmap2x.png", "Error: Can't find com_worldmap2x.PNG file."},
};

TEST_F(TemplatesTest, MissingFixedTemplateStopsStartUpWithItsMessage) {
  for (const FixedTemplate& fixed : kFixedTemplates) {
    const std::string file = File(std::string("Templates/") + fixed.file);
    std::filesystem::rename(file, File("kept.png"));
    user.Answer("Corvanta", fixed.message, MB_ICONHAND, IDOK);
    EXPECT_FALSE(Start()) << fixed.file;
    EXPECT_EQ(nullptr, doc.mainWindow);
    EXPECT_EQ(0U, user.StepsLeft()) << fixed.file;
    std::filesystem::rename(File("kept.png"), file);
    FreeDocumentImages();
    doc.canvas.Free();
    ImageUnInit();
  }
  EXPECT_EQ(nullptr, FindWindowA(kMainClassName, nullptr));
}

// "Templates\com_largetargetbox.png" has 32 characters.
TEST_F(TemplatesTest, PathOf259CharactersIsLoaded) {
  LengthenAppDir(227);
  ASSERT_TRUE(Start());
  EXPECT_EQ(1, doc.worldMap2x.valid);
}

TEST_F(TemplatesTest, PathOf260CharactersCountsAsMissing) {
  LengthenAppDir(228);
  user.Answer("Corvanta", kFixedTemplates[0].message, MB_ICONHAND, IDOK);
  EXPECT_FALSE(Start());
}

// A side template that is missing ends the process after a message.
class SideTemplateDeathTest : public DocumentTest {
 protected:
  // Writes the message box to the standard error output, where the parent process looks for it, and
  // closes it.
  void ReportMessage() {
    user.When("Error", [](HWND box) {
      EnumChildWindows(
          box,
          [](HWND child, LPARAM) -> BOOL {
            std::cerr << '[' << Text(child) << ']' << std::endl;
            return TRUE;
          },
          0);
      Press(box, IDOK);
    });
  }
};

const auto kExitsNormally = testing::ExitedWithCode(0);
constexpr char kMessage[] = "\\[Can't find file!\\]";

TEST_F(SideTemplateDeathTest, MissingWorldMapEndsTheProcess) {
  std::filesystem::remove(File("Templates/sov_worldmap.png"));
  EXPECT_EXIT(
      {
        ReportMessage();
        SetSide(Soviet);
      },
      kExitsNormally, kMessage);
}

TEST_F(SideTemplateDeathTest, MissingOverlayEndsTheProcess) {
  std::filesystem::remove(File("Templates/all_3icomain.png"));
  EXPECT_EXIT(
      {
        ReportMessage();
        SetIconCount(3);
      },
      kExitsNormally, kMessage);
}

}  // namespace
