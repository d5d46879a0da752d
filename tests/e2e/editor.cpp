#include "e2e/editor.h"

#include <gtest/gtest.h>

#include "document/load_screen_doc.h"
#include "imaging/memory_dc.h"
#include "resources/resource.h"
#include "support/picture_difference.h"
#include "support/user.h"

void TapKey(WORD key, int times) {
  // Without the mark, arrows would be those of the number pad, which lift Shift.
  const DWORD mark = key >= VK_PRIOR && key <= VK_DOWN ? KEYEVENTF_EXTENDEDKEY : 0;
  const auto scan = static_cast<BYTE>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
  for (int i = 0; i < times; ++i) {
    for (const DWORD up : {0, KEYEVENTF_KEYUP}) {
      keybd_event(static_cast<BYTE>(key), scan, mark | up, 0);
    }
  }
}

namespace {

// Wine may tell a program the keys as they were so many milliseconds ago.
constexpr DWORD kKeysKept = 60;
// A picture that stays so long shows the last of several keys.
constexpr DWORD kHandled = 150;

// Posted: what opens a window would not return before that is closed.
void PostClick(HWND window, POINT (*place)(RECT client)) {
  RECT client{};
  GetClientRect(window, &client);
  const POINT at = place(client);
  PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
  PostMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

void BringToFront(HWND window) {
  WaitUntil("\"" + Text(window) + "\" to come to the front", [&] {
    if (GetForegroundWindow() == window) return true;
    SetForegroundWindow(window);
    return false;
  });
}

// The field's id, and what it lies in, differ between the old and the new file dialogs, but it is
// the first edit control of both.
void EnterName(HWND dialog, const std::string& path) { Paste(FindChild(dialog, "Edit"), path); }

}  // namespace

void Paste(HWND edit, const std::string& text) {
  SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
  EXPECT_EQ(Text(edit), text);
}

Editor::Editor(const std::string& executable) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  if (!CreateProcessA(executable.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &start, &process_)) {
    GiveUp("Can't start " + executable + ": error " + std::to_string(GetLastError()) + ".");
  }
}

Editor::~Editor() {
  TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, 10000);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

HWND Editor::Standing(const std::string& className, const std::string& caption) const {
  for (const HWND window : Windows()) {
    if (ClassOf(window) == className && (caption.empty() || Text(window) == caption)) return window;
  }
  if (!IsRunning()) GiveUp("The editor ended before \"" + caption + "\" came.");
  return nullptr;
}

// The window is made as large as the picture needs, without a border for those who look at it.
void Editor::WaitForPicture() {
  WaitUntil("the main window", [this] {
    main_ = Standing("PELMARClass", "Corvanta 1.1");
    view_ = main_ ? FindChild(main_, "ViewClass") : nullptr;
    return view_ != nullptr;
  });
  BringToFront(main_);
  RECT window{}, view{};
  GetWindowRect(main_, &window);
  GetClientRect(view_, &view);
  SetWindowPos(main_, nullptr, 0, 0, window.right - window.left - view.right + kPictureWidth,
               window.bottom - window.top - view.bottom + kPictureHeight,
               SWP_NOMOVE | SWP_NOZORDER);
  WaitUntil("the picture to be drawn", [this] { return CountColours(ShownPicture()) > 100; });
}

std::string Editor::Status() const { return Text(FindChild(main_, STATUSCLASSNAMEA)); }

RECT Editor::PictureArea() const {
  const RECT client = ClientArea(view_);
  const LONG left = client.left + (client.right - client.left - kPictureWidth) / 2;
  const LONG top = client.top + (client.bottom - client.top - kPictureHeight) / 2;
  return {left, top, left + kPictureWidth, top + kPictureHeight};
}

DIBClass Editor::ShownPicture() const { return CaptureScreen(PictureArea()); }

void Editor::Command(UINT id) const {
  WaitUntil("the main window to take commands", [this] { return IsWindowEnabled(main_) != 0; });
  PostMessageA(main_, WM_COMMAND, id, 0);
}

GUITHREADINFO Editor::State() const {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  GetGUIThreadInfo(process_.dwThreadId, &state);
  return state;
}

void Editor::Tap(WORD key, int times, const std::vector<BYTE>& held) const {
  BringToFront(main_);
  const DIBClass before = CopyPixels(WindowDc(nullptr).get(), PictureArea());
  const HoldKeys modifiers(held);
  Sleep(kKeysKept);
  TapKey(key, times);
  WaitUntil("key " + std::to_string(key) + " to change the picture",
            [&] { return !Difference(before, CaptureScreen(PictureArea(), kHandled)).empty(); });
}

void Editor::Drag(POINT from, POINT to) const {
  const RECT picture = PictureArea(), view = ClientArea(view_);
  const auto mouse = [&](UINT message, WPARAM buttons, POINT at) {
    SendMessageA(view_, message, buttons,
                 MAKELPARAM(picture.left - view.left + at.x, picture.top - view.top + at.y));
  };
  // The system tells the pointer's own place as well when windows come and go under it.
  const POINT end{picture.left + to.x, picture.top + to.y};
  SetCursorPos(end.x, end.y);
  WaitUntil("the pointer to stay where it was moved", [&end, settled = 0]() mutable {
    POINT at{};
    GetCursorPos(&at);
    settled = at.x == end.x && at.y == end.y ? settled + 1 : 0;
    return settled > 2 || at.y < end.y;  // the screen ends before some places
  });
  mouse(WM_LBUTTONDOWN, MK_LBUTTON, from);
  EXPECT_EQ(view_, State().hwndCapture);
  mouse(WM_MOUSEMOVE, MK_LBUTTON, to);
  mouse(WM_LBUTTONUP, 0, to);
  EXPECT_EQ(nullptr, State().hwndCapture);
}

HWND Editor::Dialog(const std::string& caption) const {
  HWND dialog = nullptr;
  WaitUntil("the dialog \"" + caption + "\"",
            [&] { return (dialog = Standing("#32770", caption)) != nullptr; });
  BringToFront(dialog);
  CaptureScreen(ClientArea(dialog));
  return dialog;
}

void Editor::Click(HWND dialog, int id) const {
  const HWND control = GetDlgItem(dialog, id);
  WaitUntil("control " + std::to_string(id) + " of \"" + Text(dialog) + "\" to take clicks",
            [control] { return IsWindowEnabled(control) && IsWindowVisible(control); });
  PostClick(control, [](RECT area) { return POINT{area.right / 2, area.bottom / 2}; });
}

void Editor::Close(HWND dialog, int button) const {
  Click(dialog, button);
  WaitUntil("a window to close", [dialog] { return !IsWindow(dialog); });
}

void Editor::Answer(const std::string& caption, const std::string& text, int button) const {
  constexpr int kTextOfBox = 0xFFFF;
  const HWND box = Dialog(caption);
  EXPECT_EQ(Text(box, kTextOfBox), text) << "in the box \"" << caption << "\"";
  Close(box, button);
}

void Editor::SaveAs(const std::string& path) const {
  const HWND dialog = Dialog("");
  EnterName(dialog, path);
  Close(dialog, IDOK);
}

HWND Editor::BeginExport(const std::string& shp, const std::string& pal) const {
  Command(IDM_SAVE_AS_SHP);
  SaveAs(shp);
  const HWND options = Dialog("SHP save options");
  Click(options, IDC_SHP_BROWSE);
  WaitUntil("the palette's Save dialog", [&] { return !IsWindowEnabled(options); });
  SaveAs(pal);
  WaitUntil("the chosen name", [&] { return Text(options, IDC_SHP_NAME) == pal; });
  return options;
}

void Editor::OpenPicture(const std::string& path) const {
  const HWND dialog = Dialog("Choose file to open");
  EXPECT_EQ(State().hwndFocus, FindChild(dialog, "Edit")) << "what is typed is the name";
  EnterName(dialog, path.substr(0, path.rfind('\\')));
  Click(dialog, IDOK);
  HWND list = nullptr;
  WaitUntil("the folder's two lines in the list", [&] {
    list = FindChild(dialog, "SysListView32");
    return list && SendMessageA(list, LVM_GETITEMCOUNT, 0, 0) == 2;
  });
  // A click beside the entries gives the list the keyboard, once the dialog is at rest.
  WaitUntil("the list to have the keyboard", [&] {
    list = FindChild(dialog, "SysListView32");
    if (list && State().hwndFocus == list) return true;
    if (list) PostClick(list, [](RECT area) { return POINT{area.right - 20, area.bottom - 20}; });
    Sleep(kHandled);
    return false;
  });
  const HWND preview = GetDlgItem(FindChild(dialog, "#32770"), IDC_OPEN_PREVIEW);
  // The folder is the first line, the picture the last.
  for (const WORD key : {WORD{VK_END}, WORD{VK_HOME}, WORD{VK_END}}) {
    TapKey(key);
    TapKey(VK_SPACE);
    WaitUntil("the preview of " + path + " or none", [&] {
      return (CountColours(CaptureScreen(ClientArea(preview))) > 100) == (key == VK_END);
    });
  }
  Screenshot(dialog, "open-preview");
  Close(dialog, IDOK);
}

bool Editor::IsRunning() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

DWORD Editor::WaitForExit() const {
  WaitUntil("the editor to end", [this] { return !IsRunning(); });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}
