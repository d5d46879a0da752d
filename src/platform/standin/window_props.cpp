#include <algorithm>
#include <cstring>

#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace standin {

WindowPtr RootOf(HWND handle) {
  auto window = FindWindowPtr(handle);
  while (window && window->IsChild()) window = FindWindowPtr(window->parent);
  return window;
}

bool IsInside(HWND ancestor, HWND handle) {
  for (auto window = handle ? FindWindowPtr(handle) : nullptr; window;
       window = window->IsChild() ? FindWindowPtr(window->parent) : nullptr) {
    if (window->handle == ancestor) return true;
  }
  return false;
}

std::vector<HWND> GroupOf(const Window& control) {
  const auto& all = SiblingsOf(control);
  const auto starts = [](HWND window) { return GetWindowLongPtrA(window, GWL_STYLE) & WS_GROUP; };
  auto first = std::find(all.begin(), all.end(), control.handle);
  const auto end = std::find_if(first + 1, all.end(), starts);
  while (first != all.begin() && !starts(*first)) --first;
  return {first, end};
}

namespace {

// The word at an index of Get- and SetWindowLongPtrA that is stored as it is, or null.
LONG_PTR* PlainWord(Window& window, int index) {
  switch (index) {
    case GWLP_USERDATA:
      return &window.userData;
    case DWLP_MSGRESULT:
      return window.dialog ? &window.dialog->result : nullptr;
    case DWLP_USER:
      return window.dialog ? &window.dialog->user : nullptr;
    default:
      return nullptr;
  }
}

bool ForEachDescendant(const std::vector<HWND>& windows, WNDENUMPROC proc, LPARAM param) {
  for (const HWND window : windows) {
    if (!IsWindow(window)) continue;
    if (!proc(window, param)) return false;
    const auto found = FindWindowPtr(window);
    if (found && !ForEachDescendant(std::vector<HWND>(found->children), proc, param)) return false;
  }
  return true;
}

}  // namespace
}  // namespace standin

using namespace standin;

LONG_PTR GetWindowLongPtrA(HWND handle, int index) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  if (const LONG_PTR* word = PlainWord(*window, index)) return *word;
  switch (index) {
    case GWL_STYLE:
      return window->style;
    case GWL_EXSTYLE:
      return window->exStyle;
    case GWLP_WNDPROC:
      return reinterpret_cast<LONG_PTR>(window->proc);
    default:
      Unsupported("GetWindowLongPtrA index " + std::to_string(index));
  }
}

LONG_PTR SetWindowLongPtrA(HWND handle, int index, LONG_PTR value) {
  const auto window = FindWindowPtr(handle);
  if (!window) return 0;
  const LONG_PTR before = GetWindowLongPtrA(handle, index);
  if (LONG_PTR* word = PlainWord(*window, index)) {
    *word = value;
    return before;
  }
  if (index == GWL_STYLE) window->style = static_cast<DWORD>(value);
  if (index == GWL_EXSTYLE) window->exStyle = static_cast<DWORD>(value);
  if (index == GWLP_WNDPROC) window->proc = reinterpret_cast<WNDPROC>(value);
  return before;
}

BOOL IsWindow(HWND handle) {
  const DWORD error = GetLastError();
  const bool found = handle && FindWindowPtr(handle);
  SetLastError(error);
  return found;
}

BOOL IsWindowVisible(HWND handle) {
  auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  while (window->style & WS_VISIBLE) {
    if (!window->IsChild()) return TRUE;
    window = FindWindowPtr(window->parent);
    if (!window) break;
  }
  return FALSE;
}

BOOL IsWindowEnabled(HWND handle) {
  const auto window = FindWindowPtr(handle);
  return window && !(window->style & WS_DISABLED);
}

BOOL EnableWindow(HWND handle, BOOL enable) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  const bool wasDisabled = window->style & WS_DISABLED;
  if (enable && wasDisabled) {
    window->style &= ~static_cast<DWORD>(WS_DISABLED);
    SendMessageA(handle, WM_ENABLE, TRUE, 0);
  } else if (!enable && !wasDisabled) {
    window->style |= WS_DISABLED;
    // The window itself loses the keyboard; a window inside it keeps it.
    if (GetFocus() == handle) SetFocus(nullptr);
    if (GetCapture() == handle) ReleaseCapture();
    SendMessageA(handle, WM_ENABLE, FALSE, 0);
  }
  return wasDisabled;
}

HWND GetParent(HWND handle) {
  const auto window = FindWindowPtr(handle);
  if (!window) return nullptr;
  return window->style & (WS_CHILD | WS_POPUP) ? window->parent : nullptr;
}

HMENU GetMenu(HWND handle) {
  const auto window = FindWindowPtr(handle);
  return window && !window->IsChild() ? window->menu : nullptr;
}

int GetDlgCtrlID(HWND handle) {
  const auto window = FindWindowPtr(handle);
  return window ? static_cast<int>(window->id) : 0;
}

HWND FindWindowA(LPCSTR className, LPCSTR text) {
  const auto windowClass = className ? FindClass(className) : nullptr;
  if (className && !windowClass) return nullptr;
  for (const HWND handle : TopLevelWindows()) {
    const auto window = FindWindowPtr(handle);
    if (windowClass && window->windowClass != windowClass) continue;
    if (!text || window->text == text) return handle;
  }
  return nullptr;
}

BOOL EnumChildWindows(HWND parent, WNDENUMPROC proc, LPARAM param) {
  const auto window = FindWindowPtr(parent);
  if (!window) return FALSE;
  ForEachDescendant(std::vector<HWND>(window->children), proc, param);
  return TRUE;
}

BOOL EnumThreadWindows(DWORD, WNDENUMPROC proc, LPARAM param) {
  for (const HWND window : std::vector<HWND>(TopLevelWindows())) {
    if (IsWindow(window) && !proc(window, param)) return FALSE;
  }
  return TRUE;
}

int GetClassNameA(HWND handle, LPSTR buffer, int size) {
  const auto window = FindWindowPtr(handle);
  if (!window || size <= 0) return 0;
  std::strncpy(buffer, window->windowClass->name.c_str(), static_cast<size_t>(size));
  buffer[size - 1] = '\0';
  return static_cast<int>(std::strlen(buffer));
}

int GetWindowTextA(HWND handle, LPSTR buffer, int size) {
  if (size <= 0) return 0;
  buffer[0] = '\0';
  return static_cast<int>(SendMessageA(handle, WM_GETTEXT, static_cast<WPARAM>(size),
                                       reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthA(HWND handle) {
  return static_cast<int>(SendMessageA(handle, WM_GETTEXTLENGTH, 0, 0));
}

BOOL SetWindowTextA(HWND handle, LPCSTR text) {
  return FindWindowPtr(handle) &&
         SendMessageA(handle, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) == TRUE;
}
