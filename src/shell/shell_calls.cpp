#include "document/shell_calls.h"

#include "document/load_screen_doc.h"
#include "imaging/memory_dc.h"
#include "shell/view_window.h"

namespace {

HMENU Popup(MenuPopup popup) { return GetSubMenu(GetMenu(doc.mainWindow), popup); }

}  // namespace

void RepaintView() {
  const WindowDc dc(doc.viewWindow);
  PaintView(dc.get());
}

void SetStatusText(int part, const char* text) {
  if (!doc.statusBar) return;
  SendMessageA(doc.statusBar, SB_SETTEXTA, static_cast<WPARAM>(part),
               reinterpret_cast<LPARAM>(text));
}

void CheckCommand(MenuPopup popup, unsigned command, bool checked) {
  CheckMenuItem(Popup(popup), command,
                MF_BYCOMMAND | static_cast<UINT>(checked ? MF_CHECKED : MF_UNCHECKED));
}

void EnableCommand(MenuPopup popup, unsigned command, bool enabled) {
  EnableMenuItem(Popup(popup), command,
                 MF_BYCOMMAND | static_cast<UINT>(enabled ? MF_ENABLED : MF_GRAYED));
}
