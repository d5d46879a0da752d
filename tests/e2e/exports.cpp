#include "e2e/exports.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "resources/resource.h"
#include "support/file_content.h"
#include "support/sprite.h"
#include "support/user.h"

namespace {

// How much red, green and blue differ on average; a pixel that one of the pictures lacks counts in
// full.
double Distance(const BitmapClass& one, const BitmapClass& other) {
  double sum = 0;
  for (int32_t y = 0; y < one.height; ++y) {
    for (int32_t x = 0; x < one.width; ++x) {
      const uint32_t a = one.ReadPixel(x, y);
      const uint32_t b = other.Holds(x, y) ? other.ReadPixel(x, y) : ~a;
      for (const int shift : {0, 8, 16}) {
        sum += std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
      }
    }
  }
  return sum / (3.0 * one.width * one.height);
}

}  // namespace

ImageClass SavePicture(const Editor& editor, const std::string& name) {
  const std::string path = NewResultPath(name);
  editor.FileMenu(2);
  editor.SaveAs(path, "save-as");
  const ImageClass picture = LoadPicture(path);
  // The system draws the view's few lines in its own way.
  EXPECT_LT(Distance(picture, editor.ShownPicture()), 0.2) << path;
  return picture;
}

ImageClass ExportSprite(const Editor& editor, const std::string& name, const ImageClass& picture,
                        int colours, PaletteName how) {
  const std::string shp = NewResultPath(name + ".shp"), pal = NewResultPath(name + ".pal");
  editor.Command(IDM_SAVE_AS_SHP);
  editor.SaveAs(shp, "save-shp");
  const HWND options = editor.Dialog("SHP save options", "shp-options-" + name);
  EXPECT_FALSE(IsEnabled(options, IDOK)) << "before the palette has a name";
  if (how == PaletteName::Pasted) {
    Paste(GetDlgItem(options, IDC_SHP_NAME), pal);
  } else {
    editor.Click(options, IDC_SHP_BROWSE);
    WaitUntil("the palette's Save dialog", [&] { return !IsWindowEnabled(options); });
    editor.SaveAs(pal, "save-pal");
    WaitUntil("the chosen name", [&] { return Text(options, IDC_SHP_NAME) == pal; });
  }
  if (colours != 256) Type(options, IDC_SHP_COLOURS, std::to_string(colours));
  editor.Close(options, IDOK);

  const ImageClass sprite = ReadSprite(ReadContent(shp), ReadContent(pal));
  EXPECT_LT(Distance(picture, sprite), 10) << shp;
  const auto used = static_cast<int>(CountColours(sprite));
  EXPECT_TRUE(colours - 10 < used && used <= colours) << used << " colours in " << shp;
  SaveResult(name + ".shp.png", sprite);
  return sprite;
}
