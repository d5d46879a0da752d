#include "e2e/editor.h"

#include "document/load_screen_doc.h"
#include "e2e/input.h"
#include "e2e/results.h"
#include "e2e/screen.h"
#include "resources/resource.h"
#include "support/picture_difference.h"

namespace {

// The window of a process that the user can work now, of the class and, unless it is empty, the
// caption.
struct Search {
  DWORD process;
  std::string className, caption;
  HWND found = nullptr;
};

BOOL CALLBACK Compare(HWND window, LPARAM parameter) {
  Search& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process || !IsWindowVisible(window) || !IsWindowEnabled(window)) {
    return TRUE;
  }
  char name[64] = "", text[256] = "";
  GetClassNameA(window, name, sizeof name);
  GetWindowTextA(window, text, sizeof text);
  if (name != search.className) return TRUE;
  if (!search.caption.empty() && text != search.caption) return TRUE;
  search.found = window;
  return FALSE;
}

HWND FindTopWindow(Search search) {
  EnumWindows(Compare, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string MenuText(HMENU menu, int position) {
  char text[128] = "";
  GetMenuStringA(menu, static_cast<UINT>(position), text, sizeof text, MF_BYPOSITION);
  return text;
}

int MenuPosition(HMENU menu, const std::string& text) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    if (MenuText(menu, i) == text) return i;
  }
  GiveUp("The menu has no \"" + text + "\".");
}

// How often the Down key leads from the first item to this one: separators are stepped over.
int DownKeys(HMENU menu, int position) {
  int keys = 0;
  for (int i = 0; i < position; ++i) keys += MenuText(menu, i).empty() ? 0 : 1;
  return keys;
}

}  // namespace

Editor::Editor(const std::string& executable) : executable_(executable) {}

Editor::Editor() : Editor(EditorPath()) {}

Editor::~Editor() {
  if (IsRunning()) {
    TerminateProcess(process_.hProcess, 99);
    WaitForSingleObject(process_.hProcess, 10000);
  }
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
  if (resources_) FreeLibrary(resources_);
}

void Editor::Launch() {
  resources_ = LoadLibraryExA(executable_.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  STARTUPINFOA start{};
  start.cb = sizeof start;
  if (!CreateProcessA(executable_.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &start, &process_)) {
    GiveUp("Can't start " + executable_ + ": error " + std::to_string(GetLastError()) + ".");
  }
}

void Editor::Start() {
  Launch();
  WaitUntil("the main window", [this] {
    mainWindow_ = FindTopWindow({process_.dwProcessId, "PELMARClass", "Corvanta 1.1"});
    if (!mainWindow_ && !IsRunning()) GiveUp("The editor ended.");
    return mainWindow_ != nullptr;
  });
  view_ = FindWindowExA(mainWindow_, nullptr, "ViewClass", nullptr);
  Main().BringToFront();
  WaitUntil("the first mode text", [this] { return Status(1) == "Current mode: Move small map"; });
  RECT client{};
  WaitUntil("the view to get its size",
            [&] { return GetClientRect(view_, &client) && client.right; });
  if (client.right <= kPictureWidth || client.bottom <= kPictureHeight) {
    ShowWindow(mainWindow_, SW_MAXIMIZE);
  }
  WaitUntil("the picture to be drawn", [this] { return CountColours(ShownPicture()) > 100; });
}

Window Editor::Dialog(const std::string& caption, const std::string& screenName) const {
  HWND dialog = nullptr;
  WaitUntil("the dialog \"" + caption + "\" (" + screenName + ")", [&] {
    dialog = FindTopWindow({process_.dwProcessId, "#32770", caption});
    if (!dialog && !IsRunning()) GiveUp("The editor ended before \"" + caption + "\" came.");
    return dialog != nullptr;
  });
  const Window window(dialog);
  window.BringToFront();
  window.Screenshot(screenName);
  return window;
}

void Editor::Menu(const std::string& popup, const std::string& item) const {
  const HMENU menu = LoadMenuA(resources_, MAKEINTRESOURCEA(IDR_MAIN_MENU));
  const HMENU items = GetSubMenu(menu, MenuPosition(menu, popup));
  const UINT command = GetMenuItemID(items, MenuPosition(items, item));
  DestroyMenu(menu);
  WaitUntil("the main window to take commands", [this] { return IsWindowEnabled(mainWindow_); });
  PostMessageA(mainWindow_, WM_COMMAND, command, 0);
}

void Editor::MenuWithKeys(const std::string& popup, const std::string& item) const {
  const HMENU menu = LoadMenuA(resources_, MAKEINTRESOURCEA(IDR_MAIN_MENU));
  const int right = MenuPosition(menu, popup);
  const HMENU items = GetSubMenu(menu, right);
  const int down = DownKeys(items, MenuPosition(items, item));
  DestroyMenu(menu);
  Main().BringToFront();
  TapKey(VK_F10);
  const DWORD thread = GetWindowThreadProcessId(mainWindow_, nullptr);
  WaitUntil("the menu bar to take keys", [&] {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    return GetGUIThreadInfo(thread, &state) && (state.flags & GUI_INMENUMODE) != 0;
  });
  for (int i = 0; i < right; ++i) TapKey(VK_RIGHT);
  TapKey(VK_DOWN);
  WaitUntil("the menu \"" + popup + "\" to open", [this] {
    return FindTopWindow({process_.dwProcessId, "#32768", ""}) != nullptr;
  });
  for (int i = 0; i < down; ++i) TapKey(VK_DOWN);
  Main().Screenshot("menu-" + popup);
  TapKey(VK_RETURN);
}

std::string Editor::Status(int part) const {
  const HWND bar = FindWindowExA(mainWindow_, nullptr, STATUSCLASSNAMEA, nullptr);
  // The bar writes its text where the editor's process can write.
  char text[256] = "";
  void* remote =
      VirtualAllocEx(process_.hProcess, nullptr, sizeof text, MEM_COMMIT, PAGE_READWRITE);
  SendMessageA(bar, SB_GETTEXTA, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(remote));
  ReadProcessMemory(process_.hProcess, remote, text, sizeof text - 1, nullptr);
  VirtualFreeEx(process_.hProcess, remote, 0, MEM_RELEASE);
  return text;
}

void Editor::Press(WORD key, std::initializer_list<WORD> held) const {
  Main().BringToFront();
  const ImageClass before = ShownPicture();
  const HeldKeys modifiers(held);
  TapKey(key);
  WaitUntil("key " + std::to_string(key) + " to change the picture",
            [&] { return !Difference(before, ShownPicture()).empty(); });
}

bool Editor::ViewHasMouse() const {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  return GetGUIThreadInfo(GetWindowThreadProcessId(view_, nullptr), &state) &&
         state.hwndCapture == view_;
}

void Editor::Grab(POINT from) const {
  Main().BringToFront();
  MoveMouse(OnScreen(from));
  MouseDown();
  WaitUntil("the view to capture the mouse", [this] { return ViewHasMouse(); });
}

void Editor::DragTo(POINT to) const { MoveMouse(OnScreen(to)); }

void Editor::Drop() const {
  MouseUp();
  WaitUntil("the view to release the mouse", [this] { return !ViewHasMouse(); });
}

RECT Editor::PictureArea() const {
  const RECT client = ClientArea(view_);
  const LONG left = client.left + (client.right - client.left - kPictureWidth) / 2;
  const LONG top = client.top + (client.bottom - client.top - kPictureHeight) / 2;
  return {left, top, left + kPictureWidth, top + kPictureHeight};
}

POINT Editor::OnScreen(POINT picture) const {
  const RECT area = PictureArea();
  return {area.left + picture.x, area.top + picture.y};
}

ImageClass Editor::ShownPicture() const { return CaptureScreen(PictureArea()); }

bool Editor::IsRunning() const {
  return process_.hProcess && WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Editor::WaitForExit() const {
  WaitUntil("the editor to end", [this] { return !IsRunning(); });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}
