#include "shell/main_window.h"

#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "resources/resource.h"
#include "shell/commands.h"
#include "shell/editing.h"
#include "shell/status_bar.h"
#include "shell/view_window.h"

namespace {

LRESULT OnCreate(HWND window) {
  doc.mainWindow = window;
  doc.statusBar = CreateStatusBar(window, doc.instance);
  doc.viewWindow = CreateWindowExA(0, kViewClassName, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                                   window, nullptr, doc.instance, nullptr);
  // Both write status text and repaint, so the bar and the view stand before.
  SetSide(Allied);
  SetIconCount(2);
  CheckCommand(kViewPopup, IDM_STATUS_BAR, true);
  return 0;
}

LRESULT OnClose(HWND window) {
  const int answer =
      MessageBoxA(window, "Do you want to close Corvanta now?\nAll data won't be saved!",
                  "Corvanta", MB_YESNO | MB_ICONQUESTION);
  if (answer == IDYES) DestroyWindow(window);
  return 0;
}

void LayOut(int clientWidth, int clientHeight) {
  const int statusHeight = PlaceStatusBar(doc.statusBar);
  SetWindowPos(doc.viewWindow, nullptr, 0, 0, clientWidth, clientHeight - statusHeight,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

}  // namespace

void LayOutMainWindow() {
  RECT client{};
  GetClientRect(doc.mainWindow, &client);
  LayOut(client.right, client.bottom);
}

LRESULT CALLBACK MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
      return OnCreate(window);
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    // While a dialog is open the window is disabled: what another program sends then would open a
    // second dialog over the first.
    case WM_CLOSE:
      return IsWindowEnabled(window) ? OnClose(window) : 0;
    case WM_SIZE:
      LayOut(LOWORD(lParam), HIWORD(lParam));
      break;
    case WM_KEYDOWN:
      HandleKey(wParam);
      break;
    case WM_COMMAND:
      if (IsWindowEnabled(window)) RunCommand(LOWORD(wParam));
      break;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}
