#include "support/user.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "support/find_window.h"

namespace {

constexpr UINT kTickTime = 10;   // milliseconds
constexpr int kPatience = 1000;  // of them
constexpr int kMostMessages = 10000;

HWND Standing(const std::string& caption) {
  for (const HWND window : StandingWindows(GetCurrentThreadId())) {
    if (Text(window) == caption) return window;
  }
  return nullptr;
}

// The control, when the user can reach it.
HWND Reach(HWND dialog, int id) {
  const HWND control = GetDlgItem(dialog, id);
  if (control && IsWindowVisible(control) && IsWindowEnabled(control)) return control;
  ADD_FAILURE() << "control " << id << " of \"" << Text(dialog)
                << "\" is missing, hidden or disabled";
  return nullptr;
}

HICON IconOf(UINT type) {
  const char* const icon = type == MB_ICONHAND          ? IDI_HAND
                           : type == MB_ICONEXCLAMATION ? IDI_EXCLAMATION
                           : type == MB_ICONQUESTION    ? IDI_QUESTION
                                                        : nullptr;
  return icon ? LoadIconA(nullptr, icon) : nullptr;
}

bool IsListBox(HWND control) { return ClassOf(control) == "ListBox"; }

LRESULT Count(HWND list) {
  return SendMessageA(list, IsListBox(list) ? LB_GETCOUNT : CB_GETCOUNT, 0, 0);
}

// Presses a key that no dialog handles itself.
void TapInControl(HWND control, WPARAM key) {
  SendMessageA(control, WM_KEYDOWN, key, 1);
  SendMessageA(control, WM_KEYUP, key, 1);
}

}  // namespace

User* User::current = nullptr;

User::User() : timer_(SetTimer(nullptr, 0, kTickTime, Tick)) {
  EXPECT_EQ(current, nullptr) << "two users at once";
  current = this;
}

User::~User() {
  KillTimer(nullptr, timer_);
  for (const Step& step : steps_)
    ADD_FAILURE() << "\"" << step.caption << "\" never stood for its step";
  // After giving up, the message that has ended the loops must not end those of the next test.
  MSG message{};
  while (PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
  }
  current = nullptr;
}

void User::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (!current) return;
  auto& steps = current->steps_;
  if (const HWND window = steps.empty() ? nullptr : Standing(steps.front().caption)) {
    current->idleTicks_ = 0;
    const Step step = std::move(steps.front());
    steps.pop_front();
    step.action(window);
  } else if (++current->idleTicks_ == kPatience) {
    current->GiveUp();
  }
}

void User::GiveUp() {
  std::string all;
  for (const HWND window : StandingWindows(GetCurrentThreadId()))
    all += "\n  " + ClassOf(window) + " \"" + Text(window) + "\"";
  ADD_FAILURE() << "The user waits in vain for "
                << (steps_.empty() ? "the loop to end" : "\"" + steps_.front().caption + "\"")
                << "; these windows stand:" << all;
  steps_.clear();
  PostQuitMessage(1);
}

void User::When(const std::string& caption, std::function<void(HWND)> action) {
  steps_.push_back({caption, std::move(action)});
}

void User::Answer(const std::string& caption, const std::string& text, UINT icon, int button) {
  When(caption, [=](HWND box) {
    std::string shownText;
    HICON shownIcon = nullptr;
    for (const HWND child : ChildWindows(box)) {
      if (ClassOf(child) != "Static") continue;
      const LRESULT shown = SendMessageA(child, STM_GETICON, 0, 0);
      if (shown) shownIcon = reinterpret_cast<HICON>(shown);
      if (!shown) shownText += Text(child);
    }
    EXPECT_EQ(shownText, text) << "in the message box \"" << caption << "\"";
    EXPECT_EQ(shownIcon, IconOf(icon)) << "of the message box \"" << caption << "\"";
    // The only button of a box may carry the number of Cancel.
    Press(box, button == IDOK && !GetDlgItem(box, IDOK) ? IDCANCEL : button);
  });
}

void User::ChooseFile(const std::string& caption, const std::string& path) {
  When(caption, [=](HWND dialog) {
    SendMessageA(dialog, CDM_SETCONTROLTEXT, cmb13, reinterpret_cast<LPARAM>(path.c_str()));
    Press(dialog, IDOK);
  });
}

void Press(HWND dialog, int id) {
  if (const HWND button = Reach(dialog, id)) SendMessageA(button, BM_CLICK, 0, 0);
}

void Type(HWND dialog, int id, const std::string& text) {
  const HWND edit = Reach(dialog, id);
  if (!edit) return;
  SetFocus(edit);
  SendMessageA(edit, EM_SETSEL, 0, -1);
  if (text.empty()) SendMessageA(edit, WM_CHAR, VK_BACK, 1);
  for (const char letter : text) SendMessageA(edit, WM_CHAR, static_cast<unsigned char>(letter), 1);
}

void Choose(HWND dialog, int id, int position) {
  const HWND list = Reach(dialog, id);
  if (!list) return;
  const LRESULT count = Count(list);
  EXPECT_TRUE(position >= 0 && position < count) << "of list " << id;
  SetFocus(list);
  // From the neighbour it is one key press, and so one notification; a single entry is the first.
  const int neighbour = position > 0 ? position - 1 : count > 1 ? 1 : -1;
  SendMessageA(list, IsListBox(list) ? LB_SETCURSEL : CB_SETCURSEL, static_cast<WPARAM>(neighbour),
               0);
  TapInControl(list, position > 0 ? VK_DOWN : count > 1 ? VK_UP : VK_HOME);
}

void Slide(HWND dialog, int id, int position) {
  const HWND bar = Reach(dialog, id);
  if (!bar) return;
  SetFocus(bar);
  const bool first = position <= SendMessageA(bar, TBM_GETRANGEMIN, 0, 0);
  SendMessageA(bar, TBM_SETPOS, TRUE, first ? position + 1 : position - 1);
  TapInControl(bar, first ? VK_LEFT : VK_RIGHT);
}

void PressKey(HWND window, int virtualKey) {
  HWND dialog = window;
  while (dialog && ClassOf(dialog) != "#32770") dialog = GetParent(dialog);
  for (const UINT message : {UINT{WM_KEYDOWN}, UINT{WM_KEYUP}}) {
    if (!IsWindow(window)) return;
    MSG key{window, message, static_cast<WPARAM>(virtualKey), 1, 0, {0, 0}};
    if (!dialog || !IsDialogMessageA(dialog, &key)) DispatchMessageA(&key);
  }
}

void Click(HWND window, int x, int y) {
  SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void SelectFile(HWND fileDialog, const std::string& path) {
  SendMessageA(fileDialog, CDM_SETCONTROLTEXT, cmb13, reinterpret_cast<LPARAM>(path.c_str()));
  const HWND child = FindChild(fileDialog, "#32770");
  if (!child) {
    ADD_FAILURE() << "\"" << Text(fileDialog) << "\" has no extension";
    return;
  }
  OFNOTIFYA notice{};
  notice.hdr.hwndFrom = fileDialog;
  notice.hdr.code = static_cast<UINT>(CDN_SELCHANGE);
  SendMessageA(child, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
}

std::string Text(HWND window) {
  // Not GetWindowText, which reads no control of another process.
  std::string text(static_cast<size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
  text.resize(static_cast<size_t>(
      SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

std::string Text(HWND dialog, int id) { return Text(GetDlgItem(dialog, id)); }

bool IsEnabled(HWND dialog, int id) { return IsWindowEnabled(GetDlgItem(dialog, id)); }

bool IsVisible(HWND dialog, int id) { return IsWindowVisible(GetDlgItem(dialog, id)); }

bool IsChecked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }

std::vector<std::string> Items(HWND dialog, int id) {
  const HWND list = GetDlgItem(dialog, id);
  const bool box = IsListBox(list);
  std::vector<std::string> items(static_cast<size_t>(Count(list)));
  for (size_t i = 0; i < items.size(); ++i) {
    const LRESULT length = SendMessageA(list, box ? LB_GETTEXTLEN : CB_GETLBTEXTLEN, i, 0);
    items[i].resize(static_cast<size_t>(length));
    SendMessageA(list, box ? LB_GETTEXT : CB_GETLBTEXT, i,
                 reinterpret_cast<LPARAM>(items[i].data()));
  }
  return items;
}

int Selected(HWND dialog, int id) {
  const HWND list = GetDlgItem(dialog, id);
  return static_cast<int>(SendMessageA(list, IsListBox(list) ? LB_GETCURSEL : CB_GETCURSEL, 0, 0));
}

void Settle() {
  MSG message{};
  for (int i = 0; i < kMostMessages && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); ++i) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

// A window that was just shown takes over the real keyboard's state when the focus arrives, which
// releases the keys again: they are held once they have stayed down for a while.
HoldKeys::HoldKeys(std::vector<BYTE> keys) : keys_(std::move(keys)) {
  const auto isUp = [](BYTE key) { return (GetAsyncKeyState(key) & 0x8000) == 0; };
  for (int round = 0, calm = 0; round < 500 && calm < 5; ++round, ++calm) {
    for (const BYTE key : keys_) {
      if (!isUp(key)) continue;
      keybd_event(key, 0, 0, 0);
      calm = 0;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

HoldKeys::~HoldKeys() {
  for (const BYTE key : keys_) keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
}
