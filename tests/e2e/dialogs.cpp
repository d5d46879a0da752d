#include "e2e/dialogs.h"

#include <gtest/gtest.h>

#include "e2e/expected.h"
#include "e2e/input.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "resources/resource.h"
#include "support/find_window.h"

namespace {

// Fills in the name. The field's id, and what it lies in, differ between the old and the new file
// dialogs, but it is the first edit control of both.
void EnterName(const Window& dialog, const std::string& path) {
  const HWND field = FindChild(dialog.Handle(), "Edit");
  if (!field) GiveUp("The file dialog has no field for a name.");
  SendMessageA(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
  EXPECT_EQ(Window(field).Text(), path);
}

}  // namespace

void SaveDialog::Save(const std::string& path) const {
  EnterName(dialog_, path);
  dialog_.PressAndClose(IDOK);
}

void OpenPicture(const Editor& editor, const std::string& path) {
  const Window dialog = editor.Dialog("Choose file to open", "open-empty");
  EnterName(dialog, path.substr(0, path.rfind('\\')));
  dialog.Press(IDOK);
  HWND list = nullptr;
  WaitUntil("the folder's only file in the list", [&] {
    list = FindChild(dialog.Handle(), "SysListView32");
    return list && SendMessageA(list, LVM_GETITEMCOUNT, 0, 0) == 1;
  });
  // A click beside the only entry gives the list the keyboard.
  const RECT area = ClientArea(list);
  Click({area.right - 20, area.bottom - 20});
  TapKey(VK_HOME);
  TapKey(VK_SPACE);
  const Window pane(FindWindowExA(dialog.Handle(), nullptr, "#32770", nullptr));
  const HWND preview = pane.Control(IDC_OPEN_PREVIEW).Handle();
  WaitUntil("the preview of " + path,
            [&] { return CountColours(CaptureScreen(ClientArea(preview))) > 100; });
  dialog.Screenshot("open-preview");
  dialog.PressAndClose(IDOK);
}

void AnswerBox(const Editor& editor, const std::string& caption, const std::string& text,
               int button, const std::string& screenName) {
  constexpr int kTextOfBox = 0xFFFF;
  const Window box = editor.Dialog(caption, screenName);
  EXPECT_EQ(box.Text(kTextOfBox), text) << "in the box \"" << caption << "\"";
  box.PressAndClose(button);
}

ImageClass SavePicture(const Editor& editor, const std::string& name) {
  const std::string path = NewResultPath(name);
  editor.MenuWithKeys("File", "Save as...");
  SaveDialog(editor, "save-as").Save(path);
  return LoadPicture(path);
}

void ExportSprite(const Editor& editor, const std::string& name, const ImageClass& picture,
                  int colours, PaletteName how) {
  const std::string shp = NewResultPath(name + ".shp"), pal = NewResultPath(name + ".pal");
  editor.Menu("File", "Save as SHP...");
  SaveDialog(editor, "save-shp").Save(shp);
  const Window options = editor.Dialog("SHP save options", "shp-options-" + name);
  EXPECT_FALSE(options.IsEnabled(IDOK)) << "before the palette has a name";
  EXPECT_EQ(options.Text(IDC_SHP_COLOURS), "256");
  if (how == PaletteName::Typed) {
    options.Type(IDC_SHP_NAME, pal);
  } else {
    options.Press(IDC_SHP_BROWSE);
    WaitUntil("the palette's Save dialog", [&] { return !IsWindowEnabled(options.Handle()); });
    SaveDialog(editor, "save-pal").Save(pal);
    WaitUntil("the chosen name", [&] { return options.Text(IDC_SHP_NAME) == pal; });
  }
  if (colours != 256) options.Type(IDC_SHP_COLOURS, std::to_string(colours));
  options.PressAndClose(IDOK);
  ExpectSprite(shp, pal, picture, colours);
}
