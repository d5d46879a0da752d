#pragma once

#include <string>

#include "imaging/memory_dc.h"
#include "imaging/pixel_colour.h"

// What a window shows at a client position, as a pixel 0xRRGGBB, after painting what is due.
inline uint32_t WindowPixel(HWND window, int x, int y) {
  UpdateWindow(window);
  const WindowDc dc(window);
  return SwapRedBlue(GetPixel(dc.get(), x, y));
}

// The dialogs' background, as a pixel.
inline uint32_t FaceColour() { return SwapRedBlue(GetSysColor(COLOR_3DFACE)); }

// A window, at any depth below another, of a class of ours.
inline HWND FindChild(HWND parent, const std::string& className) {
  struct Search {
    std::string name;
    HWND found;
  } search{className, nullptr};
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM param) -> BOOL {
        Search& wanted = *reinterpret_cast<Search*>(param);
        char name[64] = "";
        GetClassNameA(window, name, sizeof name);
        if (wanted.name != name) return TRUE;
        wanted.found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}
