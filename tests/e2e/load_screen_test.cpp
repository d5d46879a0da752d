#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "document/load_screen_doc.h"
#include "e2e/dialogs.h"
#include "e2e/editor.h"
#include "e2e/expected.h"
#include "e2e/input.h"
#include "e2e/load_screen_plans.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "imaging/crop_geometry.h"
#include "imaging/pixel_colour.h"
#include "imaging/screenshot_adjustment.h"
#include "resources/resource.h"
#include "settings/ini_class.h"
#include "support/case_name.h"

namespace fs = std::filesystem;

namespace {

constexpr POINT kNewItem = {110, 110};  // on an item where it is added, at (100, 100)
constexpr int kShotWidth = 234, kShotHeight = 232;

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

uint32_t ColourOf(int button) {
  return button == IDC_ADD_ALLIED ? 0x6150FF : button == IDC_ADD_SOVIET ? 0xCE0000 : 0xCE1EFA;
}

// Past an edge a map goes on at its opposite edge itself.
void Scroll(int32_t& position, int by, int32_t size) {
  position += by;
  if (position < 0) position = size - 1;
  if (position >= size) position = 0;
}

// What one press does to `doc`, far from the target box's limits.
void ExpectMove(const std::string& mode, WORD key) {
  const int by = key == VK_LEFT || key == VK_UP ? -10 : 10;
  const bool sideways = key == VK_LEFT || key == VK_RIGHT;
  if (mode == "Move target box") {
    doc.targetBoxY += by;
  } else if (mode == "Move small map") {
    Scroll(sideways ? doc.worldMapX : doc.worldMapY, by,
           sideways ? doc.worldMap.width : doc.worldMap.height);
  } else {
    Scroll(sideways ? doc.worldMap2xX : doc.worldMap2xY, by,
           sideways ? doc.worldMap2x.width : doc.worldMap2x.height);
  }
}

// One user making a whole load screen, step by step.
class LoadScreenTest : public testing::TestWithParam<Plan> {
 protected:
  void ChooseSideAndIcons() {
    const Window settings = OpenSettings();
    settings.Press(plan.countButton);
    settings.Press(plan.sideButton);
    ExpectFreshDocument(plan.prefix, plan.IconCount());
    for (int slot = 0; slot < plan.IconCount(); ++slot) {
      const Entry icon = Listed("CameosList", plan.cameos[static_cast<size_t>(slot)]);
      settings.Choose(IDC_SETTINGS_ICON1 + slot, icon.text);
      doc.icons[slot] = Template(icon.file);
    }
    settings.Screenshot(plan.name + "-settings");
    settings.PressAndClose(IDCANCEL);
    ExpectShown(editor);
    EXPECT_EQ(editor.Status(0), plan.name + " - " + std::to_string(plan.IconCount()));
  }

  void ChooseScreenshot() {
    const std::string path = LentSample();
    const Window settings = OpenSettings();
    EXPECT_TRUE(settings.IsChecked(plan.countButton));
    EXPECT_TRUE(settings.IsChecked(plan.sideButton));
    settings.Press(IDC_SETTINGS_BROWSE);
    OpenPicture(editor, path);
    AnswerBox(editor, "Corvanta", "Size of image isn't 234x232.Do you want to crop this image?",
              IDYES, "crop-question");
    Crop(LoadPicture(path));
    WaitUntil("the screenshot's path", [&] { return settings.Text(IDC_SETTINGS_PATH) == path; });
    settings.PressAndClose(IDCANCEL);
    ExpectShown(editor);
  }

  void AdjustScreenshot() {
    editor.Menu("Tools", "Screenshot settings...");
    const Window dialog = editor.Dialog("Screen shot settings", "screenshot-settings");
    dialog.Press(IDC_SHOT_GREYSCALE);
    WaitUntil("the colour sliders to be disabled", [&] { return !dialog.IsEnabled(IDC_SHOT_RED); });
    dialog.Screenshot("screenshot-settings-grey");
    dialog.Press(IDC_SHOT_GREYSCALE);
    ScreenshotAdjustment adjustment;
    int32_t& channel = plan.dimmed == IDC_SHOT_RED     ? adjustment.red
                       : plan.dimmed == IDC_SHOT_GREEN ? adjustment.green
                                                       : adjustment.blue;
    channel = dialog.Slide(plan.dimmed, VK_LEFT, 3);
    adjustment.lightness = dialog.Slide(IDC_SHOT_LIGHTNESS, plan.lightness, 3);
    EXPECT_LT(channel, 255);
    EXPECT_EQ(adjustment.lightness < 255, plan.lightness == VK_LEFT);
    dialog.Screenshot(plan.name + "-screenshot-settings");
    dialog.PressAndClose(IDOK);
    AdjustColours(doc.screenshot, adjustment);
    ExpectShown(editor);
  }

  void MoveMaps() {
    for (const Move& move : plan.moves) {
      editor.Menu("Mode", move.mode);
      WaitUntil("the mode",
                [&] { return editor.Status(1) == std::string("Current mode: ") + move.mode; });
      editor.Main().BringToFront();
      const HeldKeys fast = {VK_CONTROL, VK_SHIFT};
      for (int i = 0; i < move.presses; ++i) {
        TapKey(move.key);
        ExpectMove(move.mode, move.key);
      }
      ExpectShown(editor);
    }
  }

  void PlaceSymbols() {
    for (const Symbol& symbol : plan.symbols) {
      AddItem(symbol.key, symbol.colourButton);
      DragNewItemTo(symbol.at.x, symbol.at.y);
      editor.Drop();
      UnselectNewItem();
    }
  }

  // Adds one symbol too many, drags it far below the view, moves it by keys, finds it in the list
  // and deletes it.
  void RegretSymbol() {
    AddItem("flag", IDC_ADD_SOVIET);
    editor.Grab(kNewItem);
    editor.DragTo({310, 800});
    const int bottom = 518 - NewItem().image.height;
    ExpectNewItemAt(300, bottom);
    editor.Drop();
    for (int i = 0; i < 3; ++i) editor.Press(VK_RIGHT, {VK_CONTROL, VK_SHIFT});
    ExpectNewItemAt(330, bottom);
    for (int i = 0; i < 2; ++i) editor.Press(VK_UP, {VK_CONTROL});
    ExpectNewItemAt(330, bottom - 10);
    UnselectNewItem();

    editor.Menu("Edit", "Select item...");
    const Window dialog = editor.Dialog("Select item", plan.name + "-select-item");
    const std::vector<std::string> lines = ItemLines();
    EXPECT_EQ(dialog.Lines(IDC_SELECT_LIST), lines);
    dialog.Choose(IDC_SELECT_LIST, lines.back());
    dialog.PressAndClose(IDCANCEL);
    editor.Menu("Edit", "Delete item");
    doc.items.Remove(doc.items.Count() - 1);
    ExpectShown(editor);
  }

  ~LoadScreenTest() override {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  const Plan& plan = GetParam();
  Editor editor;

 private:
  Window OpenSettings() {
    editor.Menu("Tools", "Load screen settings...");
    return editor.Dialog("Load screen settings", "settings");
  }

  // Crops around a clicked place.
  void Crop(const ImageClass& source) {
    const Window dialog = editor.Dialog("Crop image", "crop");
    RECT preview{};
    GetClientRect(dialog.Control(IDC_CROP_PREVIEW).Handle(), &preview);
    const POINT at = {preview.right * plan.crop.x / 100, preview.bottom * plan.crop.y / 100};
    dialog.ClickAt(IDC_CROP_PREVIEW, at);
    const int x = CropAroundMouse(at.x, preview.right, source.width, kShotWidth);
    const int y = CropAroundMouse(at.y, preview.bottom, source.height, kShotHeight);
    WaitUntil("the crop position in the fields", [&] {
      return dialog.Text(IDC_CROP_X) == std::to_string(x) &&
             dialog.Text(IDC_CROP_Y) == std::to_string(y);
    });
    dialog.Screenshot(plan.name + "-crop");
    dialog.PressAndClose(IDOK);
    doc.screenshot.Create(kShotWidth, kShotHeight);
    doc.screenshot.CopyRegion(source, 0, 0, x, y, kShotWidth, kShotHeight);
  }

  void AddItem(const char* key, int colourButton) {
    const Entry symbol = Listed("SymbolsList", key);
    editor.Menu("Edit", "Add new item...");
    const Window dialog = editor.Dialog("Add new item", "add-item");
    dialog.Press(colourButton);
    dialog.Choose(IDC_ADD_LIST, symbol.text);
    dialog.Screenshot(plan.name + "-add-item");
    dialog.PressAndClose(IDOK);
    ItemClass item{100, 100, Template(symbol.file)};
    ReplaceColor(item.image, 0xFFFF00, ColourOf(colourButton));
    doc.items.Add(item);
    ExpectShown(editor);
  }

  static ItemClass& NewItem() { return doc.items.At(doc.items.Count() - 1); }

  void DragNewItemTo(int x, int y) const {
    editor.Grab(kNewItem);
    editor.DragTo({kNewItem.x - 100 + x, kNewItem.y - 100 + y});
    ExpectNewItemAt(x, y);
  }

  // The item added last stands there, selected.
  void ExpectNewItemAt(int x, int y) const {
    NewItem().x = x;
    NewItem().y = y;
    NewItem().selected = 1;
    ExpectShown(editor);
  }

  void UnselectNewItem() const {
    editor.Press(VK_ESCAPE);
    NewItem().selected = 0;
    ExpectShown(editor);
  }

  // The entries of the list in the Select item dialog.
  static std::vector<std::string> ItemLines() {
    std::vector<std::string> lines;
    for (int i = 0; i < doc.items.Count(); ++i) {
      char line[64];
      std::snprintf(line, sizeof line, "%02d : x = %03d y = %03d", i, doc.items.At(i).x,
                    doc.items.At(i).y);
      lines.emplace_back(line);
    }
    return lines;
  }

  // A copy of the sample alone in a folder, so that it is the one entry of the Open dialog's list.
  // The manual shows this path.
  std::string LentSample() {
    fs::remove_all(folder);
    fs::create_directories(folder);
    fs::copy(fs::u8path(SamplePath(plan.sample)), folder / plan.sample);
    return (folder / plan.sample).string();
  }

  const fs::path folder = fs::u8path(std::getenv("PUBLIC")) / "Pictures" / "Corvanta";
};

}  // namespace

TEST_P(LoadScreenTest, IsMadeAndExported) {
  editor.Start();
  ChooseSideAndIcons();
  ChooseScreenshot();
  AdjustScreenshot();
  MoveMaps();
  PlaceSymbols();
  RegretSymbol();
  editor.Main().Screenshot(plan.name);
  const ImageClass picture = SavePicture(editor, plan.name + ".png");
  ExpectSaved(picture);
  for (const int colours : {256, 64}) {
    ExportSprite(editor, plan.name + "-" + std::to_string(colours), picture, colours,
                 PaletteName::Typed);
  }
}

INSTANTIATE_TEST_SUITE_P(Sides, LoadScreenTest, testing::ValuesIn(LoadScreenPlans()), CaseName());
