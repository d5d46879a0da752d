#pragma once

#include <string>

#include "e2e/editor.h"

// The system's Save dialog.
class SaveDialog {
 public:
  SaveDialog(const Editor& editor, const std::string& screenName);
  // Replaces the proposed name and confirms; returns once the dialog has closed.
  void Save(const std::string& path) const;

 private:
  Window dialog_;
};

// The Open dialog with the editor's preview pane.
class OpenDialog {
 public:
  explicit OpenDialog(const Editor& editor);
  // Goes to the folder of the file, which is alone there, selects it in the list, and returns
  // once the preview shows a picture.
  void Select(const std::string& path) const;
  void Open() const;

 private:
  Window dialog_;
};

// "SHP save options".
class ShpOptions {
 public:
  ShpOptions(const Editor& editor, const std::string& screenName);
  // The palette file by typing its name, or by way of the "..." button.
  void TypePaletteName(const std::string& path) const;
  void BrowsePaletteName(const std::string& path) const;
  void SetColours(int colours) const;
  // Runs the export; returns once it has ended the dialog.
  void Export() const;

 private:
  const Editor& editor_;
  Window dialog_;
};

// A message box of the caption: expects exactly this text and presses the button.
void AnswerBox(const Editor& editor, const std::string& caption, const std::string& text,
               int button, const std::string& screenName);

// Saves the picture by File, "Save as...", chosen with the keyboard, and reads it back.
ImageClass SavePicture(const Editor& editor, const std::string& name);

// Waits for the view to show this saved picture, with the target box at (232, boxY).
void ExpectShown(const Editor& editor, const ImageClass& picture, int boxY);
