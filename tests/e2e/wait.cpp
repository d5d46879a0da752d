#include "e2e/wait.h"

#include <stdexcept>

#include "e2e/screen.h"
#include "platform/win32.h"

namespace {

constexpr DWORD kPollMilliseconds = 10;

BOOL CALLBACK AddWindow(HWND window, LPARAM list) {
  char text[256] = "", className[64] = "";
  GetWindowTextA(window, text, sizeof text);
  GetClassNameA(window, className, sizeof className);
  if (IsWindowVisible(window)) {
    *reinterpret_cast<std::string*>(list) += "\n  \"" + std::string(text) + "\" (" + className +
                                             (IsWindowEnabled(window) ? ")" : ", disabled)");
  }
  return TRUE;
}

}  // namespace

void GiveUp(const std::string& why) {
  std::string message = why + "\nWindows on the screen:";
  EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&message));
  throw std::runtime_error(message + "\nThe screen: " + SaveFailureScreen());
}

void WaitUntil(const std::string& what, const std::function<bool()>& condition, int seconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000;
  while (!condition()) {
    if (GetTickCount64() > end) {
      GiveUp("Waited " + std::to_string(seconds) + " seconds for " + what + ", in vain.");
    }
    Sleep(kPollMilliseconds);
  }
}
