#pragma once

#include "platform/win32.h"

// A memory device context compatible with another one (null: the screen) that has a bitmap
// selected for as long as it lives. It does not own the bitmap.
class MemoryDc {
 public:
  MemoryDc(HDC compatibleWith, HBITMAP bitmap)
      : dc_(CreateCompatibleDC(compatibleWith)), previous_(SelectObject(dc_, bitmap)) {}
  ~MemoryDc() {
    SelectObject(dc_, previous_);
    DeleteDC(dc_);
  }
  MemoryDc(const MemoryDc&) = delete;
  MemoryDc& operator=(const MemoryDc&) = delete;

  HDC get() const { return dc_; }

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

// The device context of a window, or of the whole screen for null, for as long as it lives.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~WindowDc() { ReleaseDC(window_, dc_); }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;

  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// BeginPaint and EndPaint around the handling of one WM_PAINT.
class PaintDc {
 public:
  explicit PaintDc(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  ~PaintDc() { EndPaint(window_, &paint_); }
  PaintDc(const PaintDc&) = delete;
  PaintDc& operator=(const PaintDc&) = delete;

  HDC get() const { return dc_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};
