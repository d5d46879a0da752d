#include "shell/status_bar.h"

HWND CreateStatusBar(HWND parent, HINSTANCE instance) {
  HWND bar = CreateWindowExA(0, STATUSCLASSNAMEA, nullptr,
                             WS_CHILD | WS_VISIBLE | WS_BORDER | SBARS_SIZEGRIP | CCS_BOTTOM, 0, 0,
                             0, 0, parent, nullptr, instance, nullptr);
  if (!bar) return nullptr;
  int rightEdges[] = {70, 270, -1};
  SendMessageA(bar, SB_SETPARTS, 3, reinterpret_cast<LPARAM>(rightEdges));
  SendMessageA(
      bar, SB_SETTEXTA, 2,
      reinterpret_cast<LPARAM>("Press CTRL to move map faster(5x) or press CTRL+SHIFT to move map "
                               "faster (10x)"));
  return bar;
}

int PlaceStatusBar(HWND statusBar) {
  if (!IsWindow(statusBar) || !IsWindowVisible(statusBar)) return 0;
  SendMessageA(statusBar, WM_SIZE, 0, 0);
  RECT bounds{};
  GetWindowRect(statusBar, &bounds);
  return bounds.bottom - bounds.top;
}
