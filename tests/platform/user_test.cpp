#include "support/user.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "resources/resource.h"

namespace {

INT_PTR CALLBACK EndingProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL))
    EndDialog(dialog, LOWORD(wParam));
  return message == WM_INITDIALOG;
}

INT_PTR RunDialog(int id) {
  return DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), nullptr, EndingProc, 0);
}

TEST(UserTest, FailsForAStepThatNeverRan) {
  EXPECT_NONFATAL_FAILURE(
      {
        User user;
        user.When("Select item", [](HWND) {});
      },
      "\"Select item\" never stood");
}

TEST(UserTest, FailsForAnotherTextAndIconThanExpected) {
  testing::TestPartResultArray failures;
  {
    testing::ScopedFakeTestPartResultReporter reporter(&failures);
    User user;
    user.Answer("Caption", "expected", MB_ICONHAND, IDOK);
    MessageBoxA(nullptr, "shown", "Caption", MB_OK | MB_ICONEXCLAMATION);
  }
  ASSERT_EQ(failures.size(), 2);
  EXPECT_NE(std::string(failures.GetTestPartResult(0).message()).find("\"expected\""),
            std::string::npos);
}

TEST(UserTest, FailsAtControlsOutOfReach) {
  testing::TestPartResultArray failures;
  {
    testing::ScopedFakeTestPartResultReporter reporter(&failures);
    User user;
    user.When("SHP save options", [](HWND dialog) {
      Press(dialog, IDC_SHP_SHP16);  // hidden
      Press(dialog, 4711);           // missing
      EnableWindow(GetDlgItem(dialog, IDC_SHP_NAME), FALSE);
      Type(dialog, IDC_SHP_NAME, "x");
      Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(RunDialog(IDD_SHP_OPTIONS), IDCANCEL);
  }
  EXPECT_EQ(failures.size(), 3);
}

TEST(UserTest, GivesUpWhenNobodyEndsTheLoop) {
  testing::TestPartResultArray failures;
  {
    testing::ScopedFakeTestPartResultReporter reporter(&failures);
    User user(30);
    RunDialog(IDD_SELECT_ITEM);
  }
  ASSERT_EQ(failures.size(), 1);
  EXPECT_NE(std::string(failures.GetTestPartResult(0).message()).find("#32770 \"Select item\""),
            std::string::npos);
  // Nothing of it is left for the next test.
  MSG message{};
  EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

}  // namespace
