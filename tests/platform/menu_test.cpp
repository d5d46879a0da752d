#include <gtest/gtest.h>

#include "resources/resource.h"
#include "support/user.h"

namespace {

// A window with the program's menu.
class Menus : public testing::Test {
 protected:
  Menus() {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = DefWindowProcA;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszMenuName = MAKEINTRESOURCEA(IDR_MAIN_MENU);
    description.lpszClassName = "MenuWindow";
    RegisterClassExA(&description);
    window_ = CreateWindowExA(0, "MenuWindow", "menu", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                              nullptr, description.hInstance, nullptr);
    menu_ = GetMenu(window_);
  }
  ~Menus() override {
    DestroyWindow(window_);
    UnregisterClassA("MenuWindow", GetModuleHandleA(nullptr));
  }

  std::string StringAt(HMENU menu, UINT position) {
    char text[64] = "";
    GetMenuStringA(menu, position, text, sizeof text, MF_BYPOSITION);
    return text;
  }

  HWND window_ = nullptr;
  HMENU menu_ = nullptr;
};

TEST_F(Menus, ComeFromTheResources) {
  ASSERT_NE(menu_, nullptr);
  EXPECT_EQ(GetMenuItemCount(menu_), 6);
  EXPECT_EQ(StringAt(menu_, 3), "Tools");
  const HMENU file = GetSubMenu(menu_, 0);
  EXPECT_EQ(GetMenuItemCount(file), 4);
  EXPECT_EQ(StringAt(file, 0), "Save as SHP...");
  EXPECT_EQ(GetMenuItemID(file, 1), static_cast<UINT>(IDM_SAVE_AS_IMAGE));
  EXPECT_TRUE(GetMenuState(file, 2, MF_BYPOSITION) & MF_SEPARATOR);
  EXPECT_EQ(GetMenuItemID(menu_, 0), static_cast<UINT>(-1));
  EXPECT_EQ(GetSubMenu(file, 0), nullptr);
  EXPECT_EQ(GetSubMenu(menu_, 6), nullptr);
}

TEST_F(Menus, ChecksAndEnablingTellWhatWas) {
  const HMENU view = GetSubMenu(menu_, 2);
  EXPECT_EQ(CheckMenuItem(view, IDM_STATUS_BAR, MF_BYCOMMAND | MF_CHECKED),
            static_cast<DWORD>(MF_UNCHECKED));
  EXPECT_TRUE(GetMenuState(menu_, IDM_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED);
  EXPECT_EQ(CheckMenuItem(menu_, IDM_STATUS_BAR, MF_BYCOMMAND | MF_UNCHECKED),
            static_cast<DWORD>(MF_CHECKED));
  EXPECT_EQ(CheckMenuItem(view, 1, MF_BYCOMMAND | MF_CHECKED), static_cast<DWORD>(-1));
  const HMENU edit = GetSubMenu(menu_, 1);
  EXPECT_EQ(EnableMenuItem(edit, IDM_DELETE_ITEM, MF_BYCOMMAND | MF_GRAYED), MF_ENABLED);
  EXPECT_EQ(EnableMenuItem(edit, 2, MF_BYPOSITION | MF_ENABLED), MF_GRAYED);
  EXPECT_FALSE(GetMenuState(menu_, IDM_DELETE_ITEM, MF_BYCOMMAND) & MF_GRAYED);
  EXPECT_EQ(EnableMenuItem(edit, 1, MF_BYCOMMAND | MF_GRAYED), -1);
  EXPECT_EQ(GetMenuState(edit, 1, MF_BYCOMMAND), static_cast<UINT>(-1));
}

TEST_F(Menus, ARadioMarkStandsOnOneItem) {
  const HMENU mode = GetSubMenu(menu_, 4);
  EXPECT_TRUE(CheckMenuRadioItem(mode, 0, 2, 0, MF_BYPOSITION));
  EXPECT_TRUE(CheckMenuRadioItem(mode, 0, 2, 2, MF_BYPOSITION));
  EXPECT_FALSE(GetMenuState(mode, 0, MF_BYPOSITION) & MF_CHECKED);
  EXPECT_FALSE(GetMenuState(mode, 1, MF_BYPOSITION) & MF_CHECKED);
  EXPECT_TRUE(GetMenuState(mode, 2, MF_BYPOSITION) & MF_CHECKED);
  EXPECT_TRUE(GetMenuState(mode, 2, MF_BYPOSITION) & MFT_RADIOCHECK);
}

TEST_F(Menus, GoWithTheirWindow) {
  DestroyWindow(window_);
  EXPECT_EQ(GetMenuItemCount(menu_), -1);
  EXPECT_EQ(GetSubMenu(menu_, 0), nullptr);
}

TEST_F(Menus, ChildrenHaveNone) {
  const HWND child = CreateWindowExA(0, "MenuWindow", "", WS_CHILD, 0, 0, 10, 10, window_, nullptr,
                                     GetModuleHandleA(nullptr), nullptr);
  ASSERT_NE(child, nullptr);
  EXPECT_EQ(GetMenu(child), nullptr);
}

TEST(Icons, OfTheSystemAndTheProgramKeepTheirHandles) {
  const HICON hand = LoadIconA(nullptr, IDI_HAND);
  EXPECT_NE(hand, nullptr);
  EXPECT_EQ(LoadIconA(nullptr, IDI_HAND), hand);
  EXPECT_NE(LoadIconA(nullptr, IDI_QUESTION), hand);
  const HINSTANCE program = GetModuleHandleA(nullptr);
  EXPECT_NE(LoadIconA(program, MAKEINTRESOURCEA(IDI_CORVANTA)), nullptr);
  EXPECT_EQ(LoadIconA(program, MAKEINTRESOURCEA(999)), nullptr);
  EXPECT_NE(LoadCursorA(nullptr, IDC_HAND), nullptr);
}

}  // namespace
