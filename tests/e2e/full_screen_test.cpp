#include <gtest/gtest.h>

#include <filesystem>

#include "dialogs/crop_geometry.h"
#include "dialogs/screenshot_adjustment.h"
#include "document/load_screen_doc.h"
#include "e2e/dialogs.h"
#include "e2e/editor.h"
#include "e2e/expectations.h"
#include "e2e/input.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "e2e/wait.h"
#include "imaging/pixel_colour.h"
#include "resources/resource.h"
#include "settings/ini_class.h"
#include "support/temp_folder.h"

namespace fs = std::filesystem;

namespace {

constexpr POINT kNewItem = {110, 110};  // on an item where it is added, at (100, 100)
constexpr int kShotWidth = 234, kShotHeight = 232;

ImageClass Template(const std::string& name) {
  return LoadPicture(EditorFile("Templates\\" + name));
}

// One picture of the catalogues in Settings.ini.
struct Entry {
  std::string text, file;
};

Entry Listed(const char* section, const char* key) {
  IniClass settings(EditorFile("Settings.ini").c_str());
  char value[256] = "";
  if (!settings.Load() || !settings.GetString(section, key, value, 255)) {
    GiveUp(std::string("Settings.ini lists no ") + key + ".");
  }
  const std::string text = value;
  const size_t comma = text.find(',');
  return {text.substr(0, comma), text.substr(comma + 1)};
}

Entry Icon(const char* key) { return Listed("CameosList", key); }
Entry Symbol(const char* key) { return Listed("SymbolsList", key); }

// The part of the screenshot below the frame: what is above may be covered.
ImageClass LowerPart(const ImageClass& picture, int top) {
  ImageClass part;
  part.Create(picture.width, picture.height - top);
  part.CopyRegion(picture, 0, 0, 0, top, part.width, part.height);
  return part;
}

// One user making a whole load screen, step by step.
class FullScreenTest : public testing::Test {
 protected:
  void ChooseSideAndIcons() {
    const Window settings = OpenSettings("settings");
    settings.Press(IDC_SETTINGS_THREE);
    settings.Press(IDC_SETTINGS_SOVIET);
    WaitUntil("Soviet with three icons", [this] { return editor.Status(0) == "Soviet - 3"; });
    settings.Choose(IDC_SETTINGS_ICON1, Icon("heavytank").text);
    settings.Choose(IDC_SETTINGS_ICON2, Icon("bomber").text);
    settings.Choose(IDC_SETTINGS_ICON3, Icon("radar_dome").text);
    settings.Screenshot("settings-chosen");
    settings.Press(IDCANCEL);
    settings.WaitUntilClosed();
  }

  void ChooseScreenshot() {
    // Alone in a folder, so that it is the one entry of the Open dialog's list.
    const std::string path = folder.Path("battlefield1.png");
    fs::copy(fs::u8path(SamplePath("battlefield1.png")), fs::u8path(path));
    const Window settings = OpenSettings("settings-again");
    EXPECT_TRUE(settings.IsChecked(IDC_SETTINGS_THREE));
    EXPECT_TRUE(settings.IsChecked(IDC_SETTINGS_SOVIET));
    settings.Press(IDC_SETTINGS_BROWSE);
    const OpenDialog open(editor);
    open.Select(path);
    open.Open();
    AnswerBox(editor, "Corvanta", "Size of image isn't 234x232.Do you want to crop this image?",
              IDYES, "crop-question");
    Crop(LoadPicture(path));
    WaitUntil("the screenshot's path", [&] { return settings.Text(IDC_SETTINGS_PATH) == path; });
    settings.Press(IDCANCEL);
    settings.WaitUntilClosed();
  }

  void AdjustScreenshot() {
    editor.Menu("Tools", "Screenshot settings...");
    const Window dialog = editor.Dialog("Screen shot settings", "screenshot-settings");
    dialog.Press(IDC_SHOT_GREYSCALE);
    WaitUntil("the colour sliders to be disabled", [&] { return !dialog.IsEnabled(IDC_SHOT_RED); });
    dialog.Screenshot("screenshot-settings-grey");
    dialog.Press(IDC_SHOT_GREYSCALE);
    dialog.Slide(IDC_SHOT_BLUE, VK_LEFT, 5);
    dialog.Slide(IDC_SHOT_LIGHTNESS, VK_RIGHT, 3);
    dialog.Screenshot("screenshot-settings-done");
    ScreenshotAdjustment adjustment;
    adjustment.blue = static_cast<int32_t>(dialog.SliderPosition(IDC_SHOT_BLUE));
    adjustment.lightness = static_cast<int32_t>(dialog.SliderPosition(IDC_SHOT_LIGHTNESS));
    EXPECT_LT(adjustment.blue, 255);
    EXPECT_GT(adjustment.lightness, 255);
    AdjustColours(screenshot, adjustment);
    dialog.Press(IDOK);
    dialog.WaitUntilClosed();
  }

  void AddItem(const char* key, int colourButton) {
    editor.Menu("Edit", "Add new item...");
    const Window dialog = editor.Dialog("Add new item", "add-item");
    dialog.Press(colourButton);
    dialog.Choose(IDC_ADD_LIST, Symbol(key).text);
    dialog.Screenshot(std::string("add-item-") + key);
    dialog.Press(IDOK);
    dialog.WaitUntilClosed();
  }

  // Moves the item just added with the keyboard and leaves it unselected.
  void MoveNewItem(WORD key, int times, std::initializer_list<WORD> held) {
    SelectNewItem();
    for (int i = 0; i < times; ++i) editor.Press(key, held);
    editor.Press(VK_ESCAPE);
  }

  // Adds four items in three colours: one is dragged far below the view, two are moved by keys,
  // and one is deleted.
  void PlaceItems() {
    AddItem("flag", IDC_ADD_SOVIET);
    editor.DragPicture(kNewItem, {310, 900});
    editor.Press(VK_ESCAPE);
    AddItem("star", IDC_ADD_ALLIED);
    MoveNewItem(VK_RIGHT, 3, {VK_CONTROL, VK_SHIFT});
    AddItem("infantry", IDC_ADD_YURI);
    MoveNewItem(VK_DOWN, 7, {VK_CONTROL});
    AddItem("radar", IDC_ADD_SOVIET);
    const std::vector<std::string> lines = SelectInList("03 : x = 100 y = 100", "select-item");
    EXPECT_EQ(lines, (std::vector<std::string>{"00 : x = 300 y = " + std::to_string(FlagY()),
                                               "01 : x = 130 y = 100", "02 : x = 100 y = 135",
                                               "03 : x = 100 y = 100"}));
    const ImageClass before = editor.ShownPicture();
    editor.Menu("Edit", "Delete item");
    WaitUntil("the item to go", [&] { return !SamePixels(editor.ShownPicture(), before); });
  }

  std::vector<std::string> SelectInList(const std::string& line, const std::string& screenName) {
    editor.Menu("Edit", "Select item...");
    const Window dialog = editor.Dialog("Select item", screenName);
    const std::vector<std::string> lines = dialog.Lines(IDC_SELECT_LIST);
    dialog.Choose(IDC_SELECT_LIST, line);
    dialog.Press(IDCANCEL);
    dialog.WaitUntilClosed();
    return lines;
  }

  void ReadAboutBox() {
    editor.Menu("Help", "About");
    const Window about = editor.Dialog("About Corvanta", "about");
    EXPECT_EQ(about.Text(IDC_ABOUT_TITLE), "Corvanta 1.1");
    EXPECT_FALSE(about.Text(IDC_ABOUT_README).empty());
    about.Press(IDCANCEL);
    about.WaitUntilClosed();
  }

  void ExpectWholeScreen(const ImageClass& picture) const {
    ExpectPart(picture, Template(Icon("heavytank").file), 256, 380, "icon 1");
    ExpectPart(picture, Template(Icon("bomber").file), 350, 380, "icon 2");
    ExpectPart(picture, Template(Icon("radar_dome").file), 444, 380, "icon 3");
    constexpr int kCovered = 80;
    ExpectPart(picture, LowerPart(screenshot, kCovered), 542, 267 + kCovered, "the screenshot");
    ExpectPart(picture, Tinted("flag", 0xCE0000), 300, FlagY(), "the flag");
    ExpectPart(picture, Tinted("star", 0x6150FF), 130, 100, "the star");
    ExpectPart(picture, Tinted("infantry", 0xCE1EFA), 100, 135, "the infantry");
    ExpectZoomedMap(picture, 232, 103);
  }

  Editor editor;
  TempFolder folder;
  ImageClass screenshot;  // as the load screen has to show it

 private:
  Window OpenSettings(const std::string& screenName) {
    editor.Menu("Tools", "Load screen settings...");
    return editor.Dialog("Load screen settings", screenName);
  }

  void Crop(const ImageClass& source) {
    const Window dialog = editor.Dialog("Crop image", "crop");
    RECT preview{};
    GetClientRect(dialog.Control(IDC_CROP_PREVIEW).Handle(), &preview);
    const POINT at = {preview.right * 3 / 5, preview.bottom / 2};
    dialog.ClickAt(IDC_CROP_PREVIEW, at);
    const int x = CropAroundMouse(at.x, preview.right, source.width, kShotWidth);
    const int y = CropAroundMouse(at.y, preview.bottom, source.height, kShotHeight);
    WaitUntil("the crop position in the fields", [&] {
      return dialog.Text(IDC_CROP_X) == std::to_string(x) &&
             dialog.Text(IDC_CROP_Y) == std::to_string(y);
    });
    EXPECT_GT(x, 0);
    EXPECT_GT(y, 0);
    dialog.Screenshot("crop-clicked");
    screenshot.Create(kShotWidth, kShotHeight);
    screenshot.CopyRegion(source, 0, 0, x, y, kShotWidth, kShotHeight);
    dialog.Press(IDOK);
    dialog.WaitUntilClosed();
  }

  void SelectNewItem() {
    const ImageClass before = editor.ShownPicture();
    editor.ClickPicture(kNewItem);
    WaitUntil("the selection mark", [&] { return !SamePixels(editor.ShownPicture(), before); });
  }

  // Where a drag far below the picture leaves the flag.
  static int FlagY() { return 518 - Template(Symbol("flag").file).height; }

  static ImageClass Tinted(const char* key, uint32_t colour) {
    ImageClass symbol = Template(Symbol(key).file);
    ReplaceColor(symbol, 0xFFFF00, colour);
    return symbol;
  }
};

}  // namespace

TEST_F(FullScreenTest, IsMadeAndExported) {
  editor.Start();
  ChooseSideAndIcons();
  ChooseScreenshot();
  AdjustScreenshot();
  PlaceItems();
  ReadAboutBox();
  editor.Main().BringToFront();
  editor.Main().Screenshot("full");

  const ImageClass picture = SavePicture(editor, "full.png");
  ExpectWholeScreen(picture);
  ExpectShown(editor, picture, 103);

  const std::string shp = NewResultPath("full.shp"), pal = NewResultPath("full.pal");
  editor.Menu("File", "Save as SHP...");
  SaveDialog(editor, "save-shp-full").Save(shp);
  const ShpOptions options(editor, "shp-options-full");
  options.TypePaletteName(pal);
  options.Export();
  ExpectSprite(shp, pal, picture, 256);
}
