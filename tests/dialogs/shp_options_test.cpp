#include "dialogs/shp_options.h"

#include <gtest/gtest.h>

#include "export/shp_export.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"

namespace {

constexpr char kCaption[] = "SHP save options";

class ShpOptionsTest : public EditorFixture {
 protected:
  // Chooses "Save as SHP..." and the file out.shp, and does the step in the options.
  void SaveAsShp(const std::function<void(HWND)>& step) {
    user.ChooseFile("Save As", AppPath("out.shp"));
    WithDialog(kCaption, IDM_SAVE_AS_SHP, step);
    EXPECT_EQ(nullptr, FindWindowA(nullptr, kCaption));
  }
  // The sprite file, complete and with no index from the number of colours on.
  void ExpectSprite(int colours) const {
    const std::string shp = ReadContent(File("out.shp"));
    ASSERT_EQ(416032U, shp.size());
    for (const char index : shp.substr(32)) ASSERT_LT(static_cast<uint8_t>(index), colours);
  }
};

TEST_F(ShpOptionsTest, BrowsedNameIsProposedAgainButNotShown) {
  SaveAsShp([this](HWND dialog) {
    user.When("Save As", [](HWND file) { Press(file, IDCANCEL); });
    Type(dialog, IDC_SHP_NAME, AppPath("typed.pal"));
    Press(dialog, IDC_SHP_BROWSE);
    EXPECT_EQ(AppPath("typed.pal"), Text(dialog, IDC_SHP_NAME)) << "browsing was cancelled";
    EXPECT_STREQ("", palettePath);
    user.ChooseFile("Save As", AppPath("browsed"));
    Press(dialog, IDC_SHP_BROWSE);
    EXPECT_EQ(AppPath("browsed.pal"), Text(dialog, IDC_SHP_NAME));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(768U, ReadContent(File("browsed.pal")).size());
  SaveAsShp([this](HWND dialog) {
    EXPECT_EQ("", Text(dialog, IDC_SHP_NAME));
    user.When("Save As", [](HWND file) { Press(file, IDOK); });
    Press(dialog, IDC_SHP_BROWSE);
    EXPECT_EQ(AppPath("browsed.pal"), Text(dialog, IDC_SHP_NAME));
  });
}

TEST_F(ShpOptionsTest, NumberOfColoursStaysFrom1To256) {
  SaveAsShp([](HWND dialog) {
    for (const auto& [number, kept] : {std::pair("16", "16"),
                                       {"1", "1"},
                                       {"256", "256"},
                                       {"257", "256"},
                                       {"999", "256"},
                                       {"0", "1"},
                                       {"1x-1", "11"},
                                       {"1234", "123"},
                                       {"", "1"}}) {
      SetDlgItemTextA(dialog, IDC_SHP_COLOURS, "1");
      Type(dialog, IDC_SHP_COLOURS, number);
      EXPECT_STREQ(kept, Text(dialog, IDC_SHP_COLOURS).c_str()) << number;
    }
    Type(dialog, IDC_SHP_COLOURS, "");
    for (const char digit : {'6', '4'}) {
      SendDlgItemMessageA(dialog, IDC_SHP_COLOURS, WM_CHAR, static_cast<WPARAM>(digit), 1);
    }
    EXPECT_EQ("64", Text(dialog, IDC_SHP_COLOURS)) << "the correction is typed over";
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgItem(dialog, IDCANCEL), GetFocus()) << "Tab skips the disabled OK";
  });
}

TEST_F(ShpOptionsTest, NameMustExistForItsPurpose) {
  WriteContent(File("there.pal"), "x");
  const struct {
    std::string name;
    bool generate, existing;
  } cases[] = {
      {AppPath("there.pal"), true, true},
      {AppPath("new.pal"), true, false},
      {AppPath("none\\new.pal"), false, false},
      {AppPath("Templates"), true, true},
      {AppPath("Templates\\"), true, true},
      {AppPath("Templates\\new.pal"), true, false},
      {"there.pal", true, true},
      {"new.pal", false, false},  // a name without a folder is looked for as a whole
      {"", false, false},
  };
  for (const int mode : {IDC_SHP_GENERATE, IDC_SHP_EXISTING}) {
    SaveAsShp([&](HWND dialog) {
      SetCurrentDirectoryA(doc.appDir);
      Press(dialog, mode);
      for (const auto& test : cases) {
        SetDlgItemTextA(dialog, IDC_SHP_NAME, test.name.c_str());
        EXPECT_EQ(mode == IDC_SHP_EXISTING ? test.existing : test.generate, IsEnabled(dialog, IDOK))
            << test.name;
      }
      std::string longest = AppPath("");
      while (longest.size() < 258) longest += ".\\";
      SetDlgItemTextA(dialog, IDC_SHP_NAME, longest.substr(0, 259).c_str());
      EXPECT_TRUE(IsEnabled(dialog, IDOK));
      SetDlgItemTextA(dialog, IDC_SHP_NAME, (longest + "nn").substr(0, 260).c_str());
      EXPECT_FALSE(IsEnabled(dialog, IDOK)) << "a path of 260 characters";
    });
  }
}

TEST_F(ShpOptionsTest, ChosenModeIsKeptAndDoesNotTestTheNameAgain) {
  SaveAsShp([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("new.pal"));
    Press(dialog, IDC_SHP_EXISTING);
    EXPECT_TRUE(IsEnabled(dialog, IDOK));
    user.Answer("Error", "PAL file open error!", MB_ICONHAND, IDOK);
    Press(dialog, IDOK);
  });
  EXPECT_EQ("", ReadContent(File("out.shp")));
  std::string palette;
  for (int i = 0; i < 768; ++i) palette += static_cast<char>(i % 64);
  WriteContent(File("there.pal"), palette);
  SaveAsShp([this](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_SHP_EXISTING));
    Type(dialog, IDC_SHP_NAME, AppPath("there.pal"));
    Type(dialog, IDC_SHP_COLOURS, "16");
    Press(dialog, IDOK);
  });
  ExpectSprite(16);
  EXPECT_EQ(palette, ReadContent(File("there.pal"))) << "an existing palette is only read";
}

// What has been posted before arrives while the pixels are being mapped.
TEST_F(ShpOptionsTest, NothingEndsOrRepeatsARunningExport) {
  SaveAsShp([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("new.pal"));
    for (const int id : {IDOK, IDCANCEL, IDC_SHP_EXISTING, IDC_SHP_BROWSE}) {
      PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(id), 0);
    }
    PostMessageA(dialog, WM_CLOSE, 0, 0);
    PostQuitMessage(7);
    int enabled = -1;
    user.When(kCaption, [&enabled](HWND running) {
      enabled = 0;
      for (const int id : {IDOK, IDCANCEL, IDC_SHP_NAME, IDC_SHP_COLOURS, IDC_SHP_BROWSE,
                           IDC_SHP_GENERATE, IDC_SHP_EXISTING}) {
        enabled += IsEnabled(running, id);
      }
      EXPECT_TRUE(IsVisible(running, IDC_SHP_PROGRESS));
    });
    Press(dialog, IDOK);
    EXPECT_EQ(0, enabled) << "the user meets a blocked dialog while the export runs";
  });
  ExpectSprite(256);
  EXPECT_EQ(768U, ReadContent(File("new.pal")).size());
  EXPECT_EQ(kGeneratePalette, paletteMode);
  MSG message{};
  ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(7U, message.wParam) << "the request to end the editor outlives the export";
}

}  // namespace
