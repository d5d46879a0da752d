#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

#include "platform/standin/window.h"

using standin::FindWindowPtr;

HWND GetDlgItem(HWND dialog, int id) {
  const auto window = FindWindowPtr(dialog);
  if (!window) return nullptr;
  for (const HWND child : window->children) {
    const auto found = FindWindowPtr(child);
    if (found && static_cast<int>(found->id) == id) return child;
  }
  return nullptr;
}

LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND control = GetDlgItem(dialog, id);
  return control ? SendMessageA(control, message, wParam, lParam) : 0;
}

BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
  const HWND control = GetDlgItem(dialog, id);
  return control && SetWindowTextA(control, text);
}

UINT GetDlgItemTextA(HWND dialog, int id, LPSTR buffer, int size) {
  if (size > 0) buffer[0] = '\0';
  const HWND control = GetDlgItem(dialog, id);
  return control ? static_cast<UINT>(GetWindowTextA(control, buffer, size)) : 0;
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
  const std::string text =
      isSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
  return SetDlgItemTextA(dialog, id, text.c_str());
}

// A text that does not begin with a number, or with one beyond 32 bits, reads as 0.
UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned) {
  if (translated) *translated = FALSE;
  char text[30];
  if (!GetDlgItemTextA(dialog, id, text, sizeof text)) return 0;
  char* end = nullptr;
  errno = 0;
  const long long value = std::strtoll(text, &end, 10);
  if (end == text || errno == ERANGE) return 0;
  const bool fits = isSigned ? value >= INT_MIN && value <= INT_MAX
                             : value >= -static_cast<long long>(UINT_MAX) && value <= UINT_MAX;
  if (!fits) return 0;
  if (translated) *translated = TRUE;
  return static_cast<UINT>(value);
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
  return static_cast<UINT>(SendDlgItemMessageA(dialog, id, BM_GETCHECK, 0, 0));
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int check) {
  for (int id = first; id <= last; ++id)
    SendDlgItemMessageA(dialog, id, BM_SETCHECK, id == check ? BST_CHECKED : BST_UNCHECKED, 0);
  return TRUE;
}
