// Any session of a user with the running editor, one action after another in whatever window
// stands: what the document promises holds after each of them, the editor can always be left, and
// nothing of it remains.
#include <utility>

#include "fuzz/fuzz_target.h"
#include "platform/standin/testing.h"
#include "support/editor_fixture.h"
#include "support/file_content.h"
#include "support/find_window.h"

// What the editor promises at any moment; in session_checks.cpp. A broken promise ends the process.

// The document's and the view's fields are within their ranges and fit together and what the menu
// and the scroll bars show.
void CheckDocument();

// The picture is composed the same way twice, and `shown` in the view already. Repaints the view.
void CheckComposition(bool shown);

namespace {

constexpr size_t kMostActions = 400;
constexpr size_t kActionsPerPicture = 4;
constexpr char kOpenCaption[] = "Choose file to open";

constexpr UINT kCommands[] = {
    IDM_SAVE_AS_SHP,       IDM_SAVE_AS_IMAGE, IDM_EXIT,           IDM_SELECT_ITEM,
    IDM_DELETE_ITEM,       IDM_UNSELECT_ITEM, IDM_COPY,           IDM_VIEW_TOP_LAYER,
    IDM_VIEW_BOTTOM_LAYER, IDM_STATUS_BAR,    IDM_MOVE_SMALL_MAP, IDM_MOVE_LARGE_MAP,
    IDM_MOVE_TARGET_BOX,   IDM_HELP,          IDM_ABOUT};
constexpr UINT kDialogs[] = {IDM_ADD_ITEM, IDM_LOAD_SCREEN_SETTINGS, IDM_SCREENSHOT_SETTINGS};
constexpr UINT kMouseMessages[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_MOUSEMOVE,
                                   WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP};
// None is a template without which the editor ends itself.
constexpr const char* kFileNames[] = {"exact.png", "large.png", "wide.png",  "small.png",
                                      "broken",    "missing",   "Templates", "new\\file.bmp",
                                      "out.bmp",   "out.jpg",   "out.shp",   "out.pal",
                                      "good.pal",  "a?b",       "",          "."};
constexpr TemplateSizes kSizes[] = {
    {},
    {{40, 30}, {10, 7}, {8, 8}, {3, 3}, {20, 20}},
    {{810, 530}, {300, 1000}, {500, 300}, {300, 400}, {90, 520}},
};
constexpr std::pair<const char*, PictureSize> kPictures[] = {
    {"Templates\\dot.png", {1, 1}},     {"Templates\\star.png", {75, 60}},
    {"Templates\\line.png", {800, 1}},  {"Templates\\huge.png", {810, 530}},
    {"Templates\\cameo.png", {76, 60}}, {"exact.png", {234, 232}},
    {"large.png", {300, 260}},          {"wide.png", {1000, 232}},
    {"small.png", {233, 500}}};
constexpr char kSettings[] =
    "[SymbolsList]\r\n1=Dot,dot.png\r\n2=Star,star.png\r\n3=Line,line.png\r\n4=Huge,huge.png\r\n"
    "5=Gone,gone.png\r\n6=Broken,..\\broken\r\n"
    "[CameosList]\r\n1=One, cameo.png\r\n2=Two, cameo.png\r\n3=Star, star.png\r\n4=Gone, gone.png";

// The input as a row of choices; 0 once it has ended.
class Choices {
 public:
  Choices(const uint8_t* data, size_t size) : next_(data), end_(data + size) {}
  bool Left() const { return next_ != end_; }
  int Below(int end) {
    int number = 0;
    for (int range = 1; range < end && Left(); range *= 256) number = number * 256 + *next_++;
    return number % end;
  }
  bool Chance(int outOf) { return Below(outOf) == outOf - 1; }
  template <class List>
  const auto& From(const List& list) {
    return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
  }

 private:
  const uint8_t* next_;
  const uint8_t* end_;
};

class Session : public EditorFixture {
 public:
  explicit Session(Choices choices) : choices_(choices) { current = this; }
  ~Session() override { current = nullptr; }

  // Runs the editor until its user has left it.
  void Run() {
    SetUp();
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
      if (current) current->Act();
    });
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    Require(mayEnd_, "only its user ends the editor");
    KillTimer(nullptr, timer);
    for (const BYTE key : {BYTE{VK_SHIFT}, BYTE{VK_CONTROL}})
      keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    TearDown();
  }

 private:
  void TestBody() override {}

  void SetUp() override {
    WriteTemplates(File("Templates"), choices_.From(kSizes));
    WriteSettings(choices_.Chance(16) ? "[Other]" : kSettings);
    WriteContent(File("Templates/readme.txt"), "First line\r\nSecond line\r\n");
    WriteContent(File("broken"), "no picture");
    WriteContent(File("good.pal"), std::string(768, '?'));
    for (const auto& [name, size] : kPictures) {
      WritePng(name, MakePicture(size.width, size.height, [](int32_t x, int32_t y) {
                 return (x + y) % 5 ? static_cast<uint32_t>(x << 12) & 0xFFFFFF : kKeyColour;
               }));
    }
    SetCurrentDirectoryA(AppPath(".").c_str());
    EditorFixture::SetUp();
  }

  // One action in the window that stands, after a look at what the last one has left.
  void Act() {
    Require(IsWindow(doc.mainWindow), "the editor runs");
    CheckDocument();
    const std::vector<HWND> standing = StandingWindows(GetCurrentThreadId());
    Require(standing.size() <= 1, "one window at a time takes input");
    if (standing.empty()) return;
    ++steps;
    if (++actions_ % kActionsPerPicture == 0) CheckComposition(standing[0] == doc.mainWindow);
    Require(standing[0] != doc.mainWindow || GetFocus() == doc.mainWindow, "the keys arrive");
    if (!choices_.Left() || actions_ > kMostActions) {
      Leave(standing[0]);
    } else if (standing[0] == doc.mainWindow) {
      WorkMainWindow();
    } else {
      WorkDialog(standing[0]);
    }
  }

  // Notes an action in the window that stands for the script.
  static void Did(const std::string& action, int one, int other = 0) {
    const std::vector<HWND> standing = StandingWindows(GetCurrentThreadId());
    script += (standing.empty() ? "" : Text(standing[0])) + ": " + action + " " +
              std::to_string(one) + " " + std::to_string(other) + "\n";
  }

  void Leave(HWND window) {
    if (window == doc.mainWindow) mayEnd_ = true;
    const HWND yes = GetDlgItem(window, IDYES);
    SendMessageA(yes ? yes : window, yes ? BM_CLICK : WM_CLOSE, 0, 0);
  }

  void WorkMainWindow() {
    const int action = choices_.Below(8);
    if (action < 3) return ChooseCommand();
    if (action == 3) return PressKey(doc.mainWindow, SomeKey());
    if (action > 5) return UseMouse();
    if (action == 5) return choices_.Chance(2) ? Scroll() : Resize(doc.mainWindow);
    keybd_event(choices_.Chance(2) ? VK_SHIFT : VK_CONTROL, 0,
                choices_.Chance(2) ? KEYEVENTF_KEYUP : 0, 0);
  }

  void ChooseCommand() {
    const UINT command = choices_.Chance(2) ? choices_.From(kDialogs) : choices_.From(kCommands);
    if (!IsCommandEnabled(command) || (command == IDM_EXIT && !choices_.Chance(8))) return;
    if (command == IDM_EXIT) mayEnd_ = true;
    Did("command", static_cast<int>(command));
    Command(command);
  }

  // Places outside the view too, which a held mouse reports.
  void UseMouse() {
    int x = choices_.Below(1000) - 50, y = choices_.Below(700) - 50;
    if (!choices_.Chance(4) && doc.items.Count()) {
      const ItemClass& item = doc.items.At(choices_.Below(doc.items.Count()));
      x = item.x + x % (item.image.width + 2) + doc.viewOffsetX - doc.viewScrollX;
      y = item.y + y % (item.image.height + 2) + doc.viewOffsetY - doc.viewScrollY;
    }
    const UINT message = choices_.From(kMouseMessages);
    Did(message == WM_MOUSEMOVE ? "move" : message == WM_LBUTTONUP ? "up" : "down", x, y);
    if (choices_.Chance(16)) ReleaseCapture();
    SendMessageA(doc.viewWindow, message, MK_LBUTTON, MAKELPARAM(x, y));
  }

  void Scroll() {
    const bool across = choices_.Chance(2);
    const LONG_PTR style = GetWindowLongPtrA(doc.viewWindow, GWL_STYLE);
    if (!(style & (across ? WS_HSCROLL : WS_VSCROLL))) return;
    int first = 0, last = 0;
    GetScrollRange(doc.viewWindow, across ? SB_HORZ : SB_VERT, &first, &last);
    const int code = choices_.Below(SB_ENDSCROLL + 1),
              thumb = first + choices_.Below(last - first + 1);
    Did(across ? "scroll across" : "scroll down", code, thumb);
    SendMessageA(doc.viewWindow, across ? WM_HSCROLL : WM_VSCROLL, MAKEWPARAM(code, thumb), 0);
  }

  void Resize(HWND window) {
    const int width = choices_.Below(1300), height = choices_.Below(1050);
    Did("resize", width, height);
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  void WorkDialog(HWND dialog) {
    std::vector<HWND> controls = ChildWindows(dialog);
    std::erase_if(controls, [](HWND control) {  // labels
      return ClassOf(control) == "Static" && static_cast<WORD>(GetDlgCtrlID(control)) == 0xFFFF;
    });
    const int action = choices_.Below(16);
    if (GetDlgItem(dialog, cmb13) && choices_.Chance(2)) return ChooseFile(dialog);
    if (action == 1 && (GetWindowLongPtrA(dialog, GWL_STYLE) & WS_THICKFRAME))
      return Resize(dialog);
    if (action == 0) {
      Did("close", 0);
      SendMessageA(dialog, WM_CLOSE, 0, 0);
    } else if (action < 4) {
      const HWND focus = GetFocus();
      PressKey(IsWindow(focus) && focus != doc.mainWindow ? focus : dialog, SomeKey());
    } else if (action == 4 && GetDlgItem(dialog, IDOK) && IsEnabled(dialog, IDOK)) {
      Did("press", IDOK);
      Press(dialog, IDOK);
    } else if (!controls.empty()) {
      WorkControl(choices_.From(controls));
    }
  }

  void ChooseFile(HWND dialog) {
    const std::string name = SomeText();
    if (Text(dialog) == kOpenCaption && choices_.Chance(2)) return SelectFile(dialog, name);
    Type(dialog, cmb13, name);
    Press(dialog, IDOK);
  }

  void WorkControl(HWND control) {
    const std::string kind = ClassOf(control);
    const HWND parent = GetParent(control);
    const int id = GetDlgCtrlID(control);
    Did("work " + kind, id);
    if (kind == "Edit") return Type(parent, id, SomeText());
    if (kind == "msctls_trackbar32") return Slide(parent, id, choices_.Below(512));
    if (kind == "Button") {
      if ((GetWindowLongPtrA(control, GWL_STYLE) & BS_TYPEMASK) != BS_GROUPBOX) Press(parent, id);
    } else if (kind == "ListBox" || kind == "ComboBox") {
      const auto count = static_cast<int>(Items(parent, id).size());
      if (count > 0) Choose(parent, id, choices_.Below(count));
    } else {
      Click(control, choices_.Below(600), choices_.Below(400));
    }
  }

  // Half of them arrows, and no letters.
  int SomeKey() {
    const int key = choices_.Chance(2) ? VK_LEFT + choices_.Below(4)
                                       : VK_BACK + choices_.Below(VK_DELETE + 1 - VK_BACK);
    Did("key", key);
    return key;
  }

  std::string SomeText() {
    if (choices_.Chance(8)) return std::string(static_cast<size_t>(choices_.Below(320)), 'n');
    if (choices_.Chance(4)) return std::to_string(choices_.Below(400));
    const std::string name = choices_.From(kFileNames);
    Did("name " + name, 0);
    return choices_.Chance(2) ? AppPath(name) : name;
  }

  static inline Session* current = nullptr;
  Choices choices_;
  size_t actions_ = 0;
  bool mayEnd_ = false;
};

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // A failed expectation of the test support ends the process here, where no test counts it.
  GTEST_FLAG_SET(throw_on_failure, true);
  const size_t before = standin::LiveGdiObjects();
  script.clear();
  Session(Choices(data, size)).Run();
  Require(StandingWindows(GetCurrentThreadId()).empty(), "no window is left");
  Require(OpenClipboard(nullptr) && EmptyClipboard() && CloseClipboard(),
          "nobody holds the clipboard");
  Require(standin::LiveGdiObjects() == before, "no GDI object is left");
  return 0;
}
