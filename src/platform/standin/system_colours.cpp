#include <map>

#include "platform/standin/failure.h"
#include "platform/standin/gdi.h"

namespace standin {

COLORREF BrushColour(HBRUSH brush) {
  const auto index = reinterpret_cast<uintptr_t>(brush);
  if (index > 0 && index <= 31) return GetSysColor(static_cast<int>(index) - 1);
  const auto found = FindGdi<Brush>(brush);
  return found ? found->colour : RGB(255, 255, 255);
}

}  // namespace standin

DWORD GetSysColor(int index) {
  switch (index) {
    case COLOR_WINDOW:
      return RGB(255, 255, 255);
    case COLOR_WINDOWTEXT:
      return RGB(0, 0, 0);
    case COLOR_BTNFACE:
      return RGB(240, 240, 240);
    default:
      standin::Unsupported("system colour " + std::to_string(index));
  }
}

HBRUSH GetSysColorBrush(int index) {
  static auto* brushes = new std::map<int, HBRUSH>;
  HBRUSH& brush = (*brushes)[index];
  if (!brush) brush = standin::AddBrush(GetSysColor(index));
  return brush;
}
