#include "dialogs/load_screen_settings.h"

#include <gtest/gtest.h>

#include "support/editor_fixture.h"

namespace {

constexpr char kCaption[] = "Load screen settings";
constexpr int kLists[] = {IDC_SETTINGS_ICON1, IDC_SETTINGS_ICON2, IDC_SETTINGS_ICON3};
constexpr char kWrongSize[] = "Error: This file isn't valid icon file\nImage size must be 76x60";
using Lines = std::vector<std::string>;

class LoadScreenSettingsTest : public EditorFixture {
 protected:
  void SetUp() override {
    EditorFixture::SetUp();
    WritePng("Templates\\zebra.png", PlainPicture(76, 60, 0x111111));
    WritePng("Templates\\apple.png", PlainPicture(76, 60, 0x222222));
    WritePng("Templates\\wide.png", PlainPicture(77, 60, 0x333333));
    WritePng("Templates\\high.png", PlainPicture(76, 61, 0x444444));
    WriteSettings(
        "[CameosList]\n1=Zebra,  zebra.png\n2=Apple,apple.png\n3=bad\n"
        "4=Wide,wide.png\n5=High,high.png\n6=Lost,lost.png\n");
  }

  // Opens the dialog, plays the step and closes it.
  void Open(const std::function<void(HWND)>& step) {
    user.When(kCaption, [step](HWND dialog) {
      step(dialog);
      Press(dialog, IDCANCEL);
    });
    Command(IDM_LOAD_SCREEN_SETTINGS);
  }

  // Positions in the sorted lists: Apple, High, Lost, Wide, Zebra.
  enum { kApple, kHigh, kLost, kWide, kZebra };
};

TEST_F(LoadScreenSettingsTest, OpensWithTheDocumentsChoices) {
  SetSide(Yuri);
  SetIconCount(3);
  doc.iconChoice[1] = kZebra;
  const char path[] = "C:\\pics\\shot.png";
  std::copy_n(path, sizeof path, doc.screenshotPath);
  Open([&path](HWND dialog) {
    for (const int list : kLists) {
      EXPECT_EQ(Lines({"Apple", "High", "Lost", "Wide", "Zebra"}), Items(dialog, list));
      EXPECT_EQ(list == IDC_SETTINGS_ICON2 ? 4 : -1, Selected(dialog, list));
      EXPECT_TRUE(IsEnabled(dialog, list));
    }
    EXPECT_TRUE(IsChecked(dialog, IDC_SETTINGS_YURI));
    EXPECT_FALSE(IsChecked(dialog, IDC_SETTINGS_ALLIED));
    EXPECT_TRUE(IsChecked(dialog, IDC_SETTINGS_THREE));
    EXPECT_FALSE(IsChecked(dialog, IDC_SETTINGS_TWO));
    EXPECT_EQ(GetDlgItem(dialog, IDC_SETTINGS_THREE), GetFocus());
    EXPECT_EQ(path, Text(dialog, IDC_SETTINGS_PATH));
  });
  EXPECT_EQ(Yuri, doc.side) << "opening and closing changes nothing";
  EXPECT_EQ(3, doc.iconCount);
}

TEST_F(LoadScreenSettingsTest, SideTakesEffectAtOnce) {
  Open([this](HWND dialog) {
    for (const int32_t side : {Yuri, Soviet, Allied}) {
      Press(dialog, IDC_SETTINGS_ALLIED + side);
      EXPECT_EQ(side, doc.side);
      EXPECT_EQ(std::string(SideName(side)) + " - 2", StatusText(0));
      EXPECT_EQ(WorldMapPixel(side, 5, 7), CanvasPixel(5, 7));
    }
  });
}

TEST_F(LoadScreenSettingsTest, ArrowKeysStayAmongTheRadioButtons) {
  SetSide(Yuri);
  SetIconCount(3);
  Open([](HWND dialog) {
    for (const int first : {IDC_SETTINGS_TWO, IDC_SETTINGS_ALLIED}) {
      const int last = first == IDC_SETTINGS_TWO ? IDC_SETTINGS_THREE : IDC_SETTINGS_YURI;
      SetFocus(GetDlgItem(dialog, last));
      PressKey(GetFocus(), VK_DOWN);
      EXPECT_EQ(GetDlgItem(dialog, first), GetFocus());
      PressKey(GetFocus(), VK_UP);
      EXPECT_EQ(GetDlgItem(dialog, last), GetFocus());
    }
  });
}

TEST_F(LoadScreenSettingsTest, IconCountEnablesTheThirdList) {
  Open([this](HWND dialog) {
    EXPECT_TRUE(IsChecked(dialog, IDC_SETTINGS_TWO));
    EXPECT_FALSE(IsEnabled(dialog, IDC_SETTINGS_ICON3));
    Press(dialog, IDC_SETTINGS_THREE);
    EXPECT_TRUE(IsEnabled(dialog, IDC_SETTINGS_ICON3));
    EXPECT_EQ("Allied - 3", StatusText(0));
    Choose(dialog, IDC_SETTINGS_ICON3, kApple);
    EXPECT_EQ(0x222222U, CanvasPixel(444, 380));
    Press(dialog, IDC_SETTINGS_TWO);
    EXPECT_FALSE(IsEnabled(dialog, IDC_SETTINGS_ICON3));
    EXPECT_EQ(kApple, Selected(dialog, IDC_SETTINGS_ICON3)) << "the list keeps its position";
    EXPECT_EQ(OverlayPixel(Allied, 2, 519, 439), CanvasPixel(519, 439));
    Press(dialog, IDC_SETTINGS_THREE);
    EXPECT_EQ(0x222222U, CanvasPixel(519, 439)) << "the icon is still there";
  });
}

TEST_F(LoadScreenSettingsTest, ChosenIconIsShownAndRemembered) {
  Open([this](HWND dialog) {
    Choose(dialog, IDC_SETTINGS_ICON2, kZebra);
    EXPECT_EQ(0x111111U, CanvasPixel(405, 380));
    EXPECT_EQ(0x111111U, CanvasPixel(480, 439));
    Choose(dialog, IDC_SETTINGS_ICON2, kApple);
    EXPECT_EQ(0x222222U, CanvasPixel(480, 439));
  });
  EXPECT_EQ(kApple, doc.iconChoice[1]);
  Open([](HWND dialog) {
    EXPECT_EQ(kApple, Selected(dialog, IDC_SETTINGS_ICON2));
    EXPECT_EQ(-1, Selected(dialog, IDC_SETTINGS_ICON1));
  });
}

TEST_F(LoadScreenSettingsTest, RefusedIconEmptiesItsSlot) {
  const struct {
    int position;
    const char* message;
    UINT icon;
  } cases[] = {{kWide, kWrongSize, MB_ICONHAND},
               {kHigh, kWrongSize, MB_ICONHAND},
               {kLost, "Error: Can't find file!", MB_ICONEXCLAMATION}};
  for (const auto& test : cases) {
    user.When(kCaption, [&test](HWND dialog) {
      Choose(dialog, IDC_SETTINGS_ICON1, kApple);
      EXPECT_EQ(1, doc.icons[0].valid);
      Choose(dialog, IDC_SETTINGS_ICON1, test.position);
      EXPECT_EQ(0, doc.icons[0].valid);
      EXPECT_EQ(kApple, doc.iconChoice[0]) << "the last good choice stays";
      EXPECT_EQ(test.position, Selected(dialog, IDC_SETTINGS_ICON1));
      PressKey(GetDlgItem(dialog, IDCANCEL), VK_ESCAPE);
    });
    user.Answer("Corvanta", test.message, test.icon, IDOK);
    Command(IDM_LOAD_SCREEN_SETTINGS);
    EXPECT_EQ(0, doc.icons[0].valid);
  }
}

TEST_F(LoadScreenSettingsTest, RememberedPositionPastTheEndSelectsNothing) {
  doc.iconChoice[0] = 5;
  doc.iconChoice[1] = kZebra;
  Open([](HWND dialog) {
    EXPECT_EQ(-1, Selected(dialog, IDC_SETTINGS_ICON1));
    EXPECT_EQ(kZebra, Selected(dialog, IDC_SETTINGS_ICON2));
  });
  EXPECT_EQ(5, doc.iconChoice[0]);
}

TEST_F(LoadScreenSettingsTest, EnterChangesNothing) {
  Open([](HWND dialog) {
    PressKey(GetFocus(), VK_RETURN);
    EXPECT_TRUE(IsWindow(dialog));
    EXPECT_TRUE(IsWindowEnabled(dialog));
  });
}

TEST_F(LoadScreenSettingsTest, DialogWithoutSettingsStaysOpenAndEmpty) {
  SetIconCount(3);
  WriteSettings("[SymbolsList]\n1=a,b\n");
  user.Answer("Error", "Error: File Settings.ini invalid!", MB_ICONHAND, IDOK);
  Open([](HWND dialog) {
    for (const int list : kLists) EXPECT_EQ(Lines(), Items(dialog, list));
    for (int id = IDC_SETTINGS_TWO; id <= IDC_SETTINGS_YURI; ++id) {
      EXPECT_FALSE(IsChecked(dialog, id)) << id;
    }
    EXPECT_EQ("", Text(dialog, IDC_SETTINGS_PATH));
    EXPECT_EQ(GetDlgItem(dialog, IDC_SETTINGS_ICON1), GetFocus())
        << "a radio button would be clicked by the focus";
  });
  EXPECT_EQ(3, doc.iconCount);
}

}  // namespace
