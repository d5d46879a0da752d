// Dialogs: templates become windows, a loop of their own runs them.
#pragma once

#include "platform/standin/resources.h"
#include "platform/standin/window.h"

namespace standin {

inline constexpr char kDialogClass[] = "#32770";

LRESULT DialogWindowProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Makes a dialog, hidden, from a template: its controls, its font, its WM_INITDIALOG and the first
// focus. A child dialog (WS_CHILD) is shown as its style says. Null when the owner or a class is
// missing. `ownerEnabled` tells that ending the dialog enables its owner.
HWND CreateDialogFromTemplate(const DialogTemplate& dialog, HWND owner, DLGPROC proc, LPARAM param,
                              bool ownerEnabled);

// A template for one of the system's own dialogs, still without controls; sizes in dialog units.
DialogTemplate SystemDialog(const char* caption, int width, int height);

// Runs a modal dialog and gives what EndDialog was told, or -1 when it could not be made.
INT_PTR RunDialog(const DialogTemplate& dialog, HWND owner, DLGPROC proc, LPARAM param);

// The next control that the Tab key reaches, or the first for none; null when there is none.
HWND NextTabStop(const Window& dialog, HWND control);

// Gives a control the focus as the keyboard does: the text of an edit control is selected.
void FocusControl(HWND control);

}  // namespace standin
