#include "shell/commands.h"

#include "dialogs/about.h"
#include "dialogs/add_item.h"
#include "dialogs/load_screen_settings.h"
#include "dialogs/screenshot_settings.h"
#include "dialogs/select_item.h"
#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "resources/resource.h"
#include "shell/copy_to_clipboard.h"
#include "shell/main_window.h"
#include "shell/save_commands.h"

namespace {

void Exit() { SendMessageA(doc.mainWindow, WM_CLOSE, 0, 0); }

void ToggleTopLayer() { SetLayers(!doc.showTopLayer, doc.showBottomLayer); }

void ToggleBottomLayer() { SetLayers(doc.showTopLayer, !doc.showBottomLayer); }

void ToggleStatusBar() {
  const bool show = !IsWindowVisible(doc.statusBar);
  ShowWindow(doc.statusBar, show ? SW_SHOW : SW_HIDE);
  CheckCommand(kViewPopup, IDM_STATUS_BAR, show);
  LayOutMainWindow();
}

// The name is looked for in the current folder, which file dialogs change.
void OpenHelp() {
  char current[MAX_PATH] = "";
  GetCurrentDirectoryA(MAX_PATH, current);
  SetCurrentDirectoryA(doc.appDir);
  ShellExecuteA(doc.mainWindow, "open", "TAMOVI.CHM", nullptr, nullptr, SW_SHOW);
  SetCurrentDirectoryA(current);
}

struct Command {
  UINT id;
  void (*run)();
};

// In the menu's order.
constexpr Command kCommands[] = {
    {IDM_SAVE_AS_SHP, [] { SaveAsShp(); }},
    {IDM_SAVE_AS_IMAGE, [] { SaveAsImage(); }},
    {IDM_EXIT, Exit},

    {IDM_ADD_ITEM, OpenAddItem},
    {IDM_SELECT_ITEM, OpenSelectItem},
    {IDM_DELETE_ITEM, DeleteSelectedItem},
    {IDM_UNSELECT_ITEM, UnselectItems},
    {IDM_COPY, CopyToClipboard},

    {IDM_VIEW_TOP_LAYER, ToggleTopLayer},
    {IDM_VIEW_BOTTOM_LAYER, ToggleBottomLayer},
    {IDM_STATUS_BAR, ToggleStatusBar},

    {IDM_LOAD_SCREEN_SETTINGS, OpenLoadScreenSettings},
    {IDM_SCREENSHOT_SETTINGS, [] { OpenScreenshotSettings(doc.mainWindow); }},

    {IDM_MOVE_SMALL_MAP, [] { SetMode(MoveSmallMap); }},
    {IDM_MOVE_LARGE_MAP, [] { SetMode(MoveLargeMap); }},
    {IDM_MOVE_TARGET_BOX, [] { SetMode(MoveTargetBox); }},

    {IDM_HELP, OpenHelp},
    {IDM_ABOUT, OpenAbout},
};

}  // namespace

void SetMode(int mode) {
  doc.mode = static_cast<EditMode>(mode);
  CheckMenuRadioItem(GetSubMenu(GetMenu(doc.mainWindow), kModePopup), MoveSmallMap, MoveTargetBox,
                     static_cast<UINT>(mode), MF_BYPOSITION);
  RepaintView();
}

void RunCommand(UINT id) {
  for (const Command& command : kCommands) {
    if (command.id == id) return command.run();
  }
}
