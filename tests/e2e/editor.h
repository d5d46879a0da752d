#pragma once

#include <string>
#include <vector>

#include "e2e/results.h"
#include "support/find_window.h"

// The editor as a process of its own, worked with the real keyboard and its messages. What waits in
// vain fails the test. The process is ended at the latest with this object. Controls that open and
// close no window are worked, and everything is read, with support/user.h.
class Editor {
 public:
  explicit Editor(const std::string& executable = EditorPath());
  ~Editor();
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  // Waits for the main window to show the picture; comes before all that works that window.
  void WaitForPicture();
  HWND Main() const { return main_; }
  // The windows that take input: one at most, and none while it changes.
  std::vector<HWND> Windows() const { return StandingWindows(process_.dwThreadId); }
  // The first part of the status bar.
  std::string Status() const;
  // The picture as it stands on the screen.
  DIBClass ShownPicture() const;

  // Chooses a command as the menu would.
  void Command(UINT id) const;
  // Presses a key so many times with others held, until the picture has changed.
  void Tap(WORD key, int times = 1, const std::vector<BYTE>& held = {}) const;
  // Drags from one point of the picture to another.
  void Drag(POINT from, POINT to) const;

  // Waits for a dialog or message box of the caption, or of any, that takes the user's input now.
  HWND Dialog(const std::string& caption) const;
  // Clicks the middle of a control, once it lies open.
  void Click(HWND dialog, int id) const;
  // Clicks a button that closes the dialog.
  void Close(HWND dialog, int button) const;
  // Expects a message box with exactly this text.
  void Answer(const std::string& caption, const std::string& text, int button) const;
  // Saves under the path in the system's dialog.
  void SaveAs(const std::string& path) const;
  // Goes through the export's dialogs up to its OK button, in the options, which it gives.
  HWND BeginExport(const std::string& shp, const std::string& pal) const;
  // Picks the picture, which is alone beside a folder, in the list of the Open dialog.
  void OpenPicture(const std::string& path) const;

  bool IsRunning() const;
  DWORD WaitForExit() const;

 private:
  HWND Standing(const std::string& className, const std::string& caption) const;
  GUITHREADINFO State() const;
  RECT PictureArea() const;

  PROCESS_INFORMATION process_{};
  HWND main_ = nullptr;
  HWND view_ = nullptr;
};

// Presses and releases a key so many times, which goes to the window in front.
void TapKey(WORD key, int times = 1);
// Replaces the text of a field that the user would paste to.
void Paste(HWND edit, const std::string& text);
