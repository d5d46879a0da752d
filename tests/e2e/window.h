#pragma once

#include <string>
#include <vector>

#include "platform/win32.h"

// A window of the editor as another process works it: keys and mouse go in as the user's, and only
// what needs no pointer into the editor's memory is asked by message. Waits, and fails the test,
// where something does not come.
class Window {
 public:
  explicit Window(HWND handle) : handle_(handle) {}
  HWND Handle() const { return handle_; }

  // A control by its id; fails the test when there is none.
  Window Control(int id) const;
  std::string Text() const;
  std::string Text(int id) const { return Control(id).Text(); }
  bool IsEnabled(int id) const { return IsWindowEnabled(Control(id).Handle()); }
  bool IsChecked(int id) const;

  void BringToFront() const;
  // Clicks the middle of a control, once it is enabled.
  void Press(int id) const;
  // Presses a button that closes the window, and waits for that.
  void PressAndClose(int id) const;
  // Clicks a control at a position in its client area.
  void ClickAt(int id, POINT at) const;
  // Replaces the text of an edit control by typing.
  void Type(int id, const std::string& text) const;
  // Picks the entry of a list box or drop-down list with the keyboard.
  void Choose(int id, const std::string& entry) const;
  // The lines of a list box.
  std::vector<std::string> Lines(int id) const;
  // Moves a trackbar by so many presses of a key, after a click on it; returns its position.
  int Slide(int id, WORD key, int times) const;

  void Screenshot(const std::string& name) const;

 private:
  HWND handle_;
};
