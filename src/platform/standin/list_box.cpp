#include "platform/standin/controls.h"
#include "platform/standin/list_entries.h"

namespace standin {
namespace {

constexpr int kLineHeight = 13;

// The user has chosen an entry: unlike LB_SETCURSEL, this is told.
void Choose(Window& list, LRESULT position) {
  if (position < 0 || StateOf<ListEntries>(list).Select(position) < 0) return;
  InvalidateRect(list.handle, nullptr, TRUE);
  if (list.style & LBS_NOTIFY) NotifyParent(list, LBN_SELCHANGE);
}

LRESULT ClickedEntry(Window& list, LPARAM place) {
  const LRESULT position = static_cast<SHORT>(HIWORD(place)) / kLineHeight;
  return position < StateOf<ListEntries>(list).Count() ? position : -1;
}

}  // namespace

LRESULT ListBoxProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto list = FindWindowPtr(handle);
  if (!list) return 0;
  ListEntries& entries = StateOf<ListEntries>(*list);
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case LB_ADDSTRING:
      return entries.Add(reinterpret_cast<const char*>(lParam), list->style & LBS_SORT);
    case LB_INSERTSTRING:
      return entries.Insert(static_cast<int>(wParam), reinterpret_cast<const char*>(lParam));
    case LB_GETCOUNT:
      return entries.Count();
    case LB_GETCURSEL:
      return entries.Selected();
    case LB_SETCURSEL:
      return entries.Select(static_cast<int>(wParam));
    case LB_GETTEXT:
      return entries.Text(wParam, lParam);
    case LB_GETTEXTLEN:
      return entries.TextLength(wParam);
    case LB_GETITEMDATA:
      return entries.Data(wParam);
    case LB_SETITEMDATA:
      return entries.SetData(wParam, lParam);
    case WM_KEYDOWN:
      Choose(*list, entries.TargetOf(wParam));
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(handle);
      SetCapture(handle);
      return 0;
    case WM_LBUTTONUP:
      if (GetCapture() != handle) return 0;
      ReleaseCapture();
      Choose(*list, ClickedEntry(*list, lParam));
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      if (list->style & LBS_NOTIFY)
        NotifyParent(*list, message == WM_SETFOCUS ? LBN_SETFOCUS : LBN_KILLFOCUS);
      return 0;
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
