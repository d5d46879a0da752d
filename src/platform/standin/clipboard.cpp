#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace {

bool isOpen = false;
HWND opener = nullptr;
HANDLE bitmap = nullptr;

bool NeedOpen() {
  if (isOpen) return true;
  SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
  return false;
}

}  // namespace

BOOL OpenClipboard(HWND window) {
  if (window && !IsWindow(window)) {
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return FALSE;
  }
  if (isOpen && opener != window) {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
  }
  isOpen = true;
  opener = window;
  return TRUE;
}

BOOL CloseClipboard() {
  if (!NeedOpen()) return FALSE;
  isOpen = false;
  return TRUE;
}

BOOL EmptyClipboard() {
  if (!NeedOpen()) return FALSE;
  if (bitmap) DeleteObject(bitmap);
  bitmap = nullptr;
  return TRUE;
}

// From here on the bitmap is the clipboard's own.
HANDLE SetClipboardData(UINT format, HANDLE data) {
  if (format != CF_BITMAP) standin::Unsupported("the clipboard holds bitmaps only");
  if (!NeedOpen() || !standin::FindGdi<standin::Bitmap>(data)) return nullptr;
  if (bitmap && bitmap != data) DeleteObject(bitmap);
  return bitmap = data;
}

HANDLE GetClipboardData(UINT format) {
  if (!NeedOpen()) return nullptr;
  return format == CF_BITMAP ? bitmap : nullptr;
}
