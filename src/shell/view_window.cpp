#include "shell/view_window.h"

#include <algorithm>
#include <cstdio>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "imaging/memory_dc.h"
#include "shell/editing.h"

namespace {

constexpr int kPage = 5;

// One direction of the view: its scroll bar, the canvas's size and the document's fields.
struct Axis {
  int bar;
  int canvasSize;
  int32_t& offset;
  int32_t& scroll;
  int32_t& visible;
};

Axis Horizontal() {
  return {SB_HORZ, doc.canvas.width, doc.viewOffsetX, doc.viewScrollX, doc.viewVisibleWidth};
}

Axis Vertical() {
  return {SB_VERT, doc.canvas.height, doc.viewOffsetY, doc.viewScrollY, doc.viewVisibleHeight};
}

// A scroll bar that comes or goes changes the client area, and the system sends WM_SIZE again from
// inside these calls.
void SizeAxis(HWND view, Axis axis, int clientSize) {
  if (clientSize > axis.canvasSize) {
    axis.offset = (clientSize - axis.canvasSize) / 2;
    axis.scroll = 0;
    axis.visible = axis.canvasSize;
    SetScrollPos(view, axis.bar, 0, FALSE);  // where the bar stands when it comes back
    ShowScrollBar(view, axis.bar, FALSE);
    return;
  }
  const int last = axis.canvasSize - clientSize;
  axis.offset = 0;
  axis.visible = clientSize;
  if (axis.scroll > last) {
    axis.scroll = last;
    SetScrollPos(view, axis.bar, axis.scroll, FALSE);
  }
  SetScrollRange(view, axis.bar, 0, last, TRUE);
  // A bar whose range is the one it had when it was hidden may stay hidden.
  if (last > 0) ShowScrollBar(view, axis.bar, TRUE);
}

LRESULT OnSize(HWND view, int clientWidth) {
  SizeAxis(view, Horizontal(), clientWidth);
  // Not the message's height: the horizontal bar may just have taken its part of it.
  RECT client{};
  GetClientRect(view, &client);
  SizeAxis(view, Vertical(), client.bottom);
  return 0;
}

LRESULT OnPaint(HWND view) {
  const PaintDc paint(view);
  PaintView(paint.get());
  return 0;
}

LRESULT OnScroll(HWND view, Axis axis, int code, int thumb) {
  const int last = axis.canvasSize - axis.visible;
  switch (code) {
    case SB_LINELEFT:
      axis.scroll = std::max(axis.scroll - 1, 0);
      break;
    case SB_LINERIGHT:
      axis.scroll = std::min(axis.scroll + 1, last);
      break;
    case SB_PAGELEFT:
      axis.scroll = std::max(axis.scroll - kPage, 0);
      break;
    case SB_PAGERIGHT:
      axis.scroll = std::min(axis.scroll + kPage, last);
      break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
      axis.scroll = thumb;
      break;
    case SB_LEFT:
      axis.scroll = 0;
      break;
    case SB_RIGHT:
      axis.scroll = last;
      break;
    default:
      return 0;
  }
  SetScrollPos(view, axis.bar, axis.scroll, TRUE);
  RepaintView();
  return 0;
}

const char* ModeText() {
  switch (doc.mode) {
    case MoveLargeMap:
      return "Move large map";
    case MoveSmallMap:
      return "Move small map";
    default:
      return "Move target box";
  }
}

}  // namespace

void PaintView(HDC dc) {
  ComposeLoadScreen(&doc.canvas);
  doc.canvas.BlitRegionTo(dc, doc.viewOffsetX, doc.viewOffsetY, doc.viewScrollX, doc.viewScrollY,
                          doc.viewVisibleWidth, doc.viewVisibleHeight);
  char text[64];
  std::snprintf(text, sizeof text, "Current mode: %s", ModeText());
  SetStatusText(1, text);
}

LRESULT CALLBACK ViewProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // Mouse positions are signed: they are negative left of and above the view during a drag.
  const int x = static_cast<int16_t>(LOWORD(lParam)), y = static_cast<int16_t>(HIWORD(lParam));
  switch (message) {
    case WM_SIZE:
      return OnSize(window, LOWORD(lParam));
    case WM_PAINT:
      return OnPaint(window);
    case WM_HSCROLL:
      return OnScroll(window, Horizontal(), LOWORD(wParam), HIWORD(wParam));
    case WM_VSCROLL:
      return OnScroll(window, Vertical(), LOWORD(wParam), HIWORD(wParam));
    case WM_MOUSEMOVE:
      HandleMouseMove(x, y);
      return 0;
    case WM_LBUTTONDOWN:
      HandleButtonDown(x, y);
      return 0;
    case WM_LBUTTONUP:
      HandleButtonUp();
      return 0;
    case WM_CAPTURECHANGED:
      HandleCaptureLost();
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}
