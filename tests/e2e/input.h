#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "platform/win32.h"

// The user's keyboard and mouse. Input goes where the system sends it: keys to the window in the
// foreground, the mouse to what lies under it.

void KeyDown(WORD key);
void KeyUp(WORD key);
void TapKey(WORD key);

// Types characters, whatever the keyboard's layout. The text is UTF-8.
void TypeText(const std::string& text);

// Holds modifier keys down while it lives.
class HeldKeys {
 public:
  HeldKeys(std::initializer_list<WORD> keys);
  ~HeldKeys();
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;

 private:
  std::vector<WORD> keys_;
};

// The pointer in screen coordinates, and the left button.
void MoveMouse(POINT to);
void MouseDown();
void MouseUp();

// A click that is never the second one of a double click.
void Click(POINT at);
