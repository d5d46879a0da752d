// What reaches beyond the program: the clipboard and ShellExecuteA.
#include <filesystem>

#include "platform/standin/failure.h"
#include "platform/standin/testing.h"
#include "platform/standin/window.h"

namespace {

bool isOpen = false;
HWND opener = nullptr;
HANDLE bitmap = nullptr;

void NeedOpen() {
  if (!isOpen) standin::Unsupported("the clipboard is not open");
}

standin::ShellRequest& LastRequest() {
  static auto* request = new standin::ShellRequest;
  return *request;
}

}  // namespace

BOOL OpenClipboard(HWND window) {
  if (isOpen && opener != window) return FALSE;
  isOpen = true;
  opener = window;
  return TRUE;
}

BOOL CloseClipboard() {
  NeedOpen();
  isOpen = false;
  return TRUE;
}

BOOL EmptyClipboard() {
  NeedOpen();
  if (bitmap) DeleteObject(bitmap);
  bitmap = nullptr;
  return TRUE;
}

// From here on the bitmap is the clipboard's own.
HANDLE SetClipboardData(UINT format, HANDLE data) {
  NeedOpen();
  if (format != CF_BITMAP) standin::Unsupported("the clipboard holds bitmaps only");
  if (!standin::FindGdi<standin::Bitmap>(data)) return nullptr;
  if (bitmap && bitmap != data) DeleteObject(bitmap);
  return bitmap = data;
}

HANDLE GetClipboardData(UINT format) {
  NeedOpen();
  return format == CF_BITMAP ? bitmap : nullptr;
}

const standin::ShellRequest& standin::LastShellRequest() { return LastRequest(); }

HINSTANCE ShellExecuteA(HWND window, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR directory,
                        INT show) {
  const auto text = [](LPCSTR given) { return std::string(given ? given : ""); };
  const int count = LastRequest().count + 1;
  LastRequest() = {count,
                   window,
                   text(verb),
                   text(file),
                   text(parameters),
                   text(directory),
                   show,
                   std::filesystem::current_path().string()};
  // Anything above 32 means that it worked.
  return reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(33));
}
