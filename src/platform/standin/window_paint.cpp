#include <algorithm>

#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

bool IsEmpty(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

RECT Union(const RECT& a, const RECT& b) {
  if (IsEmpty(a)) return b;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

RECT ClientOf(const Window& window) { return {0, 0, window.ClientWidth(), window.ClientHeight()}; }

void InvalidateTree(Window& window, const RECT* rect, bool erase, bool allChildren) {
  Invalidate(window, rect, erase);
  if ((window.style & WS_CLIPCHILDREN) && !allChildren) return;
  for (const HWND child : window.children) {
    if (const auto found = FindWindowPtr(child))
      InvalidateTree(*found, nullptr, erase, allChildren);
  }
}

WindowPtr FirstToPaint(const std::vector<HWND>& windows) {
  for (const HWND handle : windows) {
    auto window = FindWindowPtr(handle);
    if (!window || !(window->style & WS_VISIBLE)) continue;
    if (!IsEmpty(window->update)) return window;
    if (auto below = FirstToPaint(window->children)) return below;
  }
  return nullptr;
}

void PaintNow(HWND handle) {
  auto window = FindWindowPtr(handle);
  if (!window || !(window->style & WS_VISIBLE)) return;
  if (!IsEmpty(window->update)) SendMessageA(handle, WM_PAINT, 0, 0);
  for (const HWND child : std::vector<HWND>(window->children)) PaintNow(child);
}

}  // namespace

void Invalidate(Window& window, const RECT* rect, bool erase) {
  RECT part = rect ? *rect : ClientOf(window);
  part = {std::max(part.left, LONG{0}), std::max(part.top, LONG{0}),
          std::min(part.right, LONG{window.ClientWidth()}),
          std::min(part.bottom, LONG{window.ClientHeight()})};
  if (IsEmpty(part)) return;
  window.update = Union(window.update, part);
  window.erase |= erase;
}

WindowPtr NextToPaint() { return FirstToPaint(TopLevelWindows()); }

Pixels& ClientPixels(Window& window) {
  const int width = window.ClientWidth();
  const int height = window.ClientHeight();
  if (window.pixels && window.pixels->Width() == width && window.pixels->Height() == height)
    return *window.pixels;
  Pixels fresh(width, height, false);
  if (window.pixels) {
    for (int y = 0; y < std::min(height, window.pixels->Height()); ++y) {
      for (int x = 0; x < std::min(width, window.pixels->Width()); ++x)
        fresh.At(x, y) = window.pixels->At(x, y);
    }
  }
  return window.pixels.emplace(std::move(fresh));
}

}  // namespace standin

using namespace standin;

HDC BeginPaint(HWND handle, LPPAINTSTRUCT paint) {
  *paint = PAINTSTRUCT{};
  const auto window = FindWindowPtr(handle);
  if (!window) return nullptr;
  paint->rcPaint = window->update;
  const bool erase = window->erase && !IsEmpty(window->update);
  window->update = {};
  window->erase = false;
  paint->hdc = OpenWindowDC(handle, &paint->rcPaint);
  if (erase)
    paint->fErase = !SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0);
  return paint->hdc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* paint) {
  CloseWindowDC(paint->hdc);
  return TRUE;
}

HDC GetDC(HWND handle) {
  if (handle && !FindWindowPtr(handle)) return nullptr;
  return OpenWindowDC(handle, nullptr);
}

int ReleaseDC(HWND handle, HDC dc) {
  const auto context = FindDC(dc);
  if (!context || context->memory || context->window != handle) return 0;
  CloseWindowDC(dc);
  return 1;
}

BOOL UpdateWindow(HWND handle) {
  if (!FindWindowPtr(handle)) return FALSE;
  if (IsWindowVisible(handle)) PaintNow(handle);
  return TRUE;
}

BOOL InvalidateRect(HWND handle, const RECT* rect, BOOL erase) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  InvalidateTree(*window, rect, erase, false);
  return TRUE;
}

BOOL ValidateRect(HWND handle, const RECT* rect) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  if (rect) Unsupported("ValidateRect validates whole windows only");
  window->update = {};
  window->erase = false;
  return TRUE;
}

BOOL RedrawWindow(HWND handle, const RECT* rect, HRGN, UINT flags) {
  const auto window = FindWindowPtr(handle);
  if (!window) return FALSE;
  if (flags & RDW_INVALIDATE)
    InvalidateTree(*window, rect, flags & RDW_ERASE, flags & RDW_ALLCHILDREN);
  if (flags & ~UINT{RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_FRAME})
    Unsupported("RedrawWindow flags " + std::to_string(flags));
  return TRUE;
}
