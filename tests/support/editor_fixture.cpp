#include "support/editor_fixture.h"

#include <cstring>
#include <filesystem>

#include "controls/control.h"
#include "dialogs/shp_options.h"
#include "export/shp_export.h"
#include "imagelib/imagelib.h"
#include "imaging/image_files.h"
#include "shell/main_window.h"
#include "shell/startup.h"
#include "shell/view_window.h"
#include "support/file_content.h"

namespace {

namespace fs = std::filesystem;

// Templates of the default sizes, encoded once for all tests.
const TempFolder& DefaultTemplates() {
  static const TempFolder folder;
  if (fs::is_empty(folder.Path())) WriteTemplates(folder.Path(), {});
  return folder;
}

LPARAM ClientPoint(int32_t canvasX, int32_t canvasY) {
  return MAKELPARAM(canvasX + doc.viewOffsetX - doc.viewScrollX,
                    canvasY + doc.viewOffsetY - doc.viewScrollY);
}

UINT CommandState(UINT id) {
  const UINT state = GetMenuState(GetMenu(doc.mainWindow), id, MF_BYCOMMAND);
  EXPECT_NE(static_cast<UINT>(-1), state) << "no command " << id;
  return state;
}

}  // namespace

EditorFixture::EditorFixture() {
  // The editor makes its folder the current one, and that can't be removed on Windows.
  GetCurrentDirectoryA(MAX_PATH, previousDirectory_);
  fs::create_directory(File("Templates"));
  const std::string appDir = AppPath("");
  std::memcpy(doc.appDir, appDir.c_str(), appDir.size() + 1);
}

EditorFixture::~EditorFixture() { SetCurrentDirectoryA(previousDirectory_); }

void EditorFixture::SetUp() {
  for (const fs::directory_entry& file : fs::directory_iterator(DefaultTemplates().Path())) {
    fs::copy_file(file.path(), File("Templates") / file.path().filename(),
                  fs::copy_options::skip_existing);
  }
  ASSERT_TRUE(StartEditor(GetModuleHandleA(nullptr), SW_SHOW));
}

void EditorFixture::TearDown() {
  if (IsWindow(doc.mainWindow)) DestroyWindow(doc.mainWindow);
  Settle();
  ShutDownEditor();
  for (const char* name : {kMainClassName, kViewClassName, "LinkClass"}) {
    UnregisterClassA(name, GetModuleHandleA(nullptr));
  }
  doc = LoadScreenDoc();
  imageFilter[0] = '\0';
  paletteMode = kGeneratePalette;
  palettePath[0] = '\0';
}

void EditorFixture::WriteSettings(const std::string& text) {
  WriteContent(File("Settings.ini"), text);
}

std::string EditorFixture::WritePng(const std::string& name, const BitmapClass& picture) {
  EXPECT_TRUE(ImageInit());
  EXPECT_TRUE(SaveImageFile(AppPath(name).c_str(), picture)) << name;
  ImageUnInit();
  return AppPath(name);
}

void EditorFixture::Command(UINT id) { SendMessageA(doc.mainWindow, WM_COMMAND, id, 0); }

void EditorFixture::WithDialog(const std::string& caption, UINT command,
                               const std::function<void(HWND)>& step) {
  WithDialog(
      caption, [this, command] { Command(command); }, step);
}

void EditorFixture::WithDialog(const std::string& caption, const std::function<void()>& open,
                               const std::function<void(HWND)>& step) {
  user.When(caption, [step](HWND dialog) {
    step(dialog);
    if (IsWindowVisible(dialog)) Press(dialog, IDCANCEL);
  });
  open();
}

void EditorFixture::Key(int virtualKey) {
  SendMessageA(doc.mainWindow, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
}

void EditorFixture::PressCanvas(int32_t x, int32_t y) {
  SendMessageA(doc.viewWindow, WM_LBUTTONDOWN, MK_LBUTTON, ClientPoint(x, y));
}

void EditorFixture::MoveCanvas(int32_t x, int32_t y) {
  SendMessageA(doc.viewWindow, WM_MOUSEMOVE, MK_LBUTTON, ClientPoint(x, y));
}

void EditorFixture::ReleaseCanvas(int32_t x, int32_t y) {
  SendMessageA(doc.viewWindow, WM_LBUTTONUP, 0, ClientPoint(x, y));
}

void EditorFixture::Drag(int32_t fromX, int32_t fromY, int32_t toX, int32_t toY) {
  PressCanvas(fromX, fromY);
  MoveCanvas(toX, toY);
  ReleaseCanvas(toX, toY);
}

std::string EditorFixture::StatusText(int part) const {
  char text[256] = "";
  SendMessageA(doc.statusBar, SB_GETTEXTA, static_cast<WPARAM>(part),
               reinterpret_cast<LPARAM>(text));
  return text;
}

bool EditorFixture::IsCommandChecked(UINT id) const { return (CommandState(id) & MF_CHECKED) != 0; }

bool EditorFixture::IsCommandEnabled(UINT id) const {
  return (CommandState(id) & (MF_GRAYED | MF_DISABLED)) == 0;
}

void EditorFixture::SizeView(int clientWidth, int clientHeight) {
  // Scroll bars come and go with the size, so it takes a few rounds.
  for (int round = 0; round < 4; ++round) {
    RECT window{};
    GetWindowRect(doc.viewWindow, &window);
    const SIZE client = ClientSize(doc.viewWindow);
    if (client.cx == clientWidth && client.cy == clientHeight) return;
    SetWindowPos(
        doc.viewWindow, nullptr, 0, 0, clientWidth + (window.right - window.left - client.cx),
        clientHeight + (window.bottom - window.top - client.cy), SWP_NOZORDER | SWP_NOACTIVATE);
  }
  ADD_FAILURE() << "The view can't be made " << clientWidth << " x " << clientHeight;
}
