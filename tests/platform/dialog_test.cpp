#include <gtest/gtest.h>

#include "resources/resource.h"
#include "support/user.h"

namespace {

INT_PTR CALLBACK ClosingProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) EndDialog(dialog, 5);
  return message == WM_INITDIALOG;
}

TEST(Dialogs, GiveTheFocusBackToItsControlAfterABox) {
  User user;
  user.When("Add new item", [&](HWND dialog) {
    SetFocus(GetDlgItem(dialog, IDCANCEL));
    MessageBoxA(dialog, "text", "Box", MB_OK | MB_ICONHAND);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDCANCEL);
    // Tab skips what is disabled.
    EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
    CheckRadioButton(dialog, IDC_ADD_ALLIED, IDC_ADD_YURI, IDC_ADD_YURI);
    SetFocus(GetDlgItem(dialog, IDC_ADD_YURI));
    PressKey(GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDCANCEL);
    PressKey(GetFocus(), VK_RETURN);
  });
  user.When("Box", [](HWND box) { PressKey(box, VK_ESCAPE); });
  EXPECT_EQ(5, DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_ADD_ITEM), nullptr,
                               ClosingProc, 0));
}

}  // namespace
