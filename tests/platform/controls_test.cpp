#include <gtest/gtest.h>

#include "platform/message_log.h"
#include "support/user.h"

namespace {

// A window with one control of the class under test, number 100.
class Controls : public testing::Test {
 protected:
  HWND Add(const char* className, DWORD style) {
    return CreateWindowExA(0, className, "", style | WS_CHILD | WS_VISIBLE, 0, 0, 100, 60, parent_,
                           reinterpret_cast<HMENU>(INT_PTR{100}), GetModuleHandleA(nullptr),
                           nullptr);
  }

  MessageLog log_{{WM_COMMAND}};
  const HWND parent_ = log_.window;
};

TEST_F(Controls, ThatAreDisabledLoseTheFocus) {
  const HWND edit = Add("Edit", 0);
  SetFocus(edit);
  EnableWindow(edit, FALSE);
  EXPECT_NE(GetFocus(), edit);
}

TEST_F(Controls, ListsSortWithoutCaseAndTellAClickWhenTheButtonComesUp) {
  const HWND list = Add("ListBox", LBS_NOTIFY | LBS_SORT);
  for (const char* text : {"b", "C", "A"})
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  EXPECT_EQ(Items(parent_, 100), (std::vector<std::string>{"A", "b", "C"}));
  log_.Take();
  Click(list, 5, 3);
  EXPECT_EQ(Selected(parent_, 100), 0);
  EXPECT_EQ(log_.Take().back().second, MAKEWPARAM(100, LBN_SELCHANGE));
  // The selection stays with its entry when another one is put above it.
  SendMessageA(list, LB_INSERTSTRING, 0, reinterpret_cast<LPARAM>("first"));
  EXPECT_EQ(Selected(parent_, 100), 1);
}

}  // namespace
