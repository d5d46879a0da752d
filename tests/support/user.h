// The test user: works the editor's windows the way a person does, while the editor's own modal
// loops run. It is written with Win32 calls only and is the same code on both platforms.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/win32.h"

// A script of what the user does, played by a timer of this thread inside whatever loop waits:
//
//   User user;
//   user.When("Select item", [](HWND dialog) { Press(dialog, IDCANCEL); });
//   OpenTheDialog();  // returns once the script has closed it
//
// Steps run in the order given, each as soon as its window can be worked. A step may open a further
// window, in which the next step runs. When nothing happens for ten seconds the test fails with the
// windows that stand, and every loop is ended. The destructor fails it for steps that never ran.
class User {
 public:
  User();
  ~User();
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  // Does the action once a visible and enabled top-level window of this thread with that caption
  // stands.
  void When(const std::string& caption, std::function<void(HWND)> action);

  // Expects a message box with exactly this text and icon (MB_ICONHAND, MB_ICONEXCLAMATION,
  // MB_ICONQUESTION, or 0 for none) and presses the button (IDOK, IDYES, IDNO).
  void Answer(const std::string& caption, const std::string& text, UINT icon, int button);

  // Puts the path into the common file dialog with that caption and presses its OK button.
  void ChooseFile(const std::string& caption, const std::string& path);

 private:
  struct Step {
    std::string caption;
    std::function<void(HWND)> action;
  };

  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  void GiveUp();

  static User* current;
  std::deque<Step> steps_;
  UINT_PTR timer_;
  int idleTicks_ = 0;
};

// All of these fail the test, and do nothing, when the control is missing, hidden or disabled.

// Clicks a button, check box or radio button.
void Press(HWND dialog, int id);
// Replaces an edit control's text by typing.
void Type(HWND dialog, int id, const std::string& text);
// Picks the entry at that position of a list box or drop-down list with the keyboard; its owner is
// notified once.
void Choose(HWND dialog, int id, int position);
// Moves a trackbar to the position with the keyboard; its parent gets WM_HSCROLL.
void Slide(HWND dialog, int id, int position);
// Presses and releases a key in the window, its dialog's keyboard handling first (Tab, Escape).
void PressKey(HWND window, int virtualKey);
// Clicks the left button at a client position of the window.
void Click(HWND window, int x, int y);
// Shows a file dialog's extension (the child dialog of its hook) a newly selected file, as the
// dialog does when the user picks one in its list.
void SelectFile(HWND fileDialog, const std::string& path);

// What the user sees.
std::string Text(HWND dialog, int id);
std::string Text(HWND window);
bool IsEnabled(HWND dialog, int id);
bool IsVisible(HWND dialog, int id);
bool IsChecked(HWND dialog, int id);
// The lines of a list box or combo box, and the position selected (-1 for none).
std::vector<std::string> Items(HWND dialog, int id);
int Selected(HWND dialog, int id);

// Handles what has been posted and paints what is invalid, without waiting for anything.
void Settle();

// Holds modifier keys down while it lives.
class HoldKeys {
 public:
  explicit HoldKeys(std::vector<BYTE> keys);
  ~HoldKeys();
  HoldKeys(const HoldKeys&) = delete;
  HoldKeys& operator=(const HoldKeys&) = delete;

 private:
  std::vector<BYTE> keys_;
};
