#include "controls/readme_box.h"

#include <memory>
#include <new>

#include "files/file_class.h"

namespace {

bool IsArrowKey(WPARAM key) {
  return key == VK_LEFT || key == VK_UP || key == VK_RIGHT || key == VK_DOWN;
}

// Messages that would change the text or open the context menu.
bool IsSwallowed(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_CHAR:
    case WM_CUT:
    case WM_PASTE:
    case WM_CLEAR:
      return true;
    case WM_KEYDOWN:
      return !IsArrowKey(wParam);
  }
  return false;
}

}  // namespace

void ReadmeBox::Attach(HWND edit) {
  hook.Attach(edit, [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnMessage(message, wParam, lParam);
  });
}

LRESULT ReadmeBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
  if (IsSwallowed(message, wParam)) return 0;
  const LRESULT result = hook.PassOn(message, wParam, lParam);
  // A multi-line edit control asks the dialog for every key, Tab and Escape included, which would
  // be lost here; without these bits they stay with the dialog.
  if (message == WM_GETDLGCODE) return result & ~(DLGC_WANTALLKEYS | DLGC_WANTTAB);
  return result;
}

void ReadmeBox::Show(const char* path) const {
  FileClass file(path);
  if (!file.Open(0)) return;
  const uint32_t size = file.GetSize();
  const std::unique_ptr<char[]> text(new (std::nothrow) char[static_cast<size_t>(size) + 1]);
  if (!text || !file.Read(text.get(), size)) return;
  text[size] = '\0';
  SetWindowTextA(hook.Control(), text.get());
}
