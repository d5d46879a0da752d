#pragma once

// The calls that document and dialogs make up to the shell, which implements them.

// Composes the picture and shows it, with the mode text in the status bar, before it returns.
void RepaintView();

// Writes a part of the status bar: 0 side and icon count, 1 mode, 2 hint. Nothing without a bar.
void SetStatusText(int part, const char* text);

// Popups of the main menu, by position.
enum MenuPopup : int { kFilePopup, kEditPopup, kViewPopup, kToolsPopup, kModePopup, kHelpPopup };

// Sets or removes the check mark of a command in the main window's menu.
void CheckCommand(MenuPopup popup, unsigned command, bool checked);

// Enables or greys a command in the main window's menu.
void EnableCommand(MenuPopup popup, unsigned command, bool enabled);
