#include <gtest/gtest.h>

#include <cstring>

#include "document/composition.h"
#include "document/item_operations.h"
#include "imaging/image_files.h"
#include "shell/save_commands.h"
#include "support/editor_fixture.h"
#include "support/picture_difference.h"

namespace {

class SaveAsImageTest : public EditorFixture {
 protected:
  // Chooses "Save as..." and the name; the path that the editor remembers afterwards.
  std::string Save(const std::string& name) {
    user.ChooseFile("Save As", name);
    saved = SaveAsImage();
    return doc.lastFilePath;
  }

  int saved = -1;
};

TEST_F(SaveAsImageTest, WritesThePictureInTheChosenFormat) {
  AddItem(PlainPicture(20, 10, 0x102030), 100, 400, 0);
  SelectItem(0);
  ImageClass expected;
  expected.Create(800, 520);
  ComposeLoadScreen(&expected);
  for (const char* name : {"saved.png", "saved.bmp", "saved"}) {
    const std::string path = Save(AppPath(name));
    EXPECT_NE(0, saved) << name;
    EXPECT_EQ(AppPath(name), path.substr(0, AppPath(name).size()));
    ASSERT_EQ('.', path[path.size() - 4]) << "a name without extension gets one";
    ImageClass picture;
    EXPECT_EQ(1, LoadImageFile(path.c_str(), picture)) << path;
    EXPECT_EQ("", Difference(expected, picture)) << path;
    EXPECT_EQ(0xCFDFEFU, picture.ReadPixel(100, 400)) << "the selection frame is in it";
  }
}

TEST_F(SaveAsImageTest, PathThatNoFileCanHaveIsNotProposed) {
  for (const char* path :
       {"a*b.png", "what?.png", "a\"b.png", "a<b>.png", "a|b.png", "none:", "folder\\"}) {
    std::strcpy(doc.lastFilePath, path);
    user.When("Save As", [path](HWND dialog) {
      EXPECT_EQ("", Text(dialog, cmb13)) << path;
      Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(0, SaveAsImage());
  }
}

}  // namespace
