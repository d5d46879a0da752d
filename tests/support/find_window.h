#pragma once

#include <string>
#include <vector>

#include "platform/win32.h"

inline std::string ClassOf(HWND window) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

// For EnumThreadWindows and EnumChildWindows: adds a window that the user can work with, visible
// and not blocked by another one, to a vector of windows.
inline BOOL CALLBACK AddUsable(HWND window, LPARAM windows) {
  if (IsWindowVisible(window) && IsWindowEnabled(window))
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

// The top-level windows of a thread that the user can work with.
inline std::vector<HWND> StandingWindows(DWORD thread) {
  std::vector<HWND> windows;
  EnumThreadWindows(thread, AddUsable, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

// The windows at any depth below another that the user can work with.
inline std::vector<HWND> ChildWindows(HWND parent) {
  std::vector<HWND> windows;
  EnumChildWindows(parent, AddUsable, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

// The first of them of a class, null when there is none.
inline HWND FindChild(HWND parent, const std::string& className) {
  for (const HWND window : ChildWindows(parent)) {
    if (ClassOf(window) == className) return window;
  }
  return nullptr;
}
