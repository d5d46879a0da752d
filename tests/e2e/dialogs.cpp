#include "e2e/dialogs.h"

#include <gtest/gtest.h>

#include "e2e/expectations.h"
#include "e2e/input.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "e2e/wait.h"
#include "resources/resource.h"

namespace {

BOOL CALLBACK TakeClass(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<std::pair<std::string, HWND>*>(parameter);
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  if (name != search.first || !IsWindowVisible(window)) return TRUE;
  search.second = window;
  return FALSE;
}

// The first visible window of a class below another, null when there is none.
HWND Below(HWND parent, const std::string& className) {
  std::pair<std::string, HWND> search = {className, nullptr};
  EnumChildWindows(parent, TakeClass, reinterpret_cast<LPARAM>(&search));
  return search.second;
}

// The field for the file's name. Its id and what it lies in differ between the old and the new
// file dialogs.
HWND NameField(const Window& dialog) {
  for (const int id : {cmb13, edt1}) {
    const HWND control = GetDlgItem(dialog.Handle(), id);
    if (!control || !IsWindowVisible(control)) continue;
    const HWND inside = Below(control, "Edit");
    return inside ? inside : control;
  }
  const HWND field = Below(dialog.Handle(), "Edit");
  if (!field) GiveUp("The file dialog has no field for a name.");
  return field;
}

void EnterName(const Window& dialog, const std::string& path) {
  SendMessageA(NameField(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
  EXPECT_EQ(Window(NameField(dialog)).Text(), path);
}

}  // namespace

SaveDialog::SaveDialog(const Editor& editor, const std::string& screenName)
    : dialog_(editor.Dialog("", screenName)) {}

void SaveDialog::Save(const std::string& path) const {
  EnterName(dialog_, path);
  dialog_.Press(IDOK);
  dialog_.WaitUntilClosed();
}

OpenDialog::OpenDialog(const Editor& editor)
    : dialog_(editor.Dialog("Choose file to open", "open-empty")) {}

void OpenDialog::Select(const std::string& path) const {
  EnterName(dialog_, path.substr(0, path.rfind('\\')));
  dialog_.Press(IDOK);
  WaitUntil("the folder's only file in the name field or the list", [this] {
    const HWND list = Below(dialog_.Handle(), "SysListView32");
    return list && SendMessageA(list, LVM_GETITEMCOUNT, 0, 0) == 1;
  });
  const HWND list = Below(dialog_.Handle(), "SysListView32");
  const HWND pane = FindWindowExA(dialog_.Handle(), nullptr, "#32770", nullptr);
  if (!pane) GiveUp("The Open dialog has no preview pane.");
  const HWND preview = Window(pane).Control(IDC_OPEN_PREVIEW).Handle();
  // A click beside the only entry gives the list the keyboard.
  const RECT area = ClientArea(list);
  Click({area.right - 20, area.bottom - 20});
  TapKey(VK_HOME);
  TapKey(VK_SPACE);
  WaitUntil("the preview of " + path,
            [&] { return CountColours(CaptureScreen(ClientArea(preview))) > 100; });
  dialog_.Screenshot("open-preview");
}

void OpenDialog::Open() const {
  dialog_.Press(IDOK);
  dialog_.WaitUntilClosed();
}

ShpOptions::ShpOptions(const Editor& editor, const std::string& screenName)
    : editor_(editor), dialog_(editor.Dialog("SHP save options", screenName)) {
  EXPECT_FALSE(dialog_.IsEnabled(IDOK)) << "before a palette has a name";
  EXPECT_EQ(dialog_.Text(IDC_SHP_COLOURS), "256");
}

void ShpOptions::TypePaletteName(const std::string& path) const {
  dialog_.Type(IDC_SHP_NAME, path);
}

void ShpOptions::BrowsePaletteName(const std::string& path) const {
  dialog_.Press(IDC_SHP_BROWSE);
  WaitUntil("the palette's Save dialog", [this] { return !IsWindowEnabled(dialog_.Handle()); });
  SaveDialog(editor_, "save-pal").Save(path);
  WaitUntil("the chosen palette name", [&] { return dialog_.Text(IDC_SHP_NAME) == path; });
}

void ShpOptions::SetColours(int colours) const {
  dialog_.Type(IDC_SHP_COLOURS, std::to_string(colours));
}

void ShpOptions::Export() const {
  dialog_.Press(IDOK);
  dialog_.WaitUntilClosed();
}

void AnswerBox(const Editor& editor, const std::string& caption, const std::string& text,
               int button, const std::string& screenName) {
  const Window box = editor.Dialog(caption, screenName);
  const HWND label = GetDlgItem(box.Handle(), 0xFFFF);
  EXPECT_EQ(label ? Window(label).Text() : "", text) << "in the box \"" << caption << "\"";
  box.Press(button);
  box.WaitUntilClosed();
}

ImageClass SavePicture(const Editor& editor, const std::string& name) {
  const std::string path = NewResultPath(name);
  editor.MenuWithKeys("File", "Save as...");
  SaveDialog(editor, "save-as").Save(path);
  return LoadPicture(path);
}

void ExpectShown(const Editor& editor, const ImageClass& picture, int boxY) {
  WaitUntil("the view to show what was saved",
            [&] { return SameOnScreen(editor.ShownPicture(), picture, boxY); });
}
