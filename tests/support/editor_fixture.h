#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "document/load_screen_doc.h"
#include "platform/win32.h"
#include "resources/resource.h"
#include "support/temp_folder.h"
#include "support/template_pictures.h"
#include "support/user.h"

// The running editor: its main window is shown, Allied with two icons, and reads an application
// folder of the test's own, which holds generated templates. Afterwards nothing of it is left: no
// window, no window class, no picture, and the document is as a new process has it.
class EditorFixture : public testing::Test {
 protected:
  EditorFixture();
  ~EditorFixture() override;

  // Writes the templates that do not stand there yet, and starts the editor.
  void SetUp() override;
  void TearDown() override;

  // Path of a file of the application folder with backslashes, as the editor writes it.
  std::string AppPath(const std::string& name) const { return folder_.Path() + "\\" + name; }
  // The same for the test's own file access, with slashes.
  std::string File(const std::string& name) const { return folder_.Path(name); }
  // Writes "Settings.ini" of the application folder.
  void WriteSettings(const std::string& text);
  // Saves a picture in the application folder and gives its whole path.
  std::string WritePng(const std::string& name, const BitmapClass& picture);

  // Chooses a command of the menu.
  void Command(UINT id);
  // Opens a dialog and does the step in it. Cancel leaves it unless the step has ended it.
  void WithDialog(const std::string& caption, UINT command, const std::function<void(HWND)>& step);
  void WithDialog(const std::string& caption, const std::function<void()>& open,
                  const std::function<void(HWND)>& step);
  // Presses a key in the main window.
  void Key(int virtualKey);
  // The left mouse button, at canvas positions.
  void PressCanvas(int32_t x, int32_t y);
  void MoveCanvas(int32_t x, int32_t y);
  void ReleaseCanvas(int32_t x, int32_t y);
  void Drag(int32_t fromX, int32_t fromY, int32_t toX, int32_t toY);

  std::string StatusText(int part) const;
  bool IsCommandChecked(UINT id) const;
  bool IsCommandEnabled(UINT id) const;
  // A pixel of the picture that the view showed last.
  uint32_t CanvasPixel(int32_t x, int32_t y) const { return doc.canvas.ReadPixel(x, y); }
  // Gives the view's client area a size, scroll bars not counted.
  void SizeView(int clientWidth, int clientHeight);

  User user;

 private:
  TempFolder folder_;
  char previousDirectory_[MAX_PATH] = "";
};
