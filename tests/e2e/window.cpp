#include "e2e/window.h"

#include "e2e/input.h"
#include "e2e/screen.h"

namespace {

bool IsDropDownList(HWND control) {
  char name[32] = "";
  GetClassNameA(control, name, sizeof name);
  return lstrcmpiA(name, "ComboBox") == 0;
}

LRESULT Find(HWND list, const std::string& entry) {
  const UINT message = IsDropDownList(list) ? CB_FINDSTRINGEXACT : LB_FINDSTRINGEXACT;
  const LRESULT position =
      SendMessageA(list, message, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(entry.c_str()));
  if (position < 0) GiveUp("The list has no entry \"" + entry + "\".");
  return position;
}

// A click goes through the queue: keys, and questions by message, may otherwise overtake it.
void WaitForClick(HWND control) {
  WaitUntil("the clicked control to have the keyboard and to let go of the mouse", [control] {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    return GetGUIThreadInfo(GetWindowThreadProcessId(control, nullptr), &state) &&
           state.hwndFocus == control && !state.hwndCapture;
  });
}

}  // namespace

Window Window::Control(int id) const {
  const HWND control = GetDlgItem(handle_, id);
  if (!control) GiveUp("\"" + Text() + "\" has no control " + std::to_string(id) + ".");
  return Window(control);
}

std::string Window::Text() const {
  char text[1024] = "";
  SendMessageA(handle_, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
  return text;
}

bool Window::IsChecked(int id) const {
  return SendMessageA(Control(id).Handle(), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void Window::BringToFront() const {
  WaitUntil("\"" + Text() + "\" to come to the front", [this] {
    if (GetForegroundWindow() == handle_) return true;
    SetForegroundWindow(handle_);
    return false;
  });
}

void Window::Press(int id) const {
  const HWND control = Control(id).Handle();
  const std::string what = "control " + std::to_string(id) + " of \"" + Text() + "\" to be enabled";
  WaitUntil(what, [&] { return IsWindowVisible(control) && IsWindowEnabled(control); });
  const RECT area = ClientArea(control);
  ClickAt(id, {(area.right - area.left) / 2, (area.bottom - area.top) / 2});
}

void Window::ClickAt(int id, POINT at) const {
  const HWND control = Control(id).Handle();
  POINT point{};
  // What lies there may be the group box around the control, which lets the click through. A window
  // that has just come may still be moved to its place.
  WaitUntil("control " + std::to_string(id) + " of \"" + Text() + "\" to lie open", [&] {
    BringToFront();
    const RECT area = ClientArea(control);
    point = {area.left + at.x, area.top + at.y};
    return GetAncestor(WindowFromPoint(point), GA_ROOT) == handle_;
  });
  Click(point);
}

void Window::Type(int id, const std::string& text) const {
  Press(id);
  const Window edit = Control(id);
  // All of it by keys: a message would overtake the click, which may itself come late.
  WaitUntil("the text to be selected that \"" + text + "\" replaces", [&edit] {
    TapKey(VK_HOME);
    {
      const HeldKeys shift = {VK_SHIFT};
      TapKey(VK_END);
    }
    const LRESULT selection = SendMessageA(edit.Handle(), EM_GETSEL, 0, 0);
    return LOWORD(selection) == 0 && HIWORD(selection) == edit.Text().size();
  });
  TypeText(text);
  WaitUntil("the typed text \"" + text + "\"", [&] { return edit.Text() == text; });
}

void Window::Choose(int id, const std::string& entry) const {
  const HWND list = Control(id).Handle();
  const LRESULT position = Find(list, entry);
  const bool dropDown = IsDropDownList(list);
  Press(id);
  if (dropDown) {
    WaitUntil("the list to drop down",
              [&] { return SendMessageA(list, CB_GETDROPPEDSTATE, 0, 0) != 0; });
  } else {
    WaitForClick(list);
  }
  TapKey(VK_HOME);
  for (LRESULT i = 0; i < position; ++i) TapKey(VK_DOWN);
  if (dropDown) TapKey(VK_RETURN);
  WaitUntil("the choice of \"" + entry + "\"", [&] {
    if (!dropDown) return SendMessageA(list, LB_GETCURSEL, 0, 0) == position;
    return SendMessageA(list, CB_GETCURSEL, 0, 0) == position &&
           SendMessageA(list, CB_GETDROPPEDSTATE, 0, 0) == 0;
  });
}

std::vector<std::string> Window::Lines(int id) const {
  const HWND list = Control(id).Handle();
  std::vector<std::string> lines;
  const LRESULT count = SendMessageA(list, LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    // As wide characters, which is what comes from another process either way.
    wchar_t wide[256] = L"";
    char text[256] = "";
    SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(wide));
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    lines.push_back(text);
  }
  return lines;
}

int Window::Slide(int id, WORD key, int times) const {
  const HWND slider = Control(id).Handle();
  const auto position = [&] { return static_cast<int>(SendMessageA(slider, TBM_GETPOS, 0, 0)); };
  Press(id);
  WaitForClick(slider);
  for (int i = 0; i < times; ++i) {
    const int before = position();
    TapKey(key);
    WaitUntil("the slider to move", [&] { return position() != before; });
  }
  return position();
}

void Window::Screenshot(const std::string& name) const {
  RECT area{};
  GetWindowRect(handle_, &area);
  SaveScreen(name, area);
}

void Window::PressAndClose(int id) const {
  Press(id);
  WaitUntil("a window to close", [this] { return !IsWindow(handle_); });
}
