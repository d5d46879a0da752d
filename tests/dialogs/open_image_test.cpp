#include "dialogs/open_image.h"

#include <gtest/gtest.h>

#include <cstring>

#include "controls/control.h"
#include "dialogs/window_pixels.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"
#include "support/find_window.h"

namespace {

constexpr char kCaption[] = "Choose file to open";

class OpenImageTest : public EditorFixture {
 protected:
  // Opens the dialog with a path to start from while the user does the step.
  void Open(const std::string& from, const std::function<void(HWND)>& step) {
    std::strcpy(path, from.c_str());
    WithDialog(
        kCaption, [this] { loaded = OpenImageWithPreview(doc.mainWindow, path, picture); }, step);
  }

  // Whether black text stands about a row of the window.
  static bool HasText(HWND window, int row) {
    const SIZE size = ClientSize(window);
    for (int i = -5 * size.cx; i < 5 * size.cx; ++i) {
      if (WindowPixel(window, (i + 5 * size.cx) % size.cx, row + i / size.cx) == 0) return true;
    }
    return false;
  }

  char path[MAX_PATH] = "";
  ImageClass picture;
  int loaded = -1;
};

TEST_F(OpenImageTest, FileIsChosenInTheFolderOfTheFormerOne) {
  std::filesystem::create_directory(File("pics"));
  WritePng("pics\\b.png", PlainPicture(5, 4, 0x123456));
  WriteContent(File("pics/c.txt"), "no picture");
  for (const char* chosen : {"c.txt", "b.png"}) {
    Open(AppPath("pics\\a.png"), [chosen](HWND dialog) {
      EXPECT_EQ("", Text(dialog, cmb13)) << "no file is proposed";
      SendMessageA(dialog, CDM_SETCONTROLTEXT, cmb13, reinterpret_cast<LPARAM>(chosen));
      Press(dialog, IDOK);
    });
    EXPECT_EQ(AppPath("pics\\") + chosen, path);
    EXPECT_EQ(*chosen == 'b', loaded);
    EXPECT_EQ(loaded ? 0x123456U : 0U, picture.ReadPixel(4, 3));
  }
#ifndef _WIN32  // Wine's dialog does not take such a name
  const std::string longest = std::string(250, 'n') + ".png";
  WriteContent(File("pics/" + longest), "no picture");
  user.ChooseFile(kCaption, longest);  // in the folder that the path still names
  EXPECT_EQ(0, OpenImageWithPreview(doc.mainWindow, path, picture));
  EXPECT_STREQ("", path) << "the size that it needs is no path";
#endif
}

TEST_F(OpenImageTest, PreviewFollowsTheSelection) {
  // A path of 258 characters is the longest that the preview asks for; one more is cut to it.
  const std::string longest = std::string(254 - AppPath("").size(), 'n') + ".png";
  WritePng("a.png", PlainPicture(9, 9, 0x00C000));
  WritePng("wide.png", PlainPicture(900, 90, 0x00C000));
  WritePng("high.png", PlainPicture(90, 900, 0x00C000));
  WritePng(longest, PlainPicture(9, 9, 0x00C000));
  Open(AppPath("a.png"), [&longest](HWND dialog) {
    const HWND preview = FindChild(dialog, "ImagePreview");
    ASSERT_NE(nullptr, preview);
    const SIZE size = ClientSize(preview);
    const int middle = size.cx / 2, top = (size.cy - 9) / 2;
    enum { kNone, kSmall, kWide };
    const std::pair<std::string, int> files[] = {
        {"Templates", kNone},   {"a.png", kSmall},   {"lost.png", kNone}, {longest, kSmall},
        {longest + "x", kNone}, {"wide.png", kWide}, {"high.png", kSmall}};
    for (const auto& [name, shown] : files) {
      SelectFile(dialog, name);
      const uint32_t colour = shown ? 0x00C000 : FaceColour();
      EXPECT_EQ(colour, WindowPixel(preview, middle, top)) << name;
      EXPECT_EQ(shown == kWide ? colour : FaceColour(), WindowPixel(preview, 0, top + 4)) << name;
      EXPECT_EQ(shown == kNone, HasText(preview, size.cy / 2)) << name << ": No preview";
      EXPECT_EQ(shown != kNone, HasText(preview, size.cy - 15)) << name << ": its size";
    }
  });
}

}  // namespace
