#pragma once

#include <string>

#include "e2e/editor.h"

// The system's Save dialog.
class SaveDialog {
 public:
  SaveDialog(const Editor& editor, const std::string& screenName)
      : dialog_(editor.Dialog("", screenName)) {}
  // Replaces the proposed name and confirms; returns once the dialog has closed.
  void Save(const std::string& path) const;

 private:
  Window dialog_;
};

// Works the Open dialog with its preview: goes to the folder of the file, which is alone there,
// picks it in the list, waits for a picture in the preview, and confirms.
void OpenPicture(const Editor& editor, const std::string& path);

// Expects a message box of the caption with exactly this text and presses the button.
void AnswerBox(const Editor& editor, const std::string& caption, const std::string& text,
               int button, const std::string& screenName);

// Saves the picture by File, "Save as...", chosen with the keyboard, and reads it back.
ImageClass SavePicture(const Editor& editor, const std::string& name);

// Exports <name>.shp and <name>.pal with a generated palette and compares them with the picture.
// The palette's name is typed, or chosen by the button "...".
enum class PaletteName { Typed, Chosen };
void ExportSprite(const Editor& editor, const std::string& name, const ImageClass& picture,
                  int colours, PaletteName how);
