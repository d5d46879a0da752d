#include "platform/standin/controls.h"
#include "platform/standin/failure.h"
#include "platform/standin/list_entries.h"

namespace standin {
namespace {

// Closed, a drop-down list is one line high, whatever height it was made with: that one is its
// list's.
constexpr int kClosedHeight = 21;

void Create(Window& combo) {
  if ((combo.style & 3) != CBS_DROPDOWNLIST) Unsupported("combo boxes are drop-down lists");
  combo.style &= ~static_cast<DWORD>(WS_VSCROLL);
  combo.frame.bottom = combo.frame.top + kClosedHeight;
}

void Choose(Window& combo, LRESULT position) {
  if (position < 0 || StateOf<ListEntries>(combo).Select(position) < 0) return;
  InvalidateRect(combo.handle, nullptr, TRUE);
  NotifyParent(combo, CBN_SELCHANGE);
}

}  // namespace

LRESULT ComboBoxProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto combo = FindWindowPtr(handle);
  if (!combo) return 0;
  ListEntries& entries = StateOf<ListEntries>(*combo);
  switch (message) {
    case WM_NCCREATE:
      Create(*combo);
      return TRUE;
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case CB_ADDSTRING:
      return entries.Add(reinterpret_cast<const char*>(lParam), combo->style & CBS_SORT);
    case CB_GETCOUNT:
      return entries.Count();
    case CB_GETCURSEL:
      return entries.Selected();
    case CB_SETCURSEL:
      return entries.Select(static_cast<int>(wParam));
    case CB_GETLBTEXT:
      return entries.Text(wParam, lParam);
    case CB_GETLBTEXTLEN:
      return entries.TextLength(wParam);
    case CB_GETITEMDATA:
      return entries.Data(wParam);
    case CB_SETITEMDATA:
      return entries.SetData(wParam, lParam);
    case WM_KEYDOWN:
      Choose(*combo, entries.TargetOf(wParam));
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(handle);
      return 0;
    case WM_SETFOCUS:
      NotifyParent(*combo, CBN_SETFOCUS);
      return 0;
    case WM_KILLFOCUS:
      NotifyParent(*combo, CBN_KILLFOCUS);
      return 0;
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
