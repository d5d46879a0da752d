#pragma once

#include <string>
#include <utility>

#include "platform/win32.h"

inline std::string ClassOf(HWND window) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

// The first visible window of a class at any depth below another, null when there is none.
inline HWND FindChild(HWND parent, const std::string& className) {
  std::pair<std::string, HWND> search = {className, nullptr};
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM param) -> BOOL {
        auto& wanted = *reinterpret_cast<std::pair<std::string, HWND>*>(param);
        if (ClassOf(window) != wanted.first || !IsWindowVisible(window)) return TRUE;
        wanted.second = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.second;
}
