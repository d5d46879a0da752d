#include "e2e/screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "e2e/results.h"
#include "imaging/dib_class.h"
#include "imaging/memory_dc.h"
#include "support/picture_difference.h"

namespace {

constexpr DWORD kPollMilliseconds = 10, kSettledMilliseconds = 60;

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

RECT WholeScreen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

}  // namespace

void GiveUp(const std::string& why) {
  std::string message = why + "\nWindows on the screen:";
  EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&message));
  std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
  std::replace(name.begin(), name.end(), '/', '-');
  name = "failure-" + name + ".png";
  SaveResult(name, CopyPixels(WindowDc(nullptr).get(), WholeScreen()));
  throw std::runtime_error(message + "\nThe screen: " + ResultPath(name));
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

RECT ClientArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

ImageClass CopyPixels(HDC source, const RECT& area) {
  DIBClass copy(area.right - area.left, area.bottom - area.top);
  {
    const MemoryDc memory(source, copy.bitmap);
    BitBlt(memory.get(), 0, 0, copy.width, copy.height, source, area.left, area.top, SRCCOPY);
    GdiFlush();
  }
  ImageClass picture;
  picture.Create(copy.width, copy.height);
  for (int32_t y = 0; y < copy.height; ++y) {
    std::transform(copy.Row(y), copy.Row(y) + copy.width, picture.Row(y),
                   [](uint32_t pixel) { return pixel & 0xFFFFFF; });
  }
  return picture;
}

ImageClass CaptureScreen(const RECT& area) {
  // Nothing at all comes of an area that reaches beyond the screen.
  RECT visible{};
  const RECT whole = WholeScreen();
  IntersectRect(&visible, &area, &whole);
  const WindowDc screen(nullptr);
  ImageClass last = CopyPixels(screen.get(), visible);
  WaitUntil("the screen to stop changing", [&] {
    Sleep(kSettledMilliseconds);
    const ImageClass before = last;
    last = CopyPixels(screen.get(), visible);
    return Difference(before, last).empty();
  });
  return last;
}

void SaveScreen(const std::string& name, const RECT& area) {
  SaveResult("screen-" + name + ".png", CaptureScreen(area));
}

size_t CountColours(const ImageClass& picture) {
  std::set<uint32_t> colours;
  for (int32_t y = 0; y < picture.height; ++y) {
    colours.insert(picture.Row(y), picture.Row(y) + picture.width);
  }
  return colours.size();
}
