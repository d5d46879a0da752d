#include <gtest/gtest.h>

#include <filesystem>

#include "document/load_screen_doc.h"
#include "e2e/dialogs.h"
#include "e2e/editor.h"
#include "e2e/input.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "resources/resource.h"
#include "support/picture_difference.h"
#include "support/temp_folder.h"

namespace fs = std::filesystem;

namespace {

constexpr char kCloseQuestion[] = "Do you want to close Corvanta now?\nAll data won't be saved!";

// A copy of the editor that lacks one of its templates.
void CopyEditorWithout(const std::string& name, const TempFolder& folder) {
  for (const char* file : {"Corvanta.exe", "ImageLib.dll", "Settings.ini"}) {
    fs::copy(fs::u8path(EditorFile(file)), fs::u8path(folder.Path(file)));
  }
  fs::copy(fs::u8path(EditorFile("Templates")), fs::u8path(folder.Path("Templates")));
  fs::remove(fs::u8path(folder.Path("Templates\\" + name)));
}

}  // namespace

TEST(CloseTest, AsksAndEndsOnlyOnYes) {
  Editor editor;
  editor.Start();
  const ImageClass start = editor.ShownPicture();
  editor.Menu("View", "View top layer");
  WaitUntil("the top layer to go",
            [&] { return !Difference(start, editor.ShownPicture()).empty(); });
  const ImageClass before = editor.ShownPicture();
  editor.MenuWithKeys("File", "Exit");
  AnswerBox(editor, "Corvanta", kCloseQuestion, IDNO, "close-question");
  editor.Main().BringToFront();
  EXPECT_TRUE(editor.IsRunning());
  WaitUntil("the picture to stand as before",
            [&] { return Difference(before, editor.ShownPicture()).empty(); });

  {
    const HeldKeys alt = {VK_MENU};
    TapKey(VK_F4);
  }
  AnswerBox(editor, "Corvanta", kCloseQuestion, IDYES, "close-question");
  EXPECT_EQ(editor.WaitForExit(), 0u);
}

TEST(AboutTest, ShowsTheReadme) {
  Editor editor;
  editor.Start();
  editor.Menu("Help", "About");
  const Window about = editor.Dialog("About Corvanta", "about");
  EXPECT_EQ(about.Text(IDC_ABOUT_TITLE), "Corvanta 1.1");
  EXPECT_FALSE(about.Text(IDC_ABOUT_README).empty());
  about.PressAndClose(IDCANCEL);
}

TEST(MissingTemplateTest, IsToldAndEndsTheEditor) {
  const struct {
    const char *name, *file, *caption, *text;
  } cases[] = {
      {"Fixed", "com_worldmap2x.png", "Corvanta", "Error: Can't find com_worldmap2x.PNG file."},
      {"WorldMap", "all_worldmap.png", "Error", "Can't find file!"},
      {"Overlay", "all_2icomain.png", "Error", "Can't find file!"},
  };
  for (const auto& missing : cases) {
    const TempFolder folder;
    CopyEditorWithout(missing.file, folder);
    Editor editor(folder.Path("Corvanta.exe"));
    editor.Launch();
    AnswerBox(editor, missing.caption, missing.text, IDOK, std::string("missing-") + missing.name);
    EXPECT_EQ(editor.WaitForExit(), 0u);
  }
}
