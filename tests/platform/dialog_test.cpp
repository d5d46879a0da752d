#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "resources/resource.h"
#include "support/user.h"

namespace {

using Lines = std::vector<std::string>;

// A procedure that writes down what a dialog hears.
struct Scene {
  Lines lines;
  INT_PTR initResult = TRUE;
  int focus = 0;  // the control that the procedure gives the focus
  bool endsAtOnce = false;
};
Scene* scene = nullptr;

INT_PTR CALLBACK WritingProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      scene->lines.push_back("INIT " + std::to_string(lParam) + " focus " +
                             std::to_string(GetDlgCtrlID(reinterpret_cast<HWND>(wParam))) +
                             (IsWindowVisible(dialog) ? " visible" : " hidden"));
      if (scene->focus) SetFocus(GetDlgItem(dialog, scene->focus));
      if (scene->endsAtOnce) EndDialog(dialog, 9);
      return scene->initResult;
    case WM_COMMAND:
      scene->lines.push_back("COMMAND " + std::to_string(LOWORD(wParam)) + " code " +
                             std::to_string(HIWORD(wParam)));
      if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, 5);
        scene->lines.push_back(IsWindow(dialog) ? "still a window" : "no window");
        scene->lines.push_back(IsWindowVisible(dialog) ? "visible" : "hidden");
      }
      return TRUE;
    case WM_SIZE:
      scene->lines.push_back("SIZE");
      return FALSE;
    case WM_DESTROY:
      scene->lines.push_back("DESTROY");
      return FALSE;
    default:
      return FALSE;
  }
}

class Dialogs : public testing::Test {
 protected:
  Dialogs() : log_({WM_ENABLE}) {
    owner_ = log_.Create("1", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 400, 300);
    Settle();
    log_.Take();
    scene = &scene_;
  }
  INT_PTR Run(int id, LPARAM param = 0) {
    return DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), owner_, WritingProc,
                           param);
  }

  MessageLog log_;
  HWND owner_ = nullptr;
  Scene scene_;
};

TEST_F(Dialogs, RunUntilTheyAreEnded) {
  User user;
  user.When("Select item", [&](HWND dialog) {
    EXPECT_FALSE(IsWindowEnabled(owner_));
    EXPECT_EQ(GetParent(dialog), owner_);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_SELECT_LIST));
    Press(dialog, IDCANCEL);
    EXPECT_TRUE(IsWindowEnabled(owner_));
    EXPECT_TRUE(IsWindow(dialog));
  });
  EXPECT_EQ(Run(IDD_SELECT_ITEM, 77), 5);
  EXPECT_EQ(scene_.lines,
            (Lines{"INIT 77 focus 1008 hidden", "COMMAND 1008 code 4", "COMMAND 1008 code 5",
                   "COMMAND 2 code 0", "still a window", "hidden", "DESTROY"}));
  EXPECT_EQ(log_.Take(), (Lines{"1 DISABLE", "1 ENABLE"}));
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(Dialogs, EndedWhileTheyBeginAreNeverSeen) {
  scene_.endsAtOnce = true;
  EXPECT_EQ(Run(IDD_SELECT_ITEM), 9);
  EXPECT_EQ(scene_.lines, (Lines{"INIT 0 focus 1008 hidden", "COMMAND 1008 code 4",
                                 "COMMAND 1008 code 5", "DESTROY"}));
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(Dialogs, WithoutATemplateFail) { EXPECT_EQ(Run(999), -1); }

TEST_F(Dialogs, CloseIsCancelWhenTheProcedureLeavesIt) {
  User user;
  user.When("Select item", [](HWND dialog) { SendMessageA(dialog, WM_CLOSE, 0, 0); });
  EXPECT_EQ(Run(IDD_SELECT_ITEM), 5);
}

TEST_F(Dialogs, FollowTheProceduresFocusWhenItReturnsFalse) {
  scene_.initResult = FALSE;
  scene_.focus = IDC_ADD_SOVIET;
  User user;
  user.When("Add new item", [](HWND dialog) {
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_ADD_SOVIET));
    PressKey(dialog, VK_ESCAPE);
  });
  EXPECT_EQ(Run(IDD_ADD_ITEM), 5);
}

TEST_F(Dialogs, KeysMoveTheFocusAndPressButtons) {
  User user;
  user.When("Add new item", [&](HWND dialog) {
    CheckRadioButton(dialog, IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_SOVIET);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_LIST);
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_SOVIET);
    scene_.lines.clear();
    PressKey(GetFocus(), VK_DOWN);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_YURI);
    EXPECT_TRUE(IsChecked(dialog, IDC_ADD_YURI));
    EXPECT_FALSE(IsChecked(dialog, IDC_ADD_SOVIET));
    EXPECT_EQ(scene_.lines, (Lines{"COMMAND 1012 code 0"}));
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDOK);
    PressKey(GetFocus(), VK_TAB);
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_ADD_LIST);
    scene_.lines.clear();
    // Enter in the list presses the default button.
    PressKey(GetFocus(), VK_RETURN);
    EXPECT_EQ(scene_.lines, (Lines{"COMMAND 1 code 0"}));
    scene_.lines.clear();
    PressKey(GetFocus(), VK_ESCAPE);
    EXPECT_EQ(scene_.lines.front(), "COMMAND 2 code 0");
  });
  EXPECT_EQ(Run(IDD_ADD_ITEM), 5);
}

TEST_F(Dialogs, TabSkipsDisabledControls) {
  User user;
  user.When("Add new item", [&](HWND dialog) {
    EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
    SetFocus(GetDlgItem(dialog, IDC_ADD_LIST));
    CheckRadioButton(dialog, IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_YURI);
    PressKey(GetFocus(), VK_TAB);
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDCANCEL);
    PressKey(GetFocus(), VK_RETURN);
  });
  EXPECT_EQ(Run(IDD_ADD_ITEM), 5);
}

TEST_F(Dialogs, NestInsideEachOther) {
  User user;
  user.When("Add new item", [&](HWND dialog) {
    const HWND before = owner_;
    owner_ = dialog;
    EXPECT_EQ(Run(IDD_SELECT_ITEM), 5);
    owner_ = before;
    EXPECT_TRUE(IsWindowEnabled(dialog));
    Press(dialog, IDCANCEL);
  });
  user.When("Select item", [](HWND dialog) {
    EXPECT_FALSE(IsWindowEnabled(GetParent(dialog)));
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(Run(IDD_ADD_ITEM), 5);
}

TEST_F(Dialogs, EndWithTheThreadsQuitMessage) {
  User user;
  user.When("Select item", [](HWND) { PostQuitMessage(4); });
  Run(IDD_SELECT_ITEM);
  MSG message{};
  EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
  EXPECT_EQ(message.wParam, 4u);
}

TEST_F(Dialogs, AreMadeAsTheirTemplateSays) {
  User user;
  user.When("SHP save options", [](HWND dialog) {
    EXPECT_TRUE(GetWindowLongPtrA(dialog, GWL_STYLE) & WS_CAPTION);
    EXPECT_EQ(Text(dialog, IDC_SHP_GENERATE),
              "Generate separate palette\nthe best palette for this picture");
    EXPECT_FALSE(IsVisible(dialog, IDC_SHP_SHP16));
    EXPECT_FALSE(IsEnabled(dialog, IDC_SHP_SHP16));
    const auto styleOf = [&](int id) {
      return GetWindowLongPtrA(GetDlgItem(dialog, id), GWL_STYLE);
    };
    EXPECT_EQ(styleOf(IDC_SHP_COLOURS) & 0xFFFF, ES_AUTOHSCROLL | ES_NUMBER);
    EXPECT_TRUE(styleOf(IDC_SHP_COLOURS) & WS_TABSTOP);
    EXPECT_EQ(styleOf(IDOK) & BS_TYPEMASK, BS_DEFPUSHBUTTON);
    EXPECT_NE(SendDlgItemMessageA(dialog, IDC_SHP_NAME, WM_GETFONT, 0, 0), 0);
    EXPECT_EQ(GetWindowLongPtrA(dialog, DWLP_USER), 0);
    EXPECT_EQ(LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0)), IDOK);
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(Run(IDD_SHP_OPTIONS), 5);
}

TEST_F(Dialogs, TemplatesHaveTheirControlsInOrder) {
  User user;
  user.When("Crop image", [](HWND dialog) {
    std::string ids;
    EnumChildWindows(
        dialog,
        [](HWND control, LPARAM param) -> BOOL {
          *reinterpret_cast<std::string*>(param) += std::to_string(GetDlgCtrlID(control)) + " ";
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&ids));
    EXPECT_EQ(ids, "1 2 1001 -1 1015 1030 1018 1026 1025 1027 1024 1023 ");
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(Run(IDD_CROP_IMAGE), 5);
}

// Message boxes.

class MessageBoxes : public Dialogs {};

TEST_F(MessageBoxes, ShowTextAndIconAndGiveTheButton) {
  const struct {
    UINT type, icon;
    int button;
  } cases[] = {{MB_OK | MB_ICONHAND, MB_ICONHAND, IDOK},
               {MB_OK | MB_ICONEXCLAMATION, MB_ICONEXCLAMATION, IDOK},
               {MB_YESNO | MB_ICONQUESTION, MB_ICONQUESTION, IDYES},
               {MB_YESNO | MB_ICONQUESTION, MB_ICONQUESTION, IDNO},
               {MB_OK, 0, IDOK}};
  for (const auto& row : cases) {
    User user;
    user.Answer("Corvanta", "First line\nsecond line", row.icon, row.button);
    EXPECT_EQ(MessageBoxA(owner_, "First line\nsecond line", "Corvanta", row.type), row.button);
    EXPECT_TRUE(IsWindowEnabled(owner_));
  }
}

TEST_F(MessageBoxes, NeedNoOwner) {
  User user;
  user.Answer("Error", "RegisterClassEx failed!", MB_ICONHAND, IDOK);
  EXPECT_EQ(MessageBoxA(nullptr, "RegisterClassEx failed!", "Error", MB_OK | MB_ICONHAND), IDOK);
}

TEST_F(MessageBoxes, EscapeIsTheOnlyButton) {
  User user;
  user.When("A", [](HWND box) { PressKey(box, VK_ESCAPE); });
  MessageBoxA(owner_, "text", "A", MB_OK);
  EXPECT_EQ(user.StepsLeft(), 0u);
}

}  // namespace
