#include "shell/main_window.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "document/item_operations.h"
#include "imagelib/imagelib.h"
#include "shell/startup.h"
#include "support/editor_fixture.h"

namespace {

constexpr char kCloseQuestion[] = "Do you want to close Corvanta now?\nAll data won't be saved!";

class MainWindowTest : public EditorFixture {
 protected:
  static HMENU Popup(int position) { return GetSubMenu(GetMenu(doc.mainWindow), position); }

  // The lines of a popup as "text=identifier", separators as "-".
  static std::vector<std::string> Lines(int popup) {
    std::vector<std::string> lines;
    for (int i = 0; i < GetMenuItemCount(Popup(popup)); ++i) {
      char text[64] = "";
      const auto position = static_cast<UINT>(i);
      GetMenuStringA(Popup(popup), position, text, sizeof text, MF_BYPOSITION);
      const bool line = GetMenuState(Popup(popup), position, MF_BYPOSITION) & MF_SEPARATOR;
      lines.push_back(
          line ? "-" : std::string(text) + "=" + std::to_string(GetMenuItemID(Popup(popup), i)));
    }
    return lines;
  }

  // Size of a window with its frame.
  static SIZE Size(HWND window) {
    RECT bounds{};
    GetWindowRect(window, &bounds);
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
  }
};

TEST_F(MainWindowTest, MenuIsComplete) {
  const struct {
    const char* title;
    std::vector<std::string> lines;
  } menu[] = {
      {"File", {"Save as SHP...=40038", "Save as...=40004", "-", "Exit=40003"}},
      {"Edit",
       {"Add new item...=40023", "Select item...=40025", "Delete item=40029", "Unselect item=40028",
        "-", "Copy to clipboard=40041"}},
      {"View", {"View top layer=40020", "View bottom layer=40021", "-", "Status bar=40045"}},
      {"Tools", {"Load screen settings...=40030", "Screenshot settings...=40043"}},
      {"Mode", {"Move small map=40034", "Move large map=40035", "Move target box=40036"}},
      {"Help", {"Help=40037", "-", "About=40013"}},
  };
  ASSERT_EQ(6, GetMenuItemCount(GetMenu(doc.mainWindow)));
  UINT position = 0;
  for (const auto& popup : menu) {
    char title[64] = "";
    GetMenuStringA(GetMenu(doc.mainWindow), position, title, sizeof title, MF_BYPOSITION);
    EXPECT_STREQ(popup.title, title);
    EXPECT_EQ(popup.lines, Lines(static_cast<int>(position))) << popup.title;
    ++position;
  }
}

TEST_F(MainWindowTest, StartsWithItsMarksAndTexts) {
  EXPECT_EQ("Corvanta 1.1", Text(doc.mainWindow));
  EXPECT_EQ(1, doc.animateAboutBox);
  for (const UINT id :
       {IDM_VIEW_TOP_LAYER, IDM_VIEW_BOTTOM_LAYER, IDM_STATUS_BAR, IDM_MOVE_SMALL_MAP}) {
    EXPECT_TRUE(IsCommandChecked(id)) << id;
  }
  EXPECT_FALSE(IsCommandChecked(IDM_MOVE_LARGE_MAP));
  EXPECT_FALSE(IsCommandChecked(IDM_MOVE_TARGET_BOX));
  for (const UINT id : {IDM_DELETE_ITEM, IDM_SELECT_ITEM, IDM_UNSELECT_ITEM}) {
    EXPECT_TRUE(IsCommandEnabled(id)) << id;
  }
  int edges[3] = {};
  EXPECT_EQ(3, SendMessageA(doc.statusBar, SB_GETPARTS, 3, reinterpret_cast<LPARAM>(edges)));
  EXPECT_EQ(70, edges[0]);
  EXPECT_EQ(270, edges[1]);
  EXPECT_EQ(-1, edges[2]);
  EXPECT_EQ("Allied - 2", StatusText(0));
  EXPECT_EQ("Current mode: Move small map", StatusText(1));
  EXPECT_EQ("Press CTRL to move map faster(5x) or press CTRL+SHIFT to move map faster (10x)",
            StatusText(2));
}

TEST_F(MainWindowTest, ModeCommandsMoveTheMarkAndTheText) {
  const struct {
    UINT id;
    EditMode mode;
    const char* status;
  } modes[] = {{IDM_MOVE_LARGE_MAP, MoveLargeMap, "Current mode: Move large map"},
               {IDM_MOVE_TARGET_BOX, MoveTargetBox, "Current mode: Move target box"},
               {IDM_MOVE_SMALL_MAP, MoveSmallMap, "Current mode: Move small map"}};
  for (const auto& chosen : modes) {
    Command(chosen.id);
    EXPECT_EQ(chosen.mode, doc.mode);
    EXPECT_EQ(chosen.status, StatusText(1));
    for (const auto& mode : modes) {
      EXPECT_EQ(mode.id == chosen.id, IsCommandChecked(mode.id)) << mode.status;
    }
  }
}

TEST_F(MainWindowTest, LayerCommandsToggleOneLayerEach) {
  EXPECT_EQ(FramePixel(154, 0), CanvasPixel(500, 52));
  Command(IDM_VIEW_TOP_LAYER);
  EXPECT_EQ(WorldMapPixel(Allied, 500, 52), CanvasPixel(500, 52));
  EXPECT_EQ(0, doc.showTopLayer);
  EXPECT_EQ(1, doc.showBottomLayer);
  EXPECT_FALSE(IsCommandChecked(IDM_VIEW_TOP_LAYER));
  Command(IDM_VIEW_BOTTOM_LAYER);
  EXPECT_EQ(0, doc.showBottomLayer);
  EXPECT_FALSE(IsCommandChecked(IDM_VIEW_BOTTOM_LAYER));
  EXPECT_EQ(0U, CanvasPixel(400, 100));
  Command(IDM_VIEW_TOP_LAYER);
  EXPECT_EQ(1, doc.showTopLayer);
  EXPECT_EQ(0, doc.showBottomLayer);
  EXPECT_TRUE(IsCommandChecked(IDM_VIEW_TOP_LAYER));
}

TEST_F(MainWindowTest, ViewFillsWhatTheStatusBarLeaves) {
  const SIZE client = ClientSize(doc.mainWindow);
  const LONG bar = Size(doc.statusBar).cy;
  EXPECT_GT(bar, 0);
  EXPECT_EQ(client.cx, Size(doc.viewWindow).cx);
  EXPECT_EQ(client.cy - bar, Size(doc.viewWindow).cy);
  Command(IDM_STATUS_BAR);
  EXPECT_FALSE(IsCommandChecked(IDM_STATUS_BAR));
  EXPECT_FALSE(IsWindowVisible(doc.statusBar));
  EXPECT_EQ(client.cy, Size(doc.viewWindow).cy);
  SetWindowPos(doc.mainWindow, nullptr, 0, 0, 640, 480, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(ClientSize(doc.mainWindow).cy, Size(doc.viewWindow).cy);
  Command(IDM_STATUS_BAR);
  EXPECT_TRUE(IsCommandChecked(IDM_STATUS_BAR));
  EXPECT_TRUE(IsWindowVisible(doc.statusBar));
  EXPECT_EQ(ClientSize(doc.mainWindow).cy - bar, Size(doc.viewWindow).cy);
  EXPECT_EQ(ClientSize(doc.mainWindow).cx, Size(doc.viewWindow).cx);
}

TEST_F(MainWindowTest, ResizingLaysOutAgain) {
  for (const auto& [width, height] : {std::pair(1100, 700), std::pair(500, 300)}) {
    SetWindowPos(doc.mainWindow, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    const SIZE client = ClientSize(doc.mainWindow);
    EXPECT_EQ(client.cx, Size(doc.viewWindow).cx);
    EXPECT_EQ(client.cy - Size(doc.statusBar).cy, Size(doc.viewWindow).cy);
    RECT bar{}, view{};
    GetWindowRect(doc.statusBar, &bar);
    GetWindowRect(doc.viewWindow, &view);
    EXPECT_EQ(view.bottom, bar.top);
  }
}

TEST_F(MainWindowTest, MinimisedWindowIsHarmless) {
  SendMessageA(doc.mainWindow, WM_SIZE, SIZE_MINIMIZED, 0);
  EXPECT_GE(doc.viewVisibleWidth, 0);
  EXPECT_GE(doc.viewVisibleHeight, 0);
  Key(VK_RIGHT);
  EXPECT_EQ(1, doc.worldMapX);
}

TEST_F(MainWindowTest, NoKeepsTheEditorAndItsPicture) {
  AddItem(PlainPicture(4, 4, 1), 10, 400, 0);
  user.Answer("Corvanta", kCloseQuestion, MB_ICONQUESTION, IDNO);
  SendMessageA(doc.mainWindow, WM_CLOSE, 0, 0);
  EXPECT_TRUE(IsWindow(doc.mainWindow));
  EXPECT_EQ(1, doc.items.Count());
  EXPECT_EQ(1, doc.worldMap.valid);
}

TEST_F(MainWindowTest, YesDestroysTheWindowAndEndsTheLoop) {
  user.Answer("Corvanta", kCloseQuestion, MB_ICONQUESTION, IDYES);
  SendMessageA(doc.mainWindow, WM_CLOSE, 0, 0);
  EXPECT_FALSE(IsWindow(doc.mainWindow));
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
  EXPECT_EQ(0U, message.wParam);
}

TEST_F(MainWindowTest, ExitAsksTheSameQuestion) {
  user.Answer("Corvanta", kCloseQuestion, MB_ICONQUESTION, IDNO);
  Command(IDM_EXIT);
  EXPECT_TRUE(IsWindow(doc.mainWindow));
  user.Answer("Corvanta", kCloseQuestion, MB_ICONQUESTION, IDYES);
  Command(IDM_EXIT);
  EXPECT_FALSE(IsWindow(doc.mainWindow));
}

TEST_F(MainWindowTest, UnknownCommandsDoNothing) {
  doc.canvas.Fill(1);
  for (const UINT id : {0U, 1U, 40001U, 40005U, 40046U, 65535U}) Command(id);
  EXPECT_EQ(1U, CanvasPixel(0, 0));
}

TEST(StartUpTest, AppDirIsTheProgramsFolder) {
  char program[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, program, MAX_PATH);
  FindAppDir();
  const std::string path = program, folder = doc.appDir;
  EXPECT_EQ(path.substr(0, path.rfind('\\') + 1), folder);
  EXPECT_EQ('\\', folder.back());
  doc = LoadScreenDoc();
}

class SecondEditorTest : public EditorFixture {};

TEST_F(SecondEditorTest, ClassThatIsTakenStopsStartUp) {
  const HWND first = doc.mainWindow;
  user.Answer("Error", "RegisterClassEx failed!", MB_ICONHAND, IDOK);
  doc.canvas.Free();
  FreeDocumentImages();
  EXPECT_FALSE(Start());
  EXPECT_EQ(first, doc.mainWindow);
  ImageUnInit();
}

}  // namespace
