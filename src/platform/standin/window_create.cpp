#include <algorithm>

#include "platform/standin/failure.h"
#include "platform/standin/handles.h"
#include "platform/standin/resources.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

constexpr int kDefaultWidth = 768;
constexpr int kDefaultHeight = 576;

HandleTable<Window>& Windows() {
  static auto* windows = new HandleTable<Window>;
  return *windows;
}

// Corrects the styles as the system does on creation.
void CorrectStyles(Window& window) {
  if (!window.IsChild()) {
    window.style |= WS_CLIPSIBLINGS;
    if (!(window.style & WS_POPUP)) {
      window.style |= WS_CAPTION;
      window.needsSize = true;
    }
  }
  const bool edge =
      (window.exStyle & WS_EX_DLGMODALFRAME) ||
      (!(window.exStyle & WS_EX_STATICEDGE) && (window.style & (WS_DLGFRAME | WS_THICKFRAME)));
  window.exStyle =
      edge ? window.exStyle | WS_EX_WINDOWEDGE : window.exStyle & ~DWORD{WS_EX_WINDOWEDGE};
}

void Link(const Window& window) {
  auto& siblings = SiblingsOf(window);
  // A new control comes after the ones made before it, a new top-level window before them.
  siblings.insert(window.IsChild() ? siblings.end() : siblings.begin(), window.handle);
}

void Unlink(const Window& window) {
  auto& siblings = SiblingsOf(window);
  siblings.erase(std::remove(siblings.begin(), siblings.end(), window.handle), siblings.end());
}

// First the parent hears that it goes, then its children; every window is still whole then.
void SendDestroy(HWND handle) {
  SendMessageA(handle, WM_DESTROY, 0, 0);
  const auto window = Windows().Find(handle);
  if (!window) return;
  for (const HWND child : std::vector<HWND>(window->children)) SendDestroy(child);
}

// Children are freed before their parent.
void Free(HWND handle) {
  const auto window = Windows().Find(handle);
  if (!window) return;
  for (const HWND child : std::vector<HWND>(window->children)) Free(child);
  ForgetWindow(handle);
  SendMessageA(handle, WM_NCDESTROY, 0, 0);
  ForgetMessages(handle);
  if (window->menu && !window->IsChild()) FreeMenu(window->menu);
  Unlink(*window);
  Windows().Remove(handle);
}

// Sends the messages of a window's birth.
void SendCreation(const WindowPtr& window) {
  if (!SendMessageA(window->handle, WM_NCCREATE, 0, 0))
    Unsupported("a window of class " + window->windowClass->name + " that refuses to be made");
  UpdateClient(*window);
  SendMessageA(window->handle, WM_CREATE, 0, 0);
  if (!window->needsSize) SendSize(*window);
}

}  // namespace

WindowPtr FindWindowPtr(HWND handle) {
  auto window = Windows().Find(handle);
  if (!window) SetLastError(ERROR_INVALID_WINDOW_HANDLE);
  return window;
}

std::vector<HWND>& TopLevelWindows() {
  static auto* windows = new std::vector<HWND>;
  return *windows;
}

std::vector<HWND>& SiblingsOf(const Window& window) {
  const auto parent = window.IsChild() ? Windows().Find(window.parent) : nullptr;
  return parent ? parent->children : TopLevelWindows();
}

}  // namespace standin

using namespace standin;

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                     int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     LPVOID param) {
  if (param) Unsupported("a window with a parameter of its own");
  const auto windowClass = FindClass(className);
  if (!windowClass) Unsupported("no window class of that name");
  const auto parentWindow = parent ? FindWindowPtr(parent) : nullptr;
  if ((parent || (style & WS_CHILD)) && !parentWindow)
    Unsupported("a window whose parent has gone");
  auto window = std::make_shared<Window>();
  window->handle = Windows().Add<HWND>(window);
  window->windowClass = windowClass;
  window->proc = windowClass->proc;
  window->style = style & ~static_cast<DWORD>(WS_VISIBLE);
  window->exStyle = exStyle;
  window->instance = instance;
  // A child cannot be the owner of anything: its top-level window is.
  window->parent = parent && !(style & WS_CHILD) ? RootOf(parent)->handle : parent;
  window->text = text ? text : "";
  CorrectStyles(*window);
  if (window->IsChild()) {
    window->id = static_cast<int>(reinterpret_cast<INT_PTR>(menu));
  } else {
    window->menu = menu ? menu : CreateMenuFromResource(windowClass->menu);
  }
  if (x == CW_USEDEFAULT) x = y = 0;
  if (width == CW_USEDEFAULT) {
    width = kDefaultWidth;
    height = kDefaultHeight;
  }
  window->frame = {x, y, x + width, y + height};
  ConstrainCreation(*window);
  UpdateClient(*window);
  Link(*window);
  SendCreation(window);
  const HWND handle = window->handle;
  if (style & WS_VISIBLE) ShowWindow(handle, SW_SHOW);
  return IsWindow(handle) ? handle : nullptr;
}

BOOL DestroyWindow(HWND handle) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  if (window->destroying) return TRUE;
  window->destroying = true;
  if (window->style & WS_VISIBLE) {
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
  }
  ForgetWindow(handle);
  for (const HWND other : std::vector<HWND>(TopLevelWindows())) {
    const auto owned = Windows().Find(other);
    if (owned && owned->parent == handle) DestroyWindow(other);
  }
  SendDestroy(handle);
  Free(handle);
  return TRUE;
}
