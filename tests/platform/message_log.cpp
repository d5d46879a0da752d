#include "platform/message_log.h"

#include <algorithm>
#include <map>
#include <utility>

#include "support/user.h"

MessageLog* MessageLog::current = nullptr;

namespace {

std::string Describe(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto pair = [&](const char* between) {
    return " " + std::to_string(LOWORD(lParam)) + between + std::to_string(HIWORD(lParam));
  };
  switch (message) {
    case WM_SIZE:
      return "SIZE" + pair("x");
    case WM_MOVE:
      return "MOVE" + pair(",");
    case WM_SHOWWINDOW:
      return wParam ? "SHOW" : "HIDE";
    case WM_ENABLE:
      return wParam ? "ENABLE" : "DISABLE";
    case WM_COMMAND:
      return "COMMAND " + std::to_string(LOWORD(wParam)) + " code " +
             std::to_string(HIWORD(wParam));
    case WM_USER:
      return "USER " + std::to_string(wParam);
    default:
      break;
  }
  static const std::map<UINT, const char*> names = {
      {WM_NCCREATE, "NCCREATE"},   {WM_CREATE, "CREATE"}, {WM_DESTROY, "DESTROY"},
      {WM_NCDESTROY, "NCDESTROY"}, {WM_PAINT, "PAINT"},   {WM_ERASEBKGND, "ERASE"},
      {WM_TIMER, "TIMER"},
  };
  const auto found = names.find(message);
  return found == names.end() ? std::to_string(message) : found->second;
}

}  // namespace

MessageLog::MessageLog(std::vector<UINT> wanted) : wanted_(std::move(wanted)) {
  current = this;
  WNDCLASSEXA description{};
  description.cbSize = sizeof description;
  description.style = CS_HREDRAW | CS_VREDRAW;
  description.lpfnWndProc = Proc;
  description.hInstance = GetModuleHandleA(nullptr);
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.lpszClassName = kLogClass;
  RegisterClassExA(&description);
}

MessageLog::~MessageLog() {
  while (const HWND left = FindWindowA(kLogClass, nullptr)) DestroyWindow(left);
  Settle();
  UnregisterClassA(kLogClass, GetModuleHandleA(nullptr));
  current = nullptr;
}

HWND MessageLog::Create(const char* name, DWORD style, int x, int y, int width, int height,
                        HWND parent, int id) {
  return CreateWindowExA(0, kLogClass, name, style, x, y, width, height, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                         GetModuleHandleA(nullptr), nullptr);
}

std::vector<std::string> MessageLog::Take() { return std::exchange(lines_, {}); }

void MessageLog::Write(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (std::find(wanted_.begin(), wanted_.end(), message) == wanted_.end()) return;
  std::string name;
  if (message == WM_NCCREATE) {
    name = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName;
  } else {
    name = Text(window);
  }
  lines_.push_back(name.substr(0, 1) + " " + Describe(message, wParam, lParam));
}

LRESULT MessageLog::Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!current) return DefWindowProcA(window, message, wParam, lParam);
  current->Write(window, message, wParam, lParam);
  if (message == WM_PAINT && !current->paints) return 0;
  return DefWindowProcA(window, message, wParam, lParam);
}
