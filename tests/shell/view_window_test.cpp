#include "shell/view_window.h"

#include <gtest/gtest.h>

#include "controls/control.h"
#include "document/shell_calls.h"
#include "imaging/memory_dc.h"
#include "support/editor_fixture.h"

namespace {

class ViewTest : public EditorFixture {
 protected:
  static void Scroll(UINT message, int code, int thumb = 0) {
    SendMessageA(doc.viewWindow, message, static_cast<WPARAM>(MAKELONG(code, thumb)), 0);
  }
};

// Each bar takes space from the other direction, which is reported while the first is being shown.
TEST_F(ViewTest, PictureIsCentredOrScrolledAsFarAsTheClientAreaNeeds) {
  for (const SIZE size : {SIZE{600, 400}, SIZE{1100, 800}, SIZE{600, 400}, SIZE{1100, 400},
                          SIZE{600, 800}, SIZE{600, 400}, SIZE{810, 400}, SIZE{600, 530},
                          SIZE{1000, 600}, SIZE{805, 525}, SIZE{790, 525}}) {
    SCOPED_TRACE(std::to_string(size.cx) + " x " + std::to_string(size.cy));
    SetWindowPos(doc.viewWindow, nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    const SIZE client = ClientSize(doc.viewWindow);
    const LONG_PTR style = GetWindowLongPtrA(doc.viewWindow, GWL_STYLE);
    EXPECT_EQ((style & WS_HSCROLL) != 0, client.cx < 800);
    EXPECT_EQ((style & WS_VSCROLL) != 0, client.cy < 520);
    EXPECT_EQ((style & WS_HSCROLL) != 0, client.cy < size.cy);
    EXPECT_EQ((style & WS_VSCROLL) != 0, client.cx < size.cx);
    EXPECT_EQ(client.cx > 800 ? (client.cx - 800) / 2 : 0, doc.viewOffsetX);
    EXPECT_EQ(client.cy > 520 ? (client.cy - 520) / 2 : 0, doc.viewOffsetY);
    EXPECT_EQ(std::min<int>(client.cx, 800), doc.viewVisibleWidth);
    EXPECT_EQ(std::min<int>(client.cy, 520), doc.viewVisibleHeight);
    // The bars reach as far as the client area leaves something out of sight.
    for (const auto& [bar, last] :
         {std::pair(SB_HORZ, 800 - client.cx), {SB_VERT, 520 - client.cy}}) {
      int from = 0, to = last;
      if (last > 0) GetScrollRange(doc.viewWindow, bar, &from, &to);
      EXPECT_EQ(std::pair(0, int{last}), std::pair(from, to));
    }
  }
}

TEST_F(ViewTest, ScrollBarsMoveTheirOwnDirection) {
  const struct {
    const char* name;
    int code, thumb, from, to;
  } steps[] = {
      {"line back", SB_LINELEFT, 0, 50, 49},
      {"line back at the start", SB_LINELEFT, 0, 0, 0},
      {"line", SB_LINERIGHT, 0, 50, 51},
      {"line at the end", SB_LINERIGHT, 0, 120, 120},
      {"page back", SB_PAGELEFT, 0, 50, 45},
      {"page back near the start", SB_PAGELEFT, 0, 3, 0},
      {"page", SB_PAGERIGHT, 0, 50, 55},
      {"page near the end", SB_PAGERIGHT, 0, 117, 120},
      {"thumb set", SB_THUMBPOSITION, 77, 50, 77},
      {"thumb moves", SB_THUMBTRACK, 33, 50, 33},
      {"start", SB_LEFT, 0, 50, 0},
      {"end", SB_RIGHT, 0, 50, 120},
  };
  SizeView(680, 400);
  for (const auto& step : steps) {
    SCOPED_TRACE(step.name);
    doc.viewScrollX = doc.viewScrollY = step.from;
    doc.canvas.Fill(1);
    Scroll(WM_HSCROLL, step.code, step.thumb);
    EXPECT_EQ(std::pair(step.to, step.from), std::pair(doc.viewScrollX, doc.viewScrollY));
    EXPECT_EQ(step.to, GetScrollPos(doc.viewWindow, SB_HORZ));
    EXPECT_NE(1U, CanvasPixel(0, 0)) << "repainted at once";
    Scroll(WM_VSCROLL, step.code, step.thumb);
    EXPECT_EQ(std::pair(step.to, step.to), std::pair(doc.viewScrollX, doc.viewScrollY));
    EXPECT_EQ(step.to, GetScrollPos(doc.viewWindow, SB_VERT));
  }
  doc.canvas.Fill(1);
  Scroll(WM_HSCROLL, SB_ENDSCROLL);
  EXPECT_EQ(1U, CanvasPixel(0, 0)) << "the end of scrolling shows nothing new";
}

// What PaintView puts onto a device context.
TEST_F(ViewTest, PaintShowsTheVisiblePartAtItsOffset) {
  DIBClass screen(1000, 600);
  // The part's place on the screen, and the map's pixel at its corner.
  const auto expectShown = [&screen](RECT place, int32_t mapX, int32_t mapY) {
    screen.Fill(0x777777);
    {
      const MemoryDc dc(nullptr, screen.bitmap);
      PaintView(dc.get());
    }
    const int right = place.right - 1, bottom = place.bottom - 1;
    EXPECT_EQ(WorldMapPixel(Allied, mapX, mapY), screen.ReadPixel(place.left, place.top));
    EXPECT_EQ(WorldMapPixel(Allied, mapX + right - place.left, mapY + bottom - place.top),
              screen.ReadPixel(right, bottom));
    const POINT outside[] = {{right + 1, bottom}, {right, bottom + 1}, {999, 0}, {0, 599}};
    for (const POINT& at : outside) EXPECT_EQ(0x777777U, screen.ReadPixel(at.x, at.y));
  };
  SizeView(1000, 600);
  expectShown({100, 40, 900, 560}, 0, 0);
  EXPECT_EQ(0x777777U, screen.ReadPixel(99, 40));
  EXPECT_EQ(0x777777U, screen.ReadPixel(100, 39));
  SizeView(600, 400);
  Scroll(WM_HSCROLL, SB_THUMBPOSITION, 150);
  Scroll(WM_VSCROLL, SB_THUMBPOSITION, 20);
  expectShown({0, 0, 600, 400}, 150, 20);
}

}  // namespace
