#include "dialogs/shp_options.h"

#include <gtest/gtest.h>

#include "document/item_operations.h"
#include "export/shp_export.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"

namespace {

constexpr char kCaption[] = "SHP save options";

class ShpOptionsTest : public EditorFixture {
 protected:
  // Chooses "Save as SHP...", the file out.shp, and lets `work` act in the options.
  void Open(std::function<void(HWND)> work) {
    user.ChooseFile("Save As", AppPath("out.shp"));
    user.When(kCaption, std::move(work));
    Command(IDM_SAVE_AS_SHP);
  }
  // The same, closing the options afterwards.
  void Look(const std::function<void(HWND)>& work) {
    Open([work](HWND dialog) {
      work(dialog);
      Press(dialog, IDCANCEL);
    });
  }
  std::string Shp() const { return ReadContent(File("out.shp")); }
};

TEST_F(ShpOptionsTest, OpensWithItsDefaults) {
  Look([](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_SHP_GENERATE));
    EXPECT_FALSE(IsChecked(dialog, IDC_SHP_EXISTING));
    EXPECT_EQ("256", Text(dialog, IDC_SHP_COLOURS));
    EXPECT_EQ("", Text(dialog, IDC_SHP_NAME));
    EXPECT_FALSE(IsEnabled(dialog, IDOK));
    EXPECT_TRUE(IsEnabled(dialog, IDCANCEL));
    EXPECT_FALSE(IsVisible(dialog, IDC_SHP_PROGRESS));
    EXPECT_FALSE(IsVisible(dialog, IDC_SHP_SHP16));
    EXPECT_FALSE(IsEnabled(dialog, IDC_SHP_SHP16));
    EXPECT_FALSE(IsWindowEnabled(doc.mainWindow)) << "modal";
  });
  EXPECT_EQ("", Shp()) << "cancelling writes nothing";
}

TEST_F(ShpOptionsTest, ExportsWithTheNameFromTheField) {
  Open([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("typed.pal"));
    Type(dialog, IDC_SHP_COLOURS, "20");
    Press(dialog, IDOK);
    EXPECT_EQ(1, SendDlgItemMessageA(dialog, IDC_SHP_PROGRESS, PBM_GETPOS, 0, 0))
        << "14 steps on a bar of 13: the last one starts over";
  });
  EXPECT_EQ(416032U, Shp().size());
  EXPECT_EQ(768U, ReadContent(File("typed.pal")).size());
  EXPECT_EQ(AppPath("typed.pal"), palettePath);
  EXPECT_TRUE(IsWindowEnabled(doc.mainWindow));
  for (const char index : Shp().substr(32)) ASSERT_LT(static_cast<uint8_t>(index), 20);
}

TEST_F(ShpOptionsTest, BrowsedNameIsProposedAgainButNotShown) {
  Open([this](HWND dialog) {
    user.ChooseFile("Save As", AppPath("browsed"));
    Press(dialog, IDC_SHP_BROWSE);
    EXPECT_EQ(AppPath("browsed.pal"), Text(dialog, IDC_SHP_NAME));
    EXPECT_TRUE(IsEnabled(dialog, IDOK));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(768U, ReadContent(File("browsed.pal")).size());
  Look([](HWND dialog) { EXPECT_EQ("", Text(dialog, IDC_SHP_NAME)); });
  EXPECT_EQ(AppPath("browsed.pal"), palettePath);
}

TEST_F(ShpOptionsTest, CancelledBrowsingChangesNothing) {
  Look([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("typed.pal"));
    user.When("Save As", [](HWND file) { Press(file, IDCANCEL); });
    Press(dialog, IDC_SHP_BROWSE);
    EXPECT_EQ(AppPath("typed.pal"), Text(dialog, IDC_SHP_NAME));
  });
  EXPECT_STREQ("", palettePath);
}

struct Number {
  const char* typed;
  const char* kept;
};

TEST_F(ShpOptionsTest, NumberOfColoursStaysFrom1To256) {
  Look([](HWND dialog) {
    for (const Number& number :
         {Number{"16", "16"}, Number{"1", "1"}, Number{"256", "256"}, Number{"257", "256"},
          Number{"999", "256"}, Number{"", "1"}, Number{"0", "1"}}) {
      SetDlgItemTextA(dialog, IDC_SHP_COLOURS, number.typed);
      EXPECT_STREQ(number.kept, Text(dialog, IDC_SHP_COLOURS).c_str()) << number.typed;
    }
    SetDlgItemTextA(dialog, IDC_SHP_COLOURS, "12");
    const HWND field = GetDlgItem(dialog, IDC_SHP_COLOURS);
    SendMessageA(field, EM_SETSEL, 0, 0);
    for (const char letter : {'-', 'x'})
      SendMessageA(field, WM_CHAR, static_cast<WPARAM>(letter), 1);
    EXPECT_EQ("12", Text(dialog, IDC_SHP_COLOURS)) << "digits only";
    for (const char letter : {'1', '1'})
      SendMessageA(field, WM_CHAR, static_cast<WPARAM>(letter), 1);
    EXPECT_EQ("112", Text(dialog, IDC_SHP_COLOURS)) << "three digits at most";
  });
}

struct Name {
  const char* name;  // below the application folder
  bool generate, existing;
};

TEST_F(ShpOptionsTest, NameMustExistForItsPurpose) {
  WriteContent(File("there.pal"), "x");
  for (const int existing : {IDC_SHP_GENERATE, IDC_SHP_EXISTING}) {
    Look([this, existing](HWND dialog) {
      Press(dialog, existing);
      for (const Name& test :
           {Name{"there.pal", true, true}, Name{"new.pal", true, false},
            Name{"none\\new.pal", false, false}, Name{"Templates", true, true},
            Name{"Templates\\", true, true}, Name{"Templates\\new.pal", true, false}}) {
        Type(dialog, IDC_SHP_NAME, AppPath(test.name));
        EXPECT_EQ(existing == IDC_SHP_EXISTING ? test.existing : test.generate,
                  IsEnabled(dialog, IDOK))
            << test.name;
      }
    });
  }
}

TEST_F(ShpOptionsTest, NameWithoutFolderIsTestedAsAWhole) {
  WriteContent(File("there.pal"), "x");
  Look([this](HWND dialog) {
    SetCurrentDirectoryA(doc.appDir);
    Type(dialog, IDC_SHP_NAME, "new.pal");
    EXPECT_FALSE(IsEnabled(dialog, IDOK));
    Type(dialog, IDC_SHP_NAME, "there.pal");
    EXPECT_TRUE(IsEnabled(dialog, IDOK));
    Type(dialog, IDC_SHP_NAME, "");
    EXPECT_FALSE(IsEnabled(dialog, IDOK));
  });
}

TEST_F(ShpOptionsTest, NameOf260CharactersIsRefused) {
  Look([this](HWND dialog) {
    std::string name = AppPath("");
    while (name.size() + 2 < 259) name += ".\\";
    name += std::string(259 - name.size(), 'n');
    SetDlgItemTextA(dialog, IDC_SHP_NAME, name.c_str());
    EXPECT_TRUE(IsEnabled(dialog, IDOK));
    SetDlgItemTextA(dialog, IDC_SHP_NAME, (name + "n").c_str());
    EXPECT_FALSE(IsEnabled(dialog, IDOK));
  });
}

TEST_F(ShpOptionsTest, OtherModeDoesNotTestTheNameAgain) {
  Open([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("new.pal"));
    Press(dialog, IDC_SHP_EXISTING);
    EXPECT_TRUE(IsEnabled(dialog, IDOK));
    user.Answer("Error", "PAL file open error!", MB_ICONHAND, IDOK);
    Press(dialog, IDOK);
  });
  EXPECT_EQ("", Shp());
  EXPECT_EQ(nullptr, FindWindowA(nullptr, kCaption));
}

TEST_F(ShpOptionsTest, ChosenModeIsKept) {
  Look([](HWND dialog) { Press(dialog, IDC_SHP_EXISTING); });
  EXPECT_EQ(kExistingPalette, paletteMode);
  Look([](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_SHP_EXISTING));
    EXPECT_FALSE(IsChecked(dialog, IDC_SHP_GENERATE));
    EXPECT_TRUE(IsEnabled(dialog, IDC_SHP_NAME));
    EXPECT_TRUE(IsEnabled(dialog, IDC_SHP_BROWSE));
    Press(dialog, IDC_SHP_GENERATE);
  });
  EXPECT_EQ(kGeneratePalette, paletteMode);
}

TEST_F(ShpOptionsTest, ExistingPaletteIsUsedWithItsFirstColours) {
  std::string palette;
  for (int i = 0; i < 768; ++i) palette += static_cast<char>(i % 64);
  WriteContent(File("there.pal"), palette);
  Open([this](HWND dialog) {
    Press(dialog, IDC_SHP_EXISTING);
    Type(dialog, IDC_SHP_NAME, AppPath("there.pal"));
    Type(dialog, IDC_SHP_COLOURS, "16");
    Press(dialog, IDOK);
  });
  ASSERT_EQ(416032U, Shp().size());
  for (const char index : Shp().substr(32)) ASSERT_LT(static_cast<uint8_t>(index), 16);
  EXPECT_EQ(palette, ReadContent(File("there.pal")));
}

TEST_F(ShpOptionsTest, FailureIsShownAndClosesTheDialog) {
  Open([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("Templates\\"));
    user.Answer("Error", "Palette file create error!", MB_ICONHAND, IDOK);
    Press(dialog, IDOK);
  });
  EXPECT_EQ(416032U, Shp().size());
  EXPECT_EQ(nullptr, FindWindowA(nullptr, kCaption));
  Look([this](HWND dialog) {
    user.When("Save As", [](HWND file) {
      EXPECT_EQ("", Text(file, cmb13)) << "a folder can't be proposed as a file";
      Press(file, IDCANCEL);
    });
    Press(dialog, IDC_SHP_BROWSE);
  });
}

// What has been posted before arrives while the pixels are being mapped.
TEST_F(ShpOptionsTest, NothingEndsOrRepeatsARunningExport) {
  Open([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("new.pal"));
    for (const int id : {IDOK, IDCANCEL, IDC_SHP_EXISTING, IDC_SHP_BROWSE}) {
      PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(id), 0);
    }
    PostMessageA(dialog, WM_CLOSE, 0, 0);
    bool blocked = false;
    user.When(kCaption, [&blocked](HWND running) {
      blocked = !IsEnabled(running, IDOK) && !IsEnabled(running, IDCANCEL) &&
                !IsEnabled(running, IDC_SHP_NAME) && !IsEnabled(running, IDC_SHP_COLOURS) &&
                !IsEnabled(running, IDC_SHP_BROWSE) && !IsEnabled(running, IDC_SHP_GENERATE) &&
                !IsEnabled(running, IDC_SHP_EXISTING) && IsVisible(running, IDC_SHP_PROGRESS);
    });
    Press(dialog, IDOK);
    EXPECT_TRUE(blocked) << "the user meets a blocked dialog while the export runs";
  });
  EXPECT_EQ(416032U, Shp().size());
  EXPECT_EQ(768U, ReadContent(File("new.pal")).size());
  EXPECT_EQ(kGeneratePalette, paletteMode);
  EXPECT_EQ(nullptr, FindWindowA(nullptr, kCaption));
}

TEST_F(ShpOptionsTest, RequestToEndTheEditorOutlivesTheExport) {
  Open([this](HWND dialog) {
    Type(dialog, IDC_SHP_NAME, AppPath("new.pal"));
    PostQuitMessage(7);
    Press(dialog, IDOK);
  });
  EXPECT_EQ(416032U, Shp().size());
  MSG message{};
  ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(7U, message.wParam);
}

TEST_F(ShpOptionsTest, CloseBoxEscapeAndACancelledNameWriteNothing) {
  user.When("Save As", [](HWND dialog) { Press(dialog, IDCANCEL); });
  Command(IDM_SAVE_AS_SHP);
  Open([](HWND dialog) { SendMessageA(dialog, WM_CLOSE, 0, 0); });
  Open([](HWND dialog) { PressKey(dialog, VK_ESCAPE); });
  EXPECT_EQ("", Shp());
}

}  // namespace
