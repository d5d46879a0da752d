#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <vector>

#include "e2e/editor.h"
#include "resources/resource.h"
#include "support/file_content.h"
#include "support/picture_difference.h"
#include "support/temp_folder.h"
#include "support/user.h"
#include "tools/run.h"

namespace fs = std::filesystem;

namespace {

// The picture that the contents of a sprite file and its palette file show; empty when they are no
// such files.
ImageClass ReadSprite(const std::string& shp, const std::string& pal) {
  const TempFolder folder;
  const std::string names[] = {folder.Path("a.shp"), folder.Path("a.pal"), folder.Path("a.png")};
  WriteContent(names[0], shp);
  WriteContent(names[1], pal);
  Output output;
  const std::vector<std::string> show = {"show", names[0], names[1], names[2]};
  EXPECT_EQ(RunSprite(show, output), kDone) << output.err;
  return output.err.empty() ? LoadPicture(names[2]) : ImageClass();
}

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

// Goes through the export's dialogs up to its OK button.
HWND BeginExport(const Editor& editor, const std::string& shp, const std::string& pal) {
  editor.Command(IDM_SAVE_AS_SHP);
  editor.SaveAs(shp);
  const HWND options = editor.Dialog("SHP save options");
  EXPECT_FALSE(IsEnabled(options, IDOK)) << "before the palette has a name";
  editor.Click(options, IDC_SHP_BROWSE);
  WaitUntil("the palette's Save dialog", [&] { return !IsWindowEnabled(options); });
  editor.SaveAs(pal);
  WaitUntil("the chosen name", [&] { return Text(options, IDC_SHP_NAME) == pal; });
  return options;
}

// Exports <name>.shp and <name>.pal with a generated palette of so many colours. They are turned
// back into a picture, which is saved as <name>.shp.png and returned: the screen as the game shows
// it.
ImageClass ExportSprite(const Editor& editor, const std::string& name, int colours) {
  const std::string shp = NewResultPath(name + ".shp"), result = NewResultPath(name + ".pal");
  const std::string pal = (UserFolder() / (name + ".pal")).string();
  fs::create_directories(UserFolder());
  fs::remove(pal);
  const HWND options = BeginExport(editor, shp, pal);
  if (colours != 256) Type(options, IDC_SHP_COLOURS, std::to_string(colours));
  Screenshot(options, "shp-options-" + name);
  editor.Close(options, IDOK);
  fs::copy_file(pal, fs::u8path(result));

  const ImageClass sprite = ReadSprite(ReadContent(shp), ReadContent(pal));
  const auto used = static_cast<int>(CountColours(sprite));
  EXPECT_TRUE(colours - 10 < used && used <= colours) << used << " colours in " << shp;
  SaveResult(name + ".shp.png", sprite);
  return sprite;
}

TEST(CoreTest, SavesTheSamePictureInEveryFormatAfterStartUp) {
  Editor editor;
  editor.WaitForPicture();
  EXPECT_EQ(editor.Status(), "Allied - 2");
  SavePicture(editor, "start.png");
  ExportSprite(editor, "start", 256);
}

// The editor in an application folder that the test may spoil.
class FailingSystemTest : public testing::Test {
 protected:
  FailingSystemTest() {
    const fs::path from = fs::u8path(EditorPath()).parent_path(), to = fs::u8path(folder.Path());
    for (const char* file : {"Corvanta.exe", "ImageLib.dll", "Settings.ini", "Templates"}) {
      fs::copy(from / file, to / file, fs::copy_options::recursive);
    }
  }
  void Lose(const std::string& file) { fs::remove(fs::u8path(folder.Path(file))); }

  const TempFolder folder;
  const std::string executable = folder.Path("Corvanta.exe");
};

TEST_F(FailingSystemTest, FilesThatCannotBeWrittenAreTold) {
  Editor editor(executable);
  editor.WaitForPicture();
  const std::string good = folder.Path("good.shp"), lent = folder.Path("lent.shp");
  WriteContent(lent, "another program has it");
  const HANDLE held =
      CreateFileA(lent.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  for (const std::string& bad : {lent, folder.Path("con")}) {
    for (const bool isSprite : {true, false}) {
      const HWND options = BeginExport(editor, isSprite ? bad : good, folder.Path("good.pal"));
      if (!isSprite) Paste(GetDlgItem(options, IDC_SHP_NAME), bad);
      editor.Click(options, IDOK);
      editor.Answer("Error", isSprite ? "SHP file open error!" : "Palette file create error!",
                    IDOK);
      WaitUntil("the options to close", [options] { return !IsWindow(options); });
      EXPECT_EQ(ReadContent(good).size(), isSprite ? 0 : 416032);
      Lose("good.shp");
    }
  }
  CloseHandle(held);
  EXPECT_EQ(ReadContent(lent), "another program has it");
  EXPECT_FALSE(fs::exists(fs::u8path(folder.Path("good.pal"))));
}

TEST_F(FailingSystemTest, WhatHasGoneSinceTheStartIsTold) {
  Editor editor(executable);
  editor.WaitForPicture();
  ASSERT_TRUE(OpenClipboard(nullptr));
  const HWND owner = GetClipboardOwner();
  editor.Command(IDM_COPY);
  editor.Command(IDM_ADD_ITEM);
  editor.Close(editor.Dialog("Add new item"), IDCANCEL);
  EXPECT_EQ(owner, GetClipboardOwner()) << "what this program has open is not the editor's";
  CloseClipboard();
  Lose("Settings.ini");
  editor.Command(IDM_ADD_ITEM);
  editor.Answer("Error", "Error: Can't find Settings.ini file in application directory!", IDOK);
  editor.Close(editor.Dialog("Add new item"), IDCANCEL);
  Lose("Templates/sov_worldmap.png");
  fs::copy(fs::u8path(EditorPath()).parent_path() / "Settings.ini", fs::u8path(folder.Path()));
  editor.Command(IDM_LOAD_SCREEN_SETTINGS);
  editor.Click(editor.Dialog("Load screen settings"), IDC_SETTINGS_SOVIET);
  editor.Answer("Error", "Can't find file!", IDOK);
  EXPECT_EQ(editor.WaitForExit(), 0u);
}

TEST_F(FailingSystemTest, MissingTemplateIsToldAndEndsTheEditor) {
  const struct {
    const char *file, *caption, *text;
  } cases[] = {
      {"all_2icomain.png", "Error", "Can't find file!"},
      {"all_worldmap.png", "Error", "Can't find file!"},
      {"com_worldmap2x.png", "Corvanta", "Error: Can't find com_worldmap2x.PNG file."},
  };
  for (const auto& missing : cases) {
    Lose(std::string("Templates/") + missing.file);
    const Editor editor(executable);
    editor.Answer(missing.caption, missing.text, IDOK);
    EXPECT_EQ(editor.WaitForExit(), 0u);
  }
}

// Anything a user can do, in whatever window stands. The script so far is told with a failure.
class RandomUse {
 public:
  RandomUse(const Editor& editor, unsigned seed) : editor_(editor), random_(seed) {}

  void Act() {
    std::vector<HWND> windows;
    WaitUntil("one window to take input. Script:\n" + script_, [&] {
      if (!editor_.IsRunning()) GiveUp("The editor has ended. Script:\n" + script_);
      windows = editor_.Windows();
      std::erase_if(windows, [](HWND window) { return ClassOf(window) == "ComboLBox"; });
      return windows.size() == 1;
    });
    windows[0] == editor_.Main() ? WorkMainWindow() : WorkDialog(windows[0]);
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  void Send(HWND window, UINT message, int wParam, int lParam) {
    script_ += ClassOf(window) + " " + std::to_string(GetDlgCtrlID(window)) + ": " +
               std::to_string(message) + " " + std::to_string(wParam) + " " +
               std::to_string(lParam) + "\n";
    // What opens a window does not return before that is closed.
    SendMessageTimeoutA(window, message, static_cast<WPARAM>(wParam), lParam, SMTO_NORMAL, 100,
                        nullptr);
  }
  void WorkMainWindow() {
    constexpr UINT kCommands[] = {
        IDM_ADD_ITEM,       IDM_LOAD_SCREEN_SETTINGS, IDM_SCREENSHOT_SETTINGS, IDM_SAVE_AS_IMAGE,
        IDM_SAVE_AS_SHP,    IDM_SELECT_ITEM,          IDM_DELETE_ITEM,         IDM_UNSELECT_ITEM,
        IDM_COPY,           IDM_VIEW_TOP_LAYER,       IDM_VIEW_BOTTOM_LAYER,   IDM_STATUS_BAR,
        IDM_MOVE_SMALL_MAP, IDM_MOVE_LARGE_MAP,       IDM_MOVE_TARGET_BOX,     IDM_ABOUT};
    const HWND view = FindChild(editor_.Main(), "ViewClass");
    switch (Below(4)) {
      case 0:
        return Send(editor_.Main(), WM_COMMAND, kCommands[Below(std::size(kCommands))], 0);
      case 1:
        return Send(editor_.Main(), WM_KEYDOWN, VK_LEFT + Below(4), 0);
      default:
        return Send(view, WM_MOUSEMOVE + Below(3), MK_LBUTTON, MAKELPARAM(Below(900), Below(600)));
    }
  }
  void WorkDialog(HWND dialog) {
    const std::vector<HWND> controls = ChildWindows(dialog);
    if (controls.empty()) return;  // it is closing
    const HWND control = controls[static_cast<size_t>(Below(static_cast<int>(controls.size())))];
    const std::string kind = ClassOf(control);
    // The system's dialogs might write anywhere.
    if (Below(8) == 0 || FindChild(dialog, "ToolbarWindow32")) {
      Send(dialog, WM_CLOSE, 0, 0);
    } else if (kind == "Button") {
      Send(control, BM_CLICK, 0, 0);
    } else if (kind == "Edit") {
      Send(control, WM_CHAR, "0a.\\9"[Below(5)], 0);
    } else if (kind != "Static") {
      Send(control, WM_KEYDOWN, VK_PRIOR + Below(8), 0);
    }
  }

  const Editor& editor_;
  std::mt19937 random_;
  std::string script_;
};

TEST_F(FailingSystemTest, RandomUseEndsOnlyOnYes) {
  Editor editor(executable);
  editor.WaitForPicture();
  const char* const seed = std::getenv("CORVANTA_SEED");
  RandomUse user(editor, seed ? static_cast<unsigned>(std::atoi(seed)) : 1);
  for (int left = std::getenv("CORVANTA_LONG") ? 2000 : 100; left > 0; --left) user.Act();
  WaitUntil("every dialog to close", [&] {
    for (const HWND window : editor.Windows()) {
      if (window != editor.Main()) PostMessageA(window, WM_CLOSE, 0, 0);
    }
    return IsWindowEnabled(editor.Main()) != 0;
  });
  editor.Command(IDM_EXIT);
  editor.Answer("Corvanta", "Do you want to close Corvanta now?\nAll data won't be saved!", IDYES);
  EXPECT_EQ(editor.WaitForExit(), 0u);
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
  void ChooseSideAndIcons() {
    const HWND settings = OpenSettings();
    Press(settings, plan.settings.count);
    Press(settings, plan.settings.side);
    int slot = IDC_SETTINGS_ICON1;
    for (const char* icon : plan.settings.icons) ChooseText(settings, slot++, icon);
    Screenshot(settings, plan.name + "-settings");
    editor.Close(settings, IDCANCEL);
    EXPECT_EQ(editor.Status(), plan.name + " - " + std::to_string(plan.settings.icons.size()));
  }

  void ChooseScreenshot() {
    const std::string path = LentSample();
    const HWND settings = OpenSettings();
    EXPECT_TRUE(IsChecked(settings, plan.settings.count) &&
                IsChecked(settings, plan.settings.side));
    editor.Click(settings, IDC_SETTINGS_BROWSE);
    editor.OpenPicture(path);
    editor.Answer("Corvanta", "Size of image isn't 234x232.Do you want to crop this image?", IDYES);
    Crop();
    WaitUntil("the screenshot's path", [&] { return Text(settings, IDC_SETTINGS_PATH) == path; });
    editor.Close(settings, IDCANCEL);
  }

  void AdjustScreenshot() {
    editor.Command(IDM_SCREENSHOT_SETTINGS);
    const HWND dialog = editor.Dialog("Screen shot settings");
    Press(dialog, IDC_SHOT_GREYSCALE);
    EXPECT_FALSE(IsEnabled(dialog, IDC_SHOT_RED));
    Press(dialog, IDC_SHOT_GREYSCALE);
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
    editor.Tap(VK_UP, 2, {VK_CONTROL});
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
  HWND OpenSettings() {
    editor.Command(IDM_LOAD_SCREEN_SETTINGS);
    return editor.Dialog("Load screen settings");
  }

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
  ChooseSideAndIcons();
  ChooseScreenshot();
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
