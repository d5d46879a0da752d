#include "dialogs/about.h"

#include <gtest/gtest.h>

#include <algorithm>

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
    WriteReadme(kReadme);
  }

  void WriteReadme(const std::string& text) { WriteContent(File("Templates/readme.txt"), text); }
  void Open(const std::function<void(HWND)>& step) {
    user.When(kCaption, step);
    Command(IDM_ABOUT);
    EXPECT_EQ(nullptr, doc.aboutTitleFont);
  }
  // Where selection or caret stand in the readme.
  static LRESULT Selection(HWND dialog) {
    return SendDlgItemMessageA(dialog, IDC_ABOUT_README, EM_GETSEL, 0, 0);
  }
};

TEST_F(AboutTest, ShowsTitleLinkAndReadme) {
  Open([](HWND dialog) {
    EXPECT_EQ("Corvanta 1.1", Text(dialog, IDC_ABOUT_TITLE));
    EXPECT_EQ(reinterpret_cast<LRESULT>(doc.aboutTitleFont.get()),
              SendDlgItemMessageA(dialog, IDC_ABOUT_TITLE, WM_GETFONT, 0, 0));
    EXPECT_EQ("Visit for the  last updates", Text(dialog, IDC_ABOUT_LINK));
    EXPECT_EQ(kReadme, Text(dialog, IDC_ABOUT_README));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AboutTest, MissingOrEmptyReadmeLeavesTheBoxEmpty) {
  const auto step = [](HWND dialog) {
    EXPECT_EQ("", Text(dialog, IDC_ABOUT_README));
    Press(dialog, IDCANCEL);
  };
  WriteReadme("");
  Open(step);
  std::filesystem::remove(File("Templates/readme.txt"));
  Open(step);
}

TEST_F(AboutTest, ReadmeCannotBeChanged) {
  Open([](HWND dialog) {
    const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
    SendMessageA(readme, EM_SETSEL, 2, 5);
    const LRESULT selection = Selection(dialog);
    for (const WPARAM letter : {120, 8, 3, 22, 24, 13}) SendMessageA(readme, WM_CHAR, letter, 1);
    for (const UINT message : {WM_CUT, WM_PASTE, WM_CLEAR, WM_RBUTTONDOWN, WM_RBUTTONUP}) {
      SendMessageA(readme, message, 0, 0);
    }
    for (const WPARAM key : {VK_DELETE, VK_BACK, VK_PRIOR, VK_HOME, VK_END, VK_NEXT, VK_INSERT}) {
      SendMessageA(readme, WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(kReadme, Text(dialog, IDC_ABOUT_README));
    EXPECT_EQ(selection, Selection(dialog));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AboutTest, ArrowKeysMoveTheCaret) {
  Open([](HWND dialog) {
    const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
    SetFocus(readme);
    SendMessageA(readme, EM_SETSEL, 2, 2);
    const auto press = [readme](WPARAM key) { SendMessageA(readme, WM_KEYDOWN, key, 1); };
    press(VK_RIGHT);
    EXPECT_EQ(MAKELONG(3, 3), Selection(dialog));
    press(VK_LEFT);
    press(VK_LEFT);
    EXPECT_EQ(MAKELONG(1, 1), Selection(dialog));
    // The column in another line depends on the font.
    const auto line = [dialog] {
      return std::count(kReadme, kReadme + LOWORD(Selection(dialog)), '\n');
    };
    press(VK_DOWN);
    EXPECT_EQ(1, line());
    press(VK_UP);
    EXPECT_EQ(0, line());
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AboutTest, EscapeClosesTheBoxFromEveryControlAndEnterDoesNot) {
  for (const int id : {IDC_ABOUT_LINK, IDC_ABOUT_README, IDCANCEL}) {
    Open([id](HWND dialog) {
      const HWND control = GetDlgItem(dialog, id);
      SetFocus(control);
      if (id != IDCANCEL) PressKey(control, VK_RETURN);
      EXPECT_TRUE(IsWindowVisible(dialog));
      PressKey(control, VK_ESCAPE);
    });
  }
}

TEST_F(AboutTest, TabLeavesTheReadme) {
  Open([](HWND dialog) {
    const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
    SetFocus(readme);
    PressKey(readme, VK_TAB);
    EXPECT_EQ(GetDlgItem(dialog, IDCANCEL), GetFocus());
    Press(dialog, IDCANCEL);
  });
}

TEST_F(AboutTest, FadingBoxOpensAndClosesToo) {
  doc.animateAboutBox = 1;
  Open([](HWND dialog) {
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_FALSE(IsWindowEnabled(doc.mainWindow));
    Press(dialog, IDCANCEL);
  });
  EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
}

}  // namespace
