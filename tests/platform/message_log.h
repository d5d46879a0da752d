#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/win32.h"
#include "support/user.h"

// A window of the class "LogWindow", 200 x 100, for as long as it lives. It hands every message to
// DefWindowProcA; those of interest are kept with their wParam.
class MessageLog {
 public:
  using Messages = std::vector<std::pair<UINT, WPARAM>>;

  explicit MessageLog(std::vector<UINT> wanted) : wanted_(std::move(wanted)) {
    current = this;
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    description.style = CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = Proc;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    description.lpszClassName = "LogWindow";
    RegisterClassExA(&description);
    window = CreateWindowExA(0, "LogWindow", "log", WS_POPUP | WS_VISIBLE, 100, 100, 200, 100,
                             nullptr, nullptr, description.hInstance, nullptr);
    Settle();
    Take();
  }
  ~MessageLog() {
    DestroyWindow(window);
    UnregisterClassA("LogWindow", GetModuleHandleA(nullptr));
  }
  MessageLog(const MessageLog&) = delete;
  MessageLog& operator=(const MessageLog&) = delete;

  // What has come since the last call.
  Messages Take() { return std::exchange(messages_, {}); }

  HWND window;

 private:
  static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto& wanted = current->wanted_;
    if (std::find(wanted.begin(), wanted.end(), message) != wanted.end())
      current->messages_.emplace_back(message, wParam);
    return DefWindowProcA(window, message, wParam, lParam);
  }

  static inline MessageLog* current = nullptr;
  const std::vector<UINT> wanted_;
  Messages messages_;
};
