#include "shell/view_window.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "document/shell_calls.h"
#include "imaging/memory_dc.h"
#include "support/editor_fixture.h"

namespace {

class ViewTest : public EditorFixture {
 protected:
  // The bars reach as far as a client area of that size leaves something out of sight.
  static void ExpectRanges(int width, int height, const std::string& name) {
    ExpectRange(SB_HORZ, 800 - width, name + ", across");
    ExpectRange(SB_VERT, 520 - height, name + ", down");
  }
  static void ExpectRange(int bar, int lastPosition, const std::string& name) {
    if (lastPosition < 0) return;
    int first = -1, last = -1;
    GetScrollRange(doc.viewWindow, bar, &first, &last);
    EXPECT_EQ(0, first) << name;
    EXPECT_EQ(lastPosition, last) << name;
  }
  static void Scroll(UINT message, int code, int thumb = 0) {
    SendMessageA(doc.viewWindow, message, static_cast<WPARAM>(MAKELONG(code, thumb)), 0);
  }
};

struct ViewSize {
  const char* name;
  int width, height;
  int offsetX, offsetY, visibleWidth, visibleHeight;
};

TEST_F(ViewTest, LargeViewIsCentredAndSmallOneScrolled) {
  for (const ViewSize& size :
       {ViewSize{"Large", 1000, 600, 100, 40, 800, 520},
        ViewSize{"OnePixelLarger", 801, 521, 0, 0, 800, 520},
        ViewSize{"OddSpare", 805, 523, 2, 1, 800, 520}, ViewSize{"Exact", 800, 520, 0, 0, 800, 520},
        ViewSize{"Narrow", 600, 600, 0, 40, 600, 520}, ViewSize{"Low", 1000, 400, 100, 0, 800, 400},
        ViewSize{"Small", 600, 400, 0, 0, 600, 400}}) {
    SizeView(size.width, size.height);
    EXPECT_EQ(size.offsetX, doc.viewOffsetX) << size.name;
    EXPECT_EQ(size.offsetY, doc.viewOffsetY) << size.name;
    EXPECT_EQ(size.visibleWidth, doc.viewVisibleWidth) << size.name;
    EXPECT_EQ(size.visibleHeight, doc.viewVisibleHeight) << size.name;
    ExpectRanges(size.width, size.height, size.name);
  }
}

// Each bar takes space from the other direction, which is reported while the first is being shown.
TEST_F(ViewTest, BarsThatComeTogetherLeaveNothingUnreachable) {
  for (const auto& [width, height] :
       {std::pair(600, 400), std::pair(1000, 600), std::pair(810, 400), std::pair(600, 530),
        std::pair(1000, 600), std::pair(805, 525), std::pair(790, 525)}) {
    SetWindowPos(doc.viewWindow, nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    const SIZE client = ClientSize(doc.viewWindow);
    EXPECT_EQ(std::min<int>(client.cx, 800), doc.viewVisibleWidth) << width << " x " << height;
    EXPECT_EQ(std::min<int>(client.cy, 520), doc.viewVisibleHeight) << width << " x " << height;
    ExpectRanges(client.cx, client.cy, std::to_string(width) + " x " + std::to_string(height));
  }
}

struct ScrollStep {
  const char* name;
  int code, thumb, from, to;
};

const ScrollStep kSteps[] = {
    {"LineBack", SB_LINELEFT, 0, 50, 49},
    {"LineBackAtTheStart", SB_LINELEFT, 0, 0, 0},
    {"Line", SB_LINERIGHT, 0, 50, 51},
    {"LineAtTheEnd", SB_LINERIGHT, 0, 120, 120},
    {"PageBack", SB_PAGELEFT, 0, 50, 45},
    {"PageBackNearTheStart", SB_PAGELEFT, 0, 3, 0},
    {"Page", SB_PAGERIGHT, 0, 50, 55},
    {"PageNearTheEnd", SB_PAGERIGHT, 0, 117, 120},
    {"ThumbSet", SB_THUMBPOSITION, 77, 50, 77},
    {"ThumbMoves", SB_THUMBTRACK, 33, 50, 33},
    {"Start", SB_LEFT, 0, 50, 0},
    {"End", SB_RIGHT, 0, 50, 120},
};

TEST_F(ViewTest, ScrollBarsMoveTheirOwnDirection) {
  SizeView(680, 400);
  for (const ScrollStep& step : kSteps) {
    doc.viewScrollX = doc.viewScrollY = step.from;
    doc.canvas.Fill(1);
    Scroll(WM_HSCROLL, step.code, step.thumb);
    EXPECT_EQ(step.to, doc.viewScrollX) << step.name;
    EXPECT_EQ(step.from, doc.viewScrollY) << step.name;
    EXPECT_EQ(step.to, GetScrollPos(doc.viewWindow, SB_HORZ)) << step.name;
    EXPECT_NE(1U, CanvasPixel(0, 0)) << "repainted at once";
    Scroll(WM_VSCROLL, step.code, step.thumb);
    EXPECT_EQ(step.to, doc.viewScrollX) << step.name;
    EXPECT_EQ(step.to, doc.viewScrollY) << step.name;
    EXPECT_EQ(step.to, GetScrollPos(doc.viewWindow, SB_VERT)) << step.name;
  }
  doc.canvas.Fill(1);
  Scroll(WM_HSCROLL, SB_ENDSCROLL);
  Scroll(WM_VSCROLL, SB_ENDSCROLL);
  EXPECT_EQ(1U, CanvasPixel(0, 0)) << "the end of scrolling shows nothing new";
}

TEST_F(ViewTest, GrowingViewKeepsTheEndInSight) {
  SizeView(600, 520);
  Scroll(WM_HSCROLL, SB_RIGHT);
  EXPECT_EQ(200, doc.viewScrollX);
  SizeView(700, 520);
  EXPECT_EQ(100, doc.viewScrollX);
  EXPECT_EQ(100, GetScrollPos(doc.viewWindow, SB_HORZ));
  SizeView(800, 400);
  Scroll(WM_VSCROLL, SB_BOTTOM);
  EXPECT_EQ(120, doc.viewScrollY);
  SizeView(800, 450);
  EXPECT_EQ(70, doc.viewScrollY);
  EXPECT_EQ(70, GetScrollPos(doc.viewWindow, SB_VERT));
  SizeView(1000, 600);
  EXPECT_EQ(0, doc.viewScrollX);
  EXPECT_EQ(0, doc.viewScrollY);
  SizeView(600, 400);
  for (const int bar : {SB_HORZ, SB_VERT}) EXPECT_EQ(0, GetScrollPos(doc.viewWindow, bar));
}

TEST_F(ViewTest, BothBarsComeBackWithASmallWindow) {
  for (const auto& [width, height] :
       {std::pair(640, 480), std::pair(1100, 800), std::pair(640, 480), std::pair(1100, 480),
        std::pair(640, 800), std::pair(640, 480)}) {
    SetWindowPos(doc.mainWindow, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    RECT view{}, client{};
    GetWindowRect(doc.viewWindow, &view);
    GetClientRect(doc.viewWindow, &client);
    const LONG_PTR style = GetWindowLongPtrA(doc.viewWindow, GWL_STYLE);
    EXPECT_EQ(width < 800, (style & WS_HSCROLL) != 0) << width << " x " << height;
    EXPECT_EQ(height < 520, (style & WS_VSCROLL) != 0) << width << " x " << height;
    EXPECT_EQ(width < 800, client.bottom < view.bottom - view.top) << width << " x " << height;
    EXPECT_EQ(height < 520, client.right < view.right - view.left) << width << " x " << height;
  }
}

// What PaintView puts onto a device context.
TEST_F(ViewTest, PaintShowsTheVisiblePartAtItsOffset) {
  DIBClass screen(1000, 600);
  const auto paint = [&screen] {
    screen.Fill(0x777777);
    const MemoryDc dc(nullptr, screen.bitmap);
    PaintView(dc.get());
  };
  SizeView(1000, 600);
  paint();
  EXPECT_EQ(0x777777U, screen.ReadPixel(99, 40));
  EXPECT_EQ(0x777777U, screen.ReadPixel(100, 39));
  EXPECT_EQ(WorldMapPixel(Allied, 0, 0), screen.ReadPixel(100, 40));
  EXPECT_EQ(WorldMapPixel(Allied, 799, 519), screen.ReadPixel(899, 559));
  EXPECT_EQ(0x777777U, screen.ReadPixel(900, 559));
  EXPECT_EQ(0x777777U, screen.ReadPixel(899, 560));
  SizeView(600, 400);
  Scroll(WM_HSCROLL, SB_THUMBPOSITION, 150);
  Scroll(WM_VSCROLL, SB_THUMBPOSITION, 20);
  paint();
  EXPECT_EQ(WorldMapPixel(Allied, 150, 20), screen.ReadPixel(0, 0));
  EXPECT_EQ(WorldMapPixel(Allied, 749, 419), screen.ReadPixel(599, 399));
  EXPECT_EQ(0x777777U, screen.ReadPixel(600, 399));
  EXPECT_EQ(0x777777U, screen.ReadPixel(599, 400));
}

TEST_F(ViewTest, EveryPaintComposesAgain) {
  doc.canvas.Fill(1);
  SendMessageA(doc.statusBar, SB_SETTEXTA, 1, reinterpret_cast<LPARAM>(""));
  InvalidateRect(doc.viewWindow, nullptr, FALSE);
  UpdateWindow(doc.viewWindow);
  EXPECT_EQ(WorldMapPixel(Allied, 0, 0), CanvasPixel(0, 0));
  EXPECT_EQ("Current mode: Move small map", StatusText(1));
  doc.canvas.Fill(1);
  RepaintView();
  EXPECT_EQ(WorldMapPixel(Allied, 0, 0), CanvasPixel(0, 0));
}

}  // namespace
