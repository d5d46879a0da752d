#include "dialogs/about.h"

#include <gtest/gtest.h>

#include "controls/link_control.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"

namespace {

constexpr char kCaption[] = "About Corvanta";
constexpr char kReadme[] = "first line\r\nsecond line\r\nthird line\r\n";

class AboutTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    doc.animateAboutBox = 0;
    WriteContent(File("Templates/readme.txt"), kReadme);
  }
};

TEST_F(AboutTest, ShowsTheReadmeAndALargeTitle) {
  WithDialog(kCaption, IDM_ABOUT, [](HWND dialog) {
    EXPECT_EQ(reinterpret_cast<LRESULT>(doc.aboutTitleFont.get()),
              SendDlgItemMessageA(dialog, IDC_ABOUT_TITLE, WM_GETFONT, 0, 0));
    EXPECT_EQ(kReadme, Text(dialog, IDC_ABOUT_README));
  });
  EXPECT_EQ(nullptr, doc.aboutTitleFont);
  const auto expectEmpty = [](HWND dialog) { EXPECT_EQ("", Text(dialog, IDC_ABOUT_README)); };
  WriteContent(File("Templates/readme.txt"), "");
  WithDialog(kCaption, IDM_ABOUT, expectEmpty);
  std::filesystem::remove(File("Templates/readme.txt"));
  WithDialog(kCaption, IDM_ABOUT, expectEmpty);
}

TEST_F(AboutTest, ReadmeCannotBeChangedOnlyWalkedThrough) {
  WithDialog(kCaption, IDM_ABOUT, [](HWND dialog) {
    const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
    SetFocus(readme);
    // In the middle of the second line; whether a key has moved the caret.
    const auto moves = [readme](WPARAM key) {
      SendMessageA(readme, EM_SETSEL, 14, 15);
      SendMessageA(readme, WM_KEYDOWN, key, 1);
      return SendMessageA(readme, EM_GETSEL, 0, 0) != MAKELONG(14, 15);
    };
    for (const int key : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN}) {
      EXPECT_TRUE(moves(static_cast<WPARAM>(key))) << key;
    }
    for (const int key : {VK_DELETE, VK_BACK, VK_PRIOR, VK_HOME, VK_END, VK_NEXT, VK_INSERT}) {
      EXPECT_FALSE(moves(static_cast<WPARAM>(key))) << key;
    }
    for (const WPARAM letter : {120, 8, 3, 22, 24, 13}) SendMessageA(readme, WM_CHAR, letter, 1);
    for (const UINT message : {WM_CUT, WM_PASTE, WM_CLEAR}) SendMessageA(readme, message, 0, 0);
    EXPECT_EQ(kReadme, Text(dialog, IDC_ABOUT_README));
  });
}

TEST_F(AboutTest, TabAndEscapeLeaveTheReadmeAndEnterDoesNot) {
  doc.animateAboutBox = 1;  // fading changes none of it
  WithDialog(kCaption, IDM_ABOUT, [](HWND dialog) {
    const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
    SetFocus(readme);
    PressKey(readme, VK_RETURN);
    EXPECT_TRUE(IsWindowVisible(dialog));
    PressKey(readme, VK_TAB);
    EXPECT_EQ(GetDlgItem(dialog, IDCANCEL), GetFocus());
    PressKey(readme, VK_ESCAPE);
    EXPECT_FALSE(IsWindowVisible(dialog));
  });
  EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
}

}  // namespace
