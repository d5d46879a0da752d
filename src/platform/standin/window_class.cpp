#include <strings.h>

#include <algorithm>
#include <map>

#include "platform/standin/controls.h"
#include "platform/standin/dialog.h"
#include "platform/standin/failure.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

struct IgnoreCase {
  bool operator()(const std::string& a, const std::string& b) const {
    return strcasecmp(a.c_str(), b.c_str()) < 0;
  }
};
using ClassMap = std::map<std::string, std::shared_ptr<WindowClass>, IgnoreCase>;

ClassMap& Classes() {
  static auto* classes = new ClassMap;
  return *classes;
}

void RegisterSystemClass(const char* name, WNDPROC proc) {
  auto description = std::make_shared<WindowClass>();
  description->name = name;
  description->proc = proc;
  Classes()[name] = description;
}

void RegisterSystemClasses() {
  if (!Classes().empty()) return;
  RegisterSystemClass(kDialogClass, DialogWindowProc);
  RegisterSystemClass("Button", ButtonProc);
  RegisterSystemClass("Edit", EditProc);
  RegisterSystemClass("Static", StaticProc);
  RegisterSystemClass("ListBox", ListBoxProc);
  RegisterSystemClass("ComboBox", ComboBoxProc);
  RegisterSystemClass(STATUSCLASSNAMEA, StatusBarProc);
  RegisterSystemClass(TRACKBAR_CLASSA, TrackbarProc);
  RegisterSystemClass(UPDOWN_CLASSA, UpDownProc);
  RegisterSystemClass(PROGRESS_CLASSA, ProgressBarProc);
}

// Whether one of the windows, or one below them, is of the class.
bool HasWindow(const std::vector<HWND>& windows, const WindowClass& windowClass) {
  return std::any_of(windows.begin(), windows.end(), [&](HWND handle) {
    const auto window = FindWindowPtr(handle);
    return window &&
           (window->windowClass.get() == &windowClass || HasWindow(window->children, windowClass));
  });
}

}  // namespace

std::shared_ptr<WindowClass> FindClass(LPCSTR name) {
  RegisterSystemClasses();
  if (name == WC_DIALOG) name = kDialogClass;
  const auto found = Classes().find(name);
  return found == Classes().end() ? nullptr : found->second;
}

}  // namespace standin

using namespace standin;

ATOM RegisterClassExA(const WNDCLASSEXA* description) {
  if (description->cbSize != sizeof(WNDCLASSEXA) || !description->lpfnWndProc) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  if (FindClass(description->lpszClassName)) {
    SetLastError(ERROR_CLASS_ALREADY_EXISTS);
    return 0;
  }
  if (description->cbClsExtra || description->cbWndExtra)
    Unsupported("window classes have no extra bytes");
  auto windowClass = std::make_shared<WindowClass>();
  windowClass->name = description->lpszClassName;
  windowClass->proc = description->lpfnWndProc;
  windowClass->background = description->hbrBackground;
  windowClass->menu = description->lpszMenuName;
  Classes()[windowClass->name] = windowClass;
  static ATOM atom = 0xC000;
  return ++atom;
}

BOOL UnregisterClassA(LPCSTR name, HINSTANCE) {
  const auto windowClass = FindClass(name);
  if (!windowClass) {
    SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
    return FALSE;
  }
  if (HasWindow(TopLevelWindows(), *windowClass)) {
    SetLastError(ERROR_CLASS_HAS_WINDOWS);
    return FALSE;
  }
  Classes().erase(windowClass->name);
  return TRUE;
}

// The common controls are registered with the other system classes.
VOID InitCommonControls() {}
