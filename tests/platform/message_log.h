#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32.h"
#include "support/user.h"

// The window class "LogWindow" for as long as it lives. Its windows hand every message to
// DefWindowProcA; those of interest are kept as text, such as "1 SIZE 100x50" for the window whose
// name begins with "1".
class MessageLog {
 public:
  // The messages of interest; all others are left out.
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
  }
  ~MessageLog() {
    while (const HWND left = FindWindowA("LogWindow", nullptr)) DestroyWindow(left);
    Settle();
    UnregisterClassA("LogWindow", GetModuleHandleA(nullptr));
    current = nullptr;
  }
  MessageLog(const MessageLog&) = delete;
  MessageLog& operator=(const MessageLog&) = delete;

  HWND Create(const char* name, DWORD style, int x, int y, int width, int height) {
    return CreateWindowExA(0, "LogWindow", name, style, x, y, width, height, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
  }

  // What has been written down since the last call.
  std::vector<std::string> Take() { return std::exchange(lines_, {}); }

 private:
  static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (current) current->Write(window, message, wParam, lParam);
    return DefWindowProcA(window, message, wParam, lParam);
  }

  void Write(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (std::find(wanted_.begin(), wanted_.end(), message) == wanted_.end()) return;
    const auto number = [](auto value) { return std::to_string(value); };
    const std::map<UINT, std::string> texts = {
        {WM_PAINT, "PAINT"},
        {WM_TIMER, "TIMER"},
        {WM_USER, "USER " + number(wParam)},
        {WM_SIZE, "SIZE " + number(LOWORD(lParam)) + "x" + number(HIWORD(lParam))},
        {WM_COMMAND, "COMMAND " + number(LOWORD(wParam)) + " code " + number(HIWORD(wParam))}};
    lines_.push_back(Text(window).substr(0, 1) + " " + texts.at(message));
  }

  static inline MessageLog* current = nullptr;
  std::vector<UINT> wanted_;
  std::vector<std::string> lines_;
};
