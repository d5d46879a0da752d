// The stand-in's reader of resource scripts; on Windows the resource compiler has that part.
#ifndef _WIN32
#include <gtest/gtest.h>

#include "platform/standin/resources.h"

namespace {

using standin::ReadResources;

TEST(ResourceReader, ReadsDialogs) {
  const auto resources = ReadResources(R"(
7 DIALOGEX 1, 2, 30, 40
STYLE DS_SETFONT | WS_POPUP
CAPTION "A ""quoted"" title"
FONT 8, "MS Shell Dlg"
BEGIN
  LTEXT "two\nlines", -1, 1, 2, 3, 4
  EDITTEXT 1001, 5, 6, 7, 8, ES_NUMBER | NOT WS_TABSTOP, 0x200
  CONTROL "", 0x10, "msctls_trackbar32", TBS_BOTH | NOT WS_VISIBLE, 0, 0, 9, 9
END
)");
  const auto& dialog = resources.dialogs.at(7);
  EXPECT_EQ(dialog.caption, "A \"quoted\" title");
  EXPECT_EQ(dialog.style, DS_SETFONT | WS_POPUP);
  EXPECT_EQ(dialog.height, 40);
  EXPECT_EQ(dialog.fontName, "MS Shell Dlg");
  ASSERT_EQ(dialog.controls.size(), 3u);
  EXPECT_EQ(dialog.controls[0].text, "two\nlines");
  EXPECT_EQ(dialog.controls[0].id, -1);
  EXPECT_EQ(dialog.controls[0].style, 0x50020000u);
  EXPECT_EQ(dialog.controls[1].style, 0x50802000u);
  EXPECT_EQ(dialog.controls[1].exStyle, 0x200u);
  EXPECT_EQ(dialog.controls[2].className, "msctls_trackbar32");
  EXPECT_EQ(dialog.controls[2].id, 16);
  EXPECT_EQ(dialog.controls[2].style, static_cast<DWORD>(WS_CHILD | TBS_BOTH));
}

TEST(ResourceReader, ReadsMenusAndIconsAndPassesOverTheRest) {
  const auto resources = ReadResources(R"(
1 ICON "a.ico"
1 RT_MANIFEST "a.manifest"
1 VERSIONINFO FILEVERSION 1, 0
BEGIN BLOCK "x" BEGIN VALUE "a", "b" END END
2 MENU { POPUP "File" { MENUITEM "Exit", 40003 MENUITEM SEPARATOR } }
)");
  EXPECT_EQ(resources.icons.count(1), 1u);
  const auto& file = resources.menus.at(2).at(0);
  EXPECT_EQ(file.flags, static_cast<UINT>(MF_POPUP));
  ASSERT_EQ(file.items.size(), 2u);
  EXPECT_EQ(file.items[0].id, 40003u);
  EXPECT_EQ(file.items[1].flags, static_cast<UINT>(MF_SEPARATOR));
}

TEST(ResourceReader, StopsAtAWordThatItDoesNotKnow) {
  const struct {
    const char* script;
    const char* message;
  } cases[] = {
      {"1 BITMAP \"a\"", "line 1: \"BITMAP\""},
      {"1 DIALOGEX 0,0,1,1\nSTYLE WS_FANCY BEGIN END", "line 2: \"WS_FANCY\""},
      {"1 DIALOGEX 0,0,1,1\nBEGIN\nRTEXT \"a\", 1, 0,0,1,1\nEND", "line 3: \"RTEXT\""},
      {"1 DIALOGEX 0,0,1,1 LANGUAGE 1 BEGIN END", "\"LANGUAGE\""},
      {"1 MENU BEGIN MENUITEM \"a\", 1, GRAYED END", "\",\""},
      {"1 MENU BEGIN MENUITEM \"a\\t\", 1 END", "a text does not end"},
      {"1 MENU BEGIN MENUITEM \"a", "a text does not end"},
      {"1 DIALOGEX 0,0,1,1 BEGIN", "\"\" is not known"},
      {"1 ICON a.ico", "\"a\""},
  };
  for (const auto& row : cases) EXPECT_DEATH(ReadResources(row.script), row.message) << row.script;
}

}  // namespace
#endif
