// What the stand-in has to itself: its reader of resource scripts and what it alone can tell.
#ifndef _WIN32
#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "platform/standin/resources.h"
#include "platform/standin/testing.h"
#include "support/editor_fixture.h"

namespace {

using standin::ReadResources;

TEST(ResourceReader, StopsAtAWordThatItDoesNotKnow) {
  const struct {
    const char* script;
    const char* message;
  } cases[] = {
      {"1 BITMAP \"a\"", "line 1: \"BITMAP\""},
      {"1 DIALOGEX 0,0,1,1\nSTYLE WS_FANCY BEGIN END", "line 2: \"WS_FANCY\""},
      {"1 DIALOGEX 0,0,1,1\nBEGIN\nRTEXT \"a\", 1, 0,0,1,1\nEND", "line 3: \"RTEXT\""},
      {"1 MENU BEGIN MENUITEM \"a\", 1, GRAYED END", "\",\""},
      {"1 MENU BEGIN MENUITEM \"a", "a text does not end"},
      {"1 DIALOGEX 0,0,1,1 BEGIN", "\"\" is not known"},
  };
  for (const auto& row : cases) EXPECT_DEATH(ReadResources(row.script), row.message) << row.script;
}

// What the editor asks of the system and only the stand-in tells.
using RequestTest = EditorFixture;

TEST_F(RequestTest, HelpOpensTheManualAndTheLinkTheWebPage) {
  SetCurrentDirectoryA(AppPath("Templates").c_str());
  Command(IDM_HELP);
  const standin::ShellRequest& request = standin::LastShellRequest();
  EXPECT_EQ("open TAMOVI.CHM", request.verb + " " + request.file);
  EXPECT_EQ(SW_SHOW, request.show);
  EXPECT_EQ(File(""), request.current + "/");
  EXPECT_EQ("Templates", std::filesystem::current_path().filename()) << "as file dialogs left it";
  const int before = request.count;
  WithDialog("About Corvanta", IDM_ABOUT,
             [](HWND about) { Click(GetDlgItem(about, IDC_ABOUT_LINK), 2, 2); });
  EXPECT_EQ(before + 1, request.count);
  EXPECT_EQ("https://corvanta.example.org/", request.verb + request.file);
  EXPECT_EQ(SW_SHOWMAXIMIZED, request.show);
}

TEST_F(RequestTest, UnusedKeyBeepsWhileAnItemIsSelected) {
  AddItem(PlainPicture(4, 4, 1), 10, 400, 0);
  const int beeps = standin::BeepCount();
  Key('X');
  EXPECT_EQ(standin::BeepCount(), beeps);
  SelectItem(0);
  Key('X');
  EXPECT_EQ(standin::BeepCount(), beeps + 1);
}

}  // namespace
#endif
