#include <strings.h>

#include <map>
#include <utility>

#include "platform/standin/control.h"
#include "platform/standin/dialog.h"
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

void RegisterClass(const char* name, WNDPROC proc, HBRUSH background, LPCSTR menu) {
  Classes()[name] = std::make_shared<WindowClass>(WindowClass{name, proc, background, menu});
}

void RegisterSystemClasses() {
  if (!Classes().empty()) return;
  const std::pair<const char*, WNDPROC> classes[] = {{kDialogClass, DialogWindowProc},
                                                     {"Button", ButtonProc},
                                                     {"Edit", EditProc},
                                                     {"Static", StaticProc},
                                                     {"ListBox", ListProc},
                                                     {"ComboBox", ListProc},
                                                     {STATUSCLASSNAMEA, StatusBarProc},
                                                     {TRACKBAR_CLASSA, TrackbarProc},
                                                     {UPDOWN_CLASSA, UpDownProc},
                                                     {PROGRESS_CLASSA, ProgressBarProc}};
  for (const auto& [name, proc] : classes) RegisterClass(name, proc, nullptr, nullptr);
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
  if (FindClass(description->lpszClassName)) return 0;
  RegisterClass(description->lpszClassName, description->lpfnWndProc, description->hbrBackground,
                description->lpszMenuName);
  static ATOM atom = 0xC000;
  return ++atom;
}

BOOL UnregisterClassA(LPCSTR name, HINSTANCE) { return Classes().erase(name) != 0; }

// The common controls are registered with the other system classes.
VOID InitCommonControls() {}
