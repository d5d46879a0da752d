#include "shell/save_commands.h"

#include <gtest/gtest.h>

#include <cstring>

#include "document/composition.h"
#include "document/item_operations.h"
#include "imaging/image_files.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

namespace {

class SaveAsImageTest : public EditorFixture {
 protected:
  ImageClass Loaded(const std::string& name) const {
    ImageClass picture;
    EXPECT_EQ(1, LoadImageFile(AppPath(name).c_str(), picture)) << name;
    return picture;
  }
};

TEST_F(SaveAsImageTest, WritesThePictureInTheChosenFormat) {
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  ImageClass expected;
  expected.Create(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&expected);
  for (const char* name : {"saved.png", "saved.bmp"}) {
    user.ChooseFile("Save As", AppPath(name));
    Command(IDM_SAVE_AS_IMAGE);
    EXPECT_EQ(AppPath(name), doc.lastFilePath);
    const ImageClass picture = Loaded(name);
    EXPECT_EQ("", Difference(expected, picture));
    EXPECT_EQ(0xCFDFEFU, picture.ReadPixel(100, 400)) << "the selection frame is in it";
  }
}

TEST_F(SaveAsImageTest, NameWithoutExtensionGetsOne) {
  user.ChooseFile("Save As", AppPath("saved"));
  EXPECT_NE(0, SaveAsImage());
  const std::string path = doc.lastFilePath;
  ASSERT_EQ(AppPath("saved."), path.substr(0, path.size() - 3));
  EXPECT_EQ(800, Loaded(path.substr(AppPath("").size())).width);
}

TEST_F(SaveAsImageTest, HiddenLayersGiveABlackPicture) {
  Command(IDM_VIEW_TOP_LAYER);
  Command(IDM_VIEW_BOTTOM_LAYER);
  user.ChooseFile("Save As", AppPath("black.png"));
  EXPECT_NE(0, SaveAsImage());
  EXPECT_EQ("", Difference(PlainPicture(800, 520, 0), Loaded("black.png")));
}

TEST_F(SaveAsImageTest, CancellingWritesNothing) {
  user.When("Save As", [](HWND dialog) { Press(dialog, IDCANCEL); });
  EXPECT_EQ(0, SaveAsImage());
  EXPECT_STREQ("", doc.lastFilePath);
}

TEST_F(SaveAsImageTest, PathThatNoFileCanHaveIsNotProposed) {
  for (const char* path : {"a*b.png", "what?.png", "a\"b.png", "a<b>.png", "a|b.png", "none:"}) {
    std::strcpy(doc.lastFilePath, path);
    user.When("Save As", [path](HWND dialog) {
      EXPECT_EQ("", Text(dialog, cmb13)) << path;
      Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(0, SaveAsImage());
  }
}

TEST_F(SaveAsImageTest, SecondTimeProposesTheFirstPath) {
  user.ChooseFile("Save As", AppPath("saved.png"));
  EXPECT_NE(0, SaveAsImage());
  std::filesystem::remove(File("saved.png"));
  user.When("Save As", [](HWND dialog) { Press(dialog, IDOK); });
  EXPECT_NE(0, SaveAsImage());
  EXPECT_TRUE(std::filesystem::exists(File("saved.png")));
}

}  // namespace
