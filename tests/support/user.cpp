#include "support/user.h"

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <thread>

#include "support/find_window.h"

namespace {

constexpr UINT kTickTime = 10;   // milliseconds
constexpr int kPatience = 1000;  // ticks without anything happening
constexpr int kMostMessages = 10000;

struct Search {
  std::string caption;
  HWND found = nullptr;
  std::string all;
};

// A window that the user can work with: visible and not blocked by another one.
HWND Standing(const std::string& caption, std::string* all = nullptr) {
  Search search{caption, nullptr, ""};
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM param) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(param);
        if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
        const std::string text = Text(window);
        wanted.all += "\n  " + ClassOf(window) + " \"" + text + "\"";
        if (text != wanted.caption) return TRUE;
        wanted.found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  if (all) *all = search.all;
  return search.found;
}

// The control, when the user can reach it.
HWND Reach(HWND dialog, int id) {
  const HWND control = GetDlgItem(dialog, id);
  if (!control) {
    ADD_FAILURE() << "\"" << Text(dialog) << "\" has no control " << id;
  } else if (!IsWindowVisible(control) || !IsWindowEnabled(control)) {
    ADD_FAILURE() << "control " << id << " of \"" << Text(dialog) << "\" is hidden or disabled";
  } else {
    return control;
  }
  return nullptr;
}

// What a message box shows.
struct BoxContent {
  std::string text;
  HICON icon = nullptr;
};

BoxContent ReadBox(HWND box) {
  BoxContent content;
  EnumChildWindows(
      box,
      [](HWND child, LPARAM param) -> BOOL {
        auto& read = *reinterpret_cast<BoxContent*>(param);
        if (ClassOf(child) != "Static") return TRUE;
        if (const LRESULT icon = SendMessageA(child, STM_GETICON, 0, 0)) {
          read.icon = reinterpret_cast<HICON>(icon);
        } else if (!Text(child).empty()) {
          read.text = Text(child);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&content));
  return content;
}

HICON IconOf(UINT type) {
  switch (type) {
    case MB_ICONHAND:
      return LoadIconA(nullptr, IDI_HAND);
    case MB_ICONEXCLAMATION:
      return LoadIconA(nullptr, IDI_EXCLAMATION);
    case MB_ICONQUESTION:
      return LoadIconA(nullptr, IDI_QUESTION);
    default:
      return nullptr;
  }
}

bool IsListBox(HWND control) { return ClassOf(control) == "ListBox"; }

}  // namespace

struct User::Script {
  struct Step {
    std::string caption;
    std::function<void(HWND)> action;
  };
  std::deque<Step> steps;
  UINT_PTR timer = 0;
  int idleTicks = 0;

  static Script* current;

  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (current) current->Play();
  }

  void Play() {
    const HWND window = steps.empty() ? nullptr : Standing(steps.front().caption);
    if (window) {
      idleTicks = 0;
      const Step step = steps.front();
      steps.pop_front();
      step.action(window);
    } else if (++idleTicks == kPatience) {
      GiveUp();
    }
  }

  void GiveUp() {
    std::string all;
    Standing("", &all);
    ADD_FAILURE() << "The user waits in vain for "
                  << (steps.empty() ? "the loop to end" : "\"" + steps.front().caption + "\"")
                  << "; these windows stand:" << all;
    steps.clear();
    PostQuitMessage(1);
  }
};

User::Script* User::Script::current = nullptr;

User::User() : script_(new Script) {
  EXPECT_EQ(Script::current, nullptr) << "two users at once";
  Script::current = script_;
  script_->timer = SetTimer(nullptr, 0, kTickTime, Script::Tick);
}

User::~User() {
  KillTimer(nullptr, script_->timer);
  for (const Script::Step& step : script_->steps)
    ADD_FAILURE() << "\"" << step.caption << "\" never stood for its step";
  // After giving up, the message that has ended the loops must not end those of the next test.
  MSG message{};
  while (PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
  }
  Script::current = nullptr;
  delete script_;
}

void User::When(const std::string& caption, std::function<void(HWND)> action) {
  script_->steps.push_back({caption, std::move(action)});
}

void User::Answer(const std::string& caption, const std::string& text, UINT icon, int button) {
  When(caption, [=](HWND box) {
    const BoxContent content = ReadBox(box);
    EXPECT_EQ(content.text, text) << "in the message box \"" << caption << "\"";
    EXPECT_EQ(content.icon, IconOf(icon)) << "of the message box \"" << caption << "\"";
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

size_t User::StepsLeft() const { return script_->steps.size(); }

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
  const auto count = static_cast<int>(Items(dialog, id).size());
  if (position < 0 || position >= count) {
    ADD_FAILURE() << "list " << id << " has no entry " << position;
    return;
  }
  SetFocus(list);
  // From the neighbour it is one key press, and so one notification; a single entry is the first.
  const UINT select = IsListBox(list) ? LB_SETCURSEL : CB_SETCURSEL;
  const int neighbour = position > 0 ? position - 1 : count > 1 ? 1 : -1;
  SendMessageA(list, select, static_cast<WPARAM>(neighbour), 0);
  PressKey(list, position > 0 ? VK_DOWN : count > 1 ? VK_UP : VK_HOME);
}

void Slide(HWND dialog, int id, int position) {
  const HWND bar = Reach(dialog, id);
  if (!bar) return;
  SetFocus(bar);
  const bool first = position <= SendMessageA(bar, TBM_GETRANGEMIN, 0, 0);
  SendMessageA(bar, TBM_SETPOS, TRUE, first ? position + 1 : position - 1);
  PressKey(bar, first ? VK_LEFT : VK_RIGHT);
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
  std::string text(static_cast<size_t>(GetWindowTextLengthA(window)) + 1, '\0');
  text.resize(
      static_cast<size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::string Text(HWND dialog, int id) { return Text(GetDlgItem(dialog, id)); }

bool IsEnabled(HWND dialog, int id) { return IsWindowEnabled(GetDlgItem(dialog, id)); }

bool IsVisible(HWND dialog, int id) { return IsWindowVisible(GetDlgItem(dialog, id)); }

bool IsChecked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }

std::vector<std::string> Items(HWND dialog, int id) {
  const HWND list = GetDlgItem(dialog, id);
  const bool box = IsListBox(list);
  std::vector<std::string> items;
  const LRESULT count = SendMessageA(list, box ? LB_GETCOUNT : CB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    const auto place = static_cast<WPARAM>(i);
    const LRESULT length = SendMessageA(list, box ? LB_GETTEXTLEN : CB_GETLBTEXTLEN, place, 0);
    std::string text(static_cast<size_t>(length) + 1, '\0');
    SendMessageA(list, box ? LB_GETTEXT : CB_GETLBTEXT, place,
                 reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    items.push_back(text);
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
