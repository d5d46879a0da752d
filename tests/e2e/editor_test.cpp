#include <gtest/gtest.h>

#include <filesystem>

#include "document/load_screen_doc.h"
#include "e2e/editor.h"
#include "e2e/exports.h"
#include "imaging/memory_dc.h"
#include "resources/resource.h"
#include "support/picture_difference.h"
#include "support/temp_folder.h"
#include "support/user.h"

namespace fs = std::filesystem;

namespace {

void OpenTheClipboard() {
  WaitUntil("the clipboard to open", [] { return OpenClipboard(nullptr) != 0; });
}

// Copies to the clipboard and takes from it what other programs get.
DIBClass CopyByClipboard(const Editor& editor) {
  OpenTheClipboard();
  EmptyClipboard();
  CloseClipboard();
  editor.Command(IDM_COPY);
  WaitUntil("a bitmap on the clipboard", [] { return IsClipboardFormatAvailable(CF_BITMAP) != 0; });
  OpenTheClipboard();
  const MemoryDc memory(nullptr, static_cast<HBITMAP>(GetClipboardData(CF_BITMAP)));
  DIBClass picture = CopyPixels(memory.get(), {0, 0, kPictureWidth, kPictureHeight});
  CloseClipboard();
  return picture;
}

}  // namespace

TEST(CoreTest, SavesTheSamePictureInEveryFormatAfterStartUp) {
  Editor editor;
  editor.WaitForPicture();
  Screenshot(editor.Main(), "main");
  EXPECT_EQ(editor.Status(), "Allied - 2");
  const ImageClass picture = SavePicture(editor, "start.png");
  EXPECT_EQ(Difference(editor.ShownPicture(), CopyByClipboard(editor)), "");
  ExportSprite(editor, "start", picture, 256, PaletteName::Chosen);
}

TEST(CloseTest, AsksAndEndsOnlyOnYes) {
  const std::string question = "Do you want to close Corvanta now?\nAll data won't be saved!";
  Editor editor;
  editor.WaitForPicture();
  editor.Command(IDM_VIEW_TOP_LAYER);
  const DIBClass before = editor.ShownPicture();
  editor.FileMenu(3);
  editor.Answer("Corvanta", question, IDNO, "close-question");
  EXPECT_EQ(Difference(before, editor.ShownPicture()), "");
  {
    const HoldKeys alt({VK_MENU});
    TapKey(VK_F4);
  }
  editor.Answer("Corvanta", question, IDYES, "close-question");
  EXPECT_EQ(editor.WaitForExit(), 0u);
}

TEST(AboutTest, ShowsTheReadme) {
  Editor editor;
  editor.WaitForPicture();
  editor.Command(IDM_ABOUT);
  const HWND about = editor.Dialog("About Corvanta", "about");
  EXPECT_EQ(Text(about, IDC_ABOUT_TITLE), "Corvanta 1.1");
  EXPECT_FALSE(Text(about, IDC_ABOUT_README).empty());
  editor.Close(about, IDCANCEL);
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
    const fs::path from = fs::u8path(EditorPath()).parent_path(), to = fs::u8path(folder.Path());
    for (const char* file : {"Corvanta.exe", "ImageLib.dll", "Settings.ini", "Templates"}) {
      fs::copy(from / file, to / file);
    }
    fs::remove(to / "Templates" / missing.file);
    const Editor editor(folder.Path("Corvanta.exe"));
    editor.Answer(missing.caption, missing.text, IDOK, std::string("missing-") + missing.name);
    EXPECT_EQ(editor.WaitForExit(), 0u);
  }
}
