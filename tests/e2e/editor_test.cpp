#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include "e2e/editor.h"
#include "resources/resource.h"
#include "support/picture_difference.h"
#include "support/user.h"
#include "tools/run.h"

namespace fs = std::filesystem;

namespace {

// Saves the picture by "Save as..." and compares it with what the view shows, in which the system
// draws some lines in its own way.
void SavePicture(const Editor& editor, const std::string& name) {
  const std::string path = NewResultPath(name);
  editor.Command(IDM_SAVE_AS_IMAGE);
  editor.SaveAs(path);
  const ImageClass saved = LoadPicture(path);
  const DIBClass shown = editor.ShownPicture();
  int different = 0;
  for (int i = 0; i < 800 * 520; ++i) {
    different += saved.ReadPixel(i % 800, i / 800) != shown.ReadPixel(i % 800, i / 800);
  }
  EXPECT_LT(different, 2000) << path;
}

// Where the user keeps pictures: the manual shows this path.
fs::path UserFolder() { return fs::u8path(std::getenv("PUBLIC")) / "Pictures" / "Corvanta"; }

// Exports <name>.shp and <name>.pal with a generated palette of so many colours. They are turned
// back into a picture, <name>.shp.png, which is returned: the screen as the game shows it.
ImageClass ExportSprite(const Editor& editor, const std::string& name, int colours) {
  const std::string shp = NewResultPath(name + ".shp"), result = NewResultPath(name + ".pal");
  const std::string pal = (UserFolder() / (name + ".pal")).string();
  fs::create_directories(UserFolder());
  fs::remove(pal);
  const HWND options = editor.BeginExport(shp, pal);
  if (colours != 256) Type(options, IDC_SHP_COLOURS, std::to_string(colours));
  Screenshot(options, "shp-options-" + name);
  editor.Close(options, IDOK);
  fs::copy_file(pal, fs::u8path(result));

  const std::vector<std::string> show = {"show", shp, pal, NewResultPath(name + ".shp.png")};
  Output output;
  EXPECT_EQ(RunSprite(show, output), kDone) << output.err;
  const ImageClass sprite = LoadPicture(show.back());
  const auto used = static_cast<int>(CountColours(sprite));
  EXPECT_TRUE(colours - 10 < used && used <= colours) << used << " colours in " << shp;
  return sprite;
}

TEST(CoreTest, SavesTheSamePictureInEveryFormatAfterStartUp) {
  Editor editor;
  editor.WaitForPicture();
  SavePicture(editor, "start.png");
  ExportSprite(editor, "start", 256);
}

struct Symbol {
  const char* text;
  int colour;
  POINT at;
};

// What the maker of a load screen has in mind.
struct Plan {
  std::string name;
  struct {
    int side, count;
    std::vector<const char*> icons;
  } settings;
  struct {
    const char* sample;
    POINT crop;
    int dimmed, lightness;  // a colour's slider; the position of that of lightness
  } screenshot;
  struct {
    POINT small, large;
    int targetBox;  // down
  } moves;          // in steps of ten pixels
  std::vector<Symbol> symbols;
};

constexpr int kBlue = IDC_ADD_ALLIED, kRed = IDC_ADD_SOVIET, kViolet = IDC_ADD_YURI;

const Plan kPlans[] = {{"Allied",
                        {IDC_SETTINGS_ALLIED,
                         IDC_SETTINGS_THREE,
                         {"Cruiser", "Skimmer transport", "Arrowhead strike jet"}},
                        {"battlefield2.png", {548, 252}, IDC_SHOT_RED, 258},
                        {{-36, 12}, {-90, 30}, 0},
                        {{"Fleet", kBlue, {575, 80}},
                         {"Spearhead left", kBlue, {488, 108}},
                         {"Submarine", kBlue, {400, 125}},
                         {"Infantry", kRed, {470, 210}},
                         {"Radar", kRed, {560, 235}},
                         {"Arrow down left", kBlue, {304, 96}}}},
                       {"Soviet",
                        {IDC_SETTINGS_SOVIET,
                         IDC_SETTINGS_THREE,
                         {"Rampart heavy tank", "Night Heron bomber", "Radar dome"}},
                        {"battlefield1.png", {624, 381}, IDC_SHOT_BLUE, 258},
                        {{8, -4}, {20, -10}, 0},
                        {{"Armour", kRed, {480, 140}},
                         {"Spearhead left", kRed, {462, 206}},
                         {"Aircraft", kRed, {556, 208}},
                         {"Infantry", kBlue, {372, 190}},
                         {"Arrow left", kRed, {92, 190}},
                         {"Flag", kBlue, {56, 188}}}},
                       {"Yuri",
                        {IDC_SETTINGS_YURI, IDC_SETTINGS_TWO, {"Searchlight tower", "Submarine"}},
                        {"battlefield2.png", {764, 352}, IDC_SHOT_GREEN, 252},
                        {{22, 8}, {55, 25}, 2},
                        {{"Base", kViolet, {480, 200}},
                         {"Radar", kViolet, {540, 120}},
                         {"Submarine", kViolet, {400, 301}},
                         {"Question", kBlue, {222, 286}}}}};

void ChooseText(HWND dialog, int id, const char* text) {
  const UINT find = id == IDC_ADD_LIST ? LB_FINDSTRINGEXACT : CB_FINDSTRINGEXACT;
  Choose(dialog, id,
         static_cast<int>(SendDlgItemMessageA(dialog, id, find, static_cast<WPARAM>(-1),
                                              reinterpret_cast<LPARAM>(text))));
}

// One user making a whole load screen, step by step.
class LoadScreenTest : public testing::TestWithParam<Plan> {
 protected:
  void ChooseSideIconsAndScreenshot() {
    const std::string path = LentSample();
    editor.Command(IDM_LOAD_SCREEN_SETTINGS);
    const HWND settings = editor.Dialog("Load screen settings");
    Press(settings, plan.settings.count);
    Press(settings, plan.settings.side);
    int slot = IDC_SETTINGS_ICON1;
    for (const char* icon : plan.settings.icons) ChooseText(settings, slot++, icon);
    Screenshot(settings, plan.name + "-settings");
    editor.Click(settings, IDC_SETTINGS_BROWSE);
    editor.OpenPicture(path);
    editor.Answer("Corvanta", "Size of image isn't 234x232.Do you want to crop this image?", IDYES);
    Crop();
    WaitUntil("the screenshot's path", [&] { return Text(settings, IDC_SETTINGS_PATH) == path; });
    editor.Close(settings, IDCANCEL);
    EXPECT_EQ(editor.Status(), plan.name + " - " + std::to_string(plan.settings.icons.size()));
  }

  void AdjustScreenshot() {
    editor.Command(IDM_SCREENSHOT_SETTINGS);
    const HWND dialog = editor.Dialog("Screen shot settings");
    Slide(dialog, plan.screenshot.dimmed, 201);
    Slide(dialog, IDC_SHOT_LIGHTNESS, plan.screenshot.lightness);
    Screenshot(dialog, plan.name + "-screenshot-settings");
    editor.Close(dialog, IDOK);
  }

  void MoveMaps() {
    Move(IDM_MOVE_SMALL_MAP, plan.moves.small);
    Move(IDM_MOVE_TARGET_BOX, {0, plan.moves.targetBox});
    Move(IDM_MOVE_LARGE_MAP, plan.moves.large);
  }

  // Adds a symbol, which stands at (100, 100), and drags it to its place.
  void Place(const Symbol& symbol) {
    editor.Command(IDM_ADD_ITEM);
    const HWND dialog = editor.Dialog("Add new item");
    Press(dialog, symbol.colour);
    ChooseText(dialog, IDC_ADD_LIST, symbol.text);
    Screenshot(dialog, plan.name + "-add-item");
    editor.Close(dialog, IDOK);
    editor.Drag({110, 110}, {symbol.at.x + 10, symbol.at.y + 10});
  }

  // A symbol too many, dragged far below the view and moved by keys, is found in the list and
  // deleted.
  void RegretSymbol() {
    Place({"Flag", kRed, {300, 790}});
    editor.Tap(VK_RIGHT, 3, {VK_CONTROL, VK_SHIFT});
    editor.Tap(VK_ESCAPE);
    editor.Command(IDM_SELECT_ITEM);
    const HWND dialog = editor.Dialog("Select item");
    Screenshot(dialog, plan.name + "-select-item");
    const size_t last = plan.symbols.size();
    Choose(dialog, IDC_SELECT_LIST, static_cast<int>(last));
    editor.Close(dialog, IDCANCEL);
    editor.Command(IDM_DELETE_ITEM);
  }

  const Plan& plan = GetParam();
  Editor editor;

 private:
  void Move(UINT mode, POINT by) {
    editor.Command(mode);
    if (by.x) editor.Tap(by.x < 0 ? VK_LEFT : VK_RIGHT, std::abs(by.x), {VK_CONTROL, VK_SHIFT});
    if (by.y) editor.Tap(by.y < 0 ? VK_UP : VK_DOWN, std::abs(by.y), {VK_CONTROL, VK_SHIFT});
  }

  // A click takes the picture's middle. The exact place does not depend on how large the system's
  // font makes the dialog.
  void Crop() {
    const HWND dialog = editor.Dialog("Crop image");
    editor.Click(dialog, IDC_CROP_PREVIEW);
    WaitUntil("the crop position in the fields", [&] { return Text(dialog, IDC_CROP_Y) != "0"; });
    Type(dialog, IDC_CROP_X, std::to_string(plan.screenshot.crop.x));
    Type(dialog, IDC_CROP_Y, std::to_string(plan.screenshot.crop.y));
    Screenshot(dialog, plan.name + "-crop");
    editor.Close(dialog, IDOK);
  }

  // A copy of the sample alone beside a folder, so that it is the last line of the Open dialog's
  // list.
  std::string LentSample() {
    const fs::path folder = UserFolder();
    fs::remove_all(folder);
    fs::create_directories(folder / "Maps");
    fs::copy(fs::u8path(CORVANTA_SOURCE "/templates/samples") / plan.screenshot.sample,
             folder / plan.screenshot.sample);
    return (folder / plan.screenshot.sample).string();
  }
};

TEST_P(LoadScreenTest, IsMadeAndExported) {
  editor.WaitForPicture();
  ChooseSideIconsAndScreenshot();
  AdjustScreenshot();
  MoveMaps();
  for (const Symbol& symbol : plan.symbols) Place(symbol);
  RegretSymbol();
  Screenshot(editor.Main(), plan.name);
  SavePicture(editor, plan.name + ".png");
  ExportSprite(editor, plan.name + "-64", 64);
  const ImageClass sprite = ExportSprite(editor, plan.name + "-256", 256);

  std::string shown = plan.name + ".png";
  shown[0] = static_cast<char>(shown[0] - 'A' + 'a');
  EXPECT_EQ(Difference(LoadPicture(CORVANTA_SOURCE "/docs/pictures/" + shown), sprite), "")
      << "The README shows another screen. If the new one, " << ResultPath(plan.name)
      << "-256.shp.png, is right (other templates, another plan), run docs/manual/update-pictures.";
}

INSTANTIATE_TEST_SUITE_P(Sides, LoadScreenTest, testing::ValuesIn(kPlans),
                         [](const auto& test) { return test.param.name; });

}  // namespace
