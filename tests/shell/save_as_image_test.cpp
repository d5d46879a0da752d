#include <gtest/gtest.h>

#include <cstring>

#include "document/composition.h"
#include "document/item_operations.h"
#include "imaging/image_files.h"
#include "shell/save_commands.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

namespace {

using SaveAsImageTest = EditorFixture;

TEST_F(SaveAsImageTest, WritesThePictureInTheChosenFormatAndProposesItsPath) {
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  ImageClass expected;
  expected.Create(800, 520);
  ComposeLoadScreen(&expected);
  for (const char* name : {"saved.png", "saved"}) {
    user.ChooseFile("Save As", AppPath(name));
    EXPECT_NE(0, SaveAsImage()) << name;
    const std::string path = doc.lastFilePath;
    EXPECT_EQ(AppPath(name), path.substr(0, AppPath(name).size()));
    ASSERT_EQ('.', path[path.size() - 4]) << "a name without extension gets one";
    std::filesystem::remove(path);
    user.When("Save As", [](HWND dialog) { Press(dialog, IDOK); });
    EXPECT_NE(0, SaveAsImage()) << "the path is proposed";
    ImageClass picture;
    EXPECT_EQ(1, LoadImageFile(path.c_str(), picture)) << path;
    EXPECT_EQ("", Difference(expected, picture)) << path;
    EXPECT_EQ(0xCFDFEFU, picture.ReadPixel(100, 400)) << "the selection frame is in it";
  }
}

TEST_F(SaveAsImageTest, PathThatNoFileCanHaveIsNotProposed) {
  for (const char* path : {"a*b.png", "a?", "a\"b", "a<b", "a>b", "a|b", "none:", "folder\\"}) {
    std::strcpy(doc.lastFilePath, path);
    user.When("Save As", [path](HWND dialog) {
      EXPECT_EQ("", Text(dialog, cmb13)) << path;
      Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(0, SaveAsImage());
  }
}

}  // namespace
