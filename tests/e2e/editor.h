#pragma once

#include <initializer_list>
#include <string>

#include "e2e/window.h"
#include "imaging/image_class.h"

// The editor as a process of its own. It is ended at the latest with this object.
class Editor {
 public:
  explicit Editor(const std::string& executable);
  Editor();
  ~Editor();
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  // Starts the process; Start also waits for the main window to show the picture.
  void Launch();
  void Start();

  Window Main() const { return Window(mainWindow_); }
  // The one dialog or message box that takes the user's input now, once it stands; with a caption,
  // only one of that caption. `screenName` names its screenshot.
  Window Dialog(const std::string& caption, const std::string& screenName) const;

  // Chooses a command by the texts in the menu, MenuWithKeys as the keyboard's user does.
  void Menu(const std::string& popup, const std::string& item) const;
  void MenuWithKeys(const std::string& popup, const std::string& item) const;
  // A part of the status bar.
  std::string Status(int part) const;

  // Presses a key with others held until the picture has changed.
  void Press(WORD key, std::initializer_list<WORD> held = {}) const;
  // A drag on the picture, in its own coordinates. What it moves has to be seen at its place before
  // Drop: the system may deliver the moves late.
  void Grab(POINT from) const;
  void DragTo(POINT to) const;
  void Drop() const;
  // The picture as it stands on the screen, once it has stopped changing.
  ImageClass ShownPicture() const;

  bool IsRunning() const;
  DWORD WaitForExit() const;

 private:
  POINT OnScreen(POINT picture) const;
  RECT PictureArea() const;
  bool ViewHasMouse() const;

  std::string executable_;
  HMODULE resources_ = nullptr;  // of the executable: the menu that it really shows
  PROCESS_INFORMATION process_{};
  HWND mainWindow_ = nullptr;
  HWND view_ = nullptr;
};
