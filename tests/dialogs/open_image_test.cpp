#include "dialogs/open_image.h"

#include <gtest/gtest.h>

#include <cstring>

#include "controls/control.h"
#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"
#include "support/find_window.h"

namespace {

constexpr char kCaption[] = "Choose file to open";

class OpenImageTest : public EditorFixture {
 protected:
  char path[MAX_PATH] = "";
  ImageClass picture;
};

TEST_F(OpenImageTest, ChosenFileIsLoaded) {
  const std::string file = WritePng("a.png", PlainPicture(5, 4, 0x123456));
  user.ChooseFile(kCaption, file);
  EXPECT_EQ(1, OpenImageWithPreview(doc.mainWindow, path, picture));
  EXPECT_EQ(file, path);
  EXPECT_EQ(5, picture.width);
  EXPECT_EQ(0x123456U, picture.ReadPixel(4, 3));
}

TEST_F(OpenImageTest, CancelEmptiesThePath) {
  std::strcpy(path, AppPath("Templates\\old.png").c_str());
  user.When(kCaption, [](HWND dialog) {
    EXPECT_EQ("", Text(dialog, cmb13)) << "no file is proposed";
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path, picture));
  EXPECT_STREQ("", path);
  EXPECT_EQ(0, picture.valid);
}

TEST_F(OpenImageTest, OpensInTheFolderOfThePath) {
  std::filesystem::create_directory(File("pics"));
  WritePng("pics\\b.png", PlainPicture(2, 2, 7));
  std::strcpy(path, AppPath("pics\\old.png").c_str());
  user.ChooseFile(kCaption, "b.png");
  EXPECT_EQ(1, OpenImageWithPreview(doc.mainWindow, path, picture));
  EXPECT_EQ(AppPath("pics\\b.png"), path);
}

TEST_F(OpenImageTest, UnreadableFileGivesNothingButItsPath) {
  WriteSettings("no picture");
  user.ChooseFile(kCaption, AppPath("Settings.ini"));
  EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path, picture));
  EXPECT_EQ(AppPath("Settings.ini"), path);
  EXPECT_EQ(0, picture.valid);
}

TEST_F(OpenImageTest, PreviewFollowsTheSelection) {
  std::strcpy(path, WritePng("a.png", PlainPicture(9, 9, 0x00C000)).c_str());
  user.When(kCaption, [](HWND dialog) {
    const HWND preview = FindChild(dialog, "ImagePreview");
    ASSERT_NE(nullptr, preview);
    EXPECT_EQ(IDC_OPEN_PREVIEW, GetDlgCtrlID(preview));
    for (const std::string name : {"Templates", "a.png", "lost.png", "a.png"}) {
      SelectFile(dialog, name);
      const SIZE size = ClientSize(preview);
      const uint32_t shown = WindowPixel(preview, (size.cx - 9) / 2 + 4, (size.cy - 9) / 2);
      EXPECT_EQ(name == "a.png", shown == 0x00C000) << name;
    }
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path, picture));
}

TEST_F(OpenImageTest, PreviewGrowsWithTheDialog) {
  user.When(kCaption, [](HWND dialog) {
    constexpr LONG_PTR kSizable = WS_OVERLAPPEDWINDOW;
    EXPECT_EQ(kSizable, GetWindowLongPtrA(dialog, GWL_STYLE) & kSizable);
    const HWND preview = FindChild(dialog, "ImagePreview");
    const HWND pane = GetParent(preview);
    for (const int height : {400, 300, 110, 0}) {
      SendMessageA(pane, WM_SIZE, SIZE_RESTORED, MAKELPARAM(500, height));
      RECT frame{};
      GetWindowRect(GetDlgItem(pane, IDC_OPEN_FRAME), &frame);
      EXPECT_EQ(210, ClientSize(preview).cx);
      EXPECT_EQ(std::max(height - 120, 0), ClientSize(preview).cy) << height;
      EXPECT_EQ(230, frame.right - frame.left);
      EXPECT_EQ(std::max(height - 100, 0), frame.bottom - frame.top) << height;
    }
    Press(dialog, IDCANCEL);
  });
  OpenImageWithPreview(doc.mainWindow, path, picture);
}

}  // namespace
