#pragma once

#include <vector>

#include "platform/win32.h"
#include "settings/catalogue.h"

// A dialog of the program's resources; the members of a derived class are what it knows while it is
// open. The results of the handlers are those of a dialog procedure.
class Dialog {
 public:
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  // Shows the dialog until it ends; the result given to End, or 0 when it can't be shown.
  INT_PTR Run(int templateId, HWND owner);

 protected:
  Dialog() = default;
  ~Dialog() = default;

  virtual INT_PTR OnInit() = 0;
  virtual INT_PTR OnCommand(int id, UINT notification) = 0;
  // The close box; ends the dialog with 0.
  virtual INT_PTR OnClose();
  // Any other message after OnInit.
  virtual INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

  HWND Window() const { return window_; }
  HWND Control(int id) const { return GetDlgItem(window_, id); }
  LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendDlgItemMessageA(window_, id, message, wParam, lParam);
  }
  void End(INT_PTR result) const { EndDialog(window_, result); }

 private:
  static INT_PTR CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

// Makes the application folder the current one, where it stays, and reads a catalogue of its
// "Settings.ini". False, after a message owned by the dialog, when there is none.
bool LoadCatalogue(HWND dialog, const char* section, LeadingSpaces spaces,
                   std::vector<CatalogueEntry>& entries);
