#include "dialogs/about.h"

#include <gtest/gtest.h>

#include "support/editor_fixture.h"
#include "support/file_content.h"

namespace {

constexpr char kCaption[] = "About Corvanta";
constexpr char kReadme[] = "first line\r\nsecond line\r\nthird line\r\n";

using AboutTest = EditorFixture;

TEST_F(AboutTest, ReadmeCannotBeChangedOnlyWalkedThrough) {
  doc.animateAboutBox = 0;
  WriteContent(File("Templates/readme.txt"), kReadme);
  WithDialog(kCaption, IDM_ABOUT, [](HWND dialog) {
    EXPECT_EQ(reinterpret_cast<LRESULT>(doc.aboutTitleFont.get()),
              SendDlgItemMessageA(dialog, IDC_ABOUT_TITLE, WM_GETFONT, 0, 0));
    const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
    EXPECT_EQ(kReadme, Text(readme));
    SetFocus(readme);
    // In the middle of the second line; whether a key has moved the caret.
    const auto moves = [readme](int key) {
      SendMessageA(readme, EM_SETSEL, 14, 15);
      SendMessageA(readme, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
      return SendMessageA(readme, EM_GETSEL, 0, 0) != MAKELONG(14, 15);
    };
    for (const int key : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN}) EXPECT_TRUE(moves(key)) << key;
    for (const int key : {VK_DELETE, VK_BACK, VK_PRIOR, VK_HOME, VK_END, VK_NEXT, VK_INSERT})
      EXPECT_FALSE(moves(key)) << key;
    for (const WPARAM letter : {120, 8, 3, 22, 24, 13}) SendMessageA(readme, WM_CHAR, letter, 1);
    for (const UINT message : {WM_CUT, WM_PASTE, WM_CLEAR}) SendMessageA(readme, message, 0, 0);
    PressKey(readme, VK_RETURN);
    EXPECT_EQ(kReadme, Text(readme));
    EXPECT_TRUE(IsWindowVisible(dialog));
    PressKey(readme, VK_TAB);
    EXPECT_EQ(GetDlgItem(dialog, IDCANCEL), GetFocus());
    PressKey(readme, VK_ESCAPE);
    EXPECT_FALSE(IsWindowVisible(dialog));
  });
  EXPECT_EQ(nullptr, doc.aboutTitleFont);
}

TEST_F(AboutTest, ReadmeThatIsEmptyOrMissingIsShownEmpty) {
  for (const char* content : {"", "x"}) {  // with its fading
    WriteContent(File("Templates/readme.txt"), content);
    if (*content) std::filesystem::remove(File("Templates/readme.txt"));
    WithDialog(kCaption, IDM_ABOUT,
               [](HWND dialog) { EXPECT_EQ("", Text(dialog, IDC_ABOUT_README)); });
  }
}

}  // namespace
