#include "platform/standin/dialog.h"
#include "platform/standin/failure.h"

namespace standin {
namespace {

// One message of the loop of a modal dialog. False when the loop is over.
bool RunOnce(HWND handle, bool& shown) {
  MSG message{};
  if (!TakeMessage(message)) {
    // A modal dialog comes up when there is nothing else to do for the first time.
    if (!shown) {
      shown = true;
      ShowWindow(handle, SW_SHOWNORMAL);
      return IsWindow(handle);
    }
    GetMessageA(&message, nullptr, 0, 0);
  }
  if (message.message == WM_QUIT) {
    PostQuitMessage(static_cast<int>(message.wParam));
    return false;
  }
  if (!IsWindow(handle)) return false;
  if (!FindWindowPtr(handle)->dialog->ended && !IsDialogMessageA(handle, &message)) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  if (!shown && message.message == WM_TIMER && IsWindow(handle)) {
    shown = true;
    ShowWindow(handle, SW_SHOWNORMAL);
  }
  return IsWindow(handle);
}

// A dialog's hold on its owner. When an exception ends the dialog, its windows go with it.
class Modal {
 public:
  explicit Modal(HWND owner) : owner_(owner), ownerEnabled_(owner && !EnableWindow(owner, FALSE)) {}
  ~Modal() {
    if (ownerEnabled_ && IsWindow(owner_)) EnableWindow(owner_, TRUE);
    while (TopLevelWindows().size() > standing_) DestroyWindow(TopLevelWindows().front());
  }
  Modal(const Modal&) = delete;
  Modal& operator=(const Modal&) = delete;

  bool OwnerEnabled() const { return ownerEnabled_; }

 private:
  const HWND owner_;
  const bool ownerEnabled_;
  const size_t standing_ = TopLevelWindows().size();
};

}  // namespace

INT_PTR RunDialog(const DialogTemplate& dialog, HWND owner, DLGPROC proc, LPARAM param) {
  const auto root = owner ? RootOf(owner) : nullptr;
  if (owner && !root) return 0;
  const HWND ownerHandle = root ? root->handle : nullptr;
  const Modal modal(ownerHandle);
  const HWND handle =
      CreateDialogFromTemplate(dialog, ownerHandle, proc, param, modal.OwnerEnabled());
  const auto window = handle ? FindWindowPtr(handle) : nullptr;
  if (!window) Unsupported("a dialog that is destroyed before it runs");
  bool shown = window->style & WS_VISIBLE;
  while (!window->dialog->ended && RunOnce(handle, shown)) {
  }
  return IsWindow(handle) ? window->dialog->endResult : 0;
}

}  // namespace standin

using namespace standin;

INT_PTR DialogBoxParamA(HINSTANCE, LPCSTR templateName, HWND owner, DLGPROC proc, LPARAM param) {
  const auto& dialogs = ProgramResources().dialogs;
  const auto found = dialogs.find(ResourceNumber(templateName));
  if (found == dialogs.end()) Unsupported("a dialog that the program does not have");
  return RunDialog(found->second, owner, proc, param);
}

BOOL EndDialog(HWND handle, INT_PTR result) {
  const auto window = FindWindowPtr(handle);
  if (!window || !window->dialog) return FALSE;
  // The dialog goes out of sight and its owner comes back at once; the window itself stays until
  // the loop has ended.
  window->dialog->ended = true;
  window->dialog->endResult = result;
  if (window->dialog->ownerEnabled && IsWindow(window->parent)) EnableWindow(window->parent, TRUE);
  if (IsInside(handle, GetFocus())) SetFocus(handle);
  SetWindowPos(handle, nullptr, 0, 0, 0, 0,
               SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
  PostMessageA(handle, WM_USER, 0, 0);  // the loop looks once more
  return TRUE;
}
