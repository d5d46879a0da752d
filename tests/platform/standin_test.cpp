// What the stand-in has to itself: its reader of resource scripts, its stops, its answers to tests.
#ifndef _WIN32
#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "platform/standin/resources.h"
#include "platform/standin/testing.h"

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

TEST(StandIn, StopsWhereItWouldWaitForEver) {
  MSG message{};
  EXPECT_DEATH(GetMessageA(&message, nullptr, 0, 0), "would wait for ever");
}

TEST(StandIn, StopsAtAWindowThatIsNeverValidated) {
  MessageLog log({});
  log.Create("1", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50);
  log.paints = false;
  const auto loop = [] {
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0)) DispatchMessageA(&message);
  };
  EXPECT_DEATH(loop(), "LogWindow never validates");
}

TEST(StandIn, StopsAtWhatItDoesNotCover) {
  const HDC dc = CreateCompatibleDC(nullptr);
  EXPECT_DEATH(BitBlt(dc, 0, 0, 1, 1, dc, 0, 0, 1), "SRCCOPY only");
  EXPECT_DEATH(StretchBlt(dc, 0, 0, 2, 2, dc, 0, 0, 1, 1, SRCCOPY), "COLORONCOLOR only");
  EXPECT_DEATH(LoadIconA(nullptr, "name"), "numbers, not names: name");
  EXPECT_DEATH(ShowWindow(CreateWindowExA(0, "Static", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                          nullptr, nullptr),
                          99),
               "ShowWindow command 99");
  DeleteDC(dc);
}

TEST(StandIn, KeepsWhatItIsAskedToStart) {
  const int before = standin::LastShellRequest().count;
  EXPECT_GT(reinterpret_cast<INT_PTR>(
                ShellExecuteA(nullptr, nullptr, "a.chm", nullptr, nullptr, SW_SHOW)),
            32);
  EXPECT_EQ(standin::LastShellRequest().count, before + 1);
  EXPECT_EQ(standin::LastShellRequest().file, "a.chm");
  EXPECT_EQ(standin::LastShellRequest().verb, "");
  EXPECT_EQ(standin::LastShellRequest().show, SW_SHOW);
}

TEST(StandIn, CountsBeepsAndGdiObjects) {
  const int beeps = standin::BeepCount();
  MessageBeep(MB_ICONEXCLAMATION);
  EXPECT_EQ(standin::BeepCount(), beeps + 1);
  const size_t objects = standin::LiveGdiObjects();
  const HDC screen = GetDC(nullptr);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, 2, 2);
  EXPECT_EQ(standin::LiveGdiObjects(), objects + 2);
  ReleaseDC(nullptr, screen);
  DeleteObject(bitmap);
  EXPECT_EQ(standin::LiveGdiObjects(), objects);
}

}  // namespace
#endif
