#pragma once

#include "controls/control.h"

// Makes a multi-line edit control a box to read in: it can be scrolled and text selected with the
// mouse, but nothing typed, pasted or deleted, and it has no context menu.
class ReadmeBox {
 public:
  // The box must live as long as the control.
  void Attach(HWND edit);

  // Shows the file's bytes as the box's text; nothing changes when it can't be read whole or is
  // empty.
  void Show(const char* path) const;

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) const;

  ControlHook hook;
};
