#include "e2e/screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "e2e/results.h"
#include "e2e/wait.h"
#include "imaging/memory_dc.h"

namespace {

constexpr DWORD kSettledMilliseconds = 60;

LONG Width(const RECT& area) { return area.right - area.left; }
LONG Height(const RECT& area) { return area.bottom - area.top; }

RECT WholeScreen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

}  // namespace

ImageClass PixelsOf(HBITMAP bitmap) {
  BITMAP size{};
  GetObjectA(bitmap, sizeof size, &size);
  BITMAPINFO format{};
  format.bmiHeader = {
      sizeof(BITMAPINFOHEADER), size.bmWidth, -size.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  ImageClass picture;
  picture.Create(size.bmWidth, size.bmHeight);
  std::vector<uint32_t> pixels(static_cast<size_t>(size.bmWidth) *
                               static_cast<size_t>(size.bmHeight));
  const WindowDc screen(nullptr);
  if (GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(size.bmHeight), pixels.data(), &format,
                DIB_RGB_COLORS) != size.bmHeight) {
    GiveUp("The pixels of a bitmap can't be read.");
  }
  const uint32_t* from = pixels.data();
  for (int32_t y = 0; y < picture.height; ++y) {
    uint32_t* row = picture.Row(y);
    for (int32_t x = 0; x < picture.width; ++x) row[x] = *from++ & 0xFFFFFF;
  }
  return picture;
}

ImageClass CaptureScreen(const RECT& wanted) {
  // Nothing at all comes of an area that reaches beyond the screen.
  RECT area{};
  const RECT whole = WholeScreen();
  IntersectRect(&area, &wanted, &whole);
  const WindowDc screen(nullptr);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen.get(), Width(area), Height(area));
  {
    const MemoryDc memory(screen.get(), bitmap);
    BitBlt(memory.get(), 0, 0, Width(area), Height(area), screen.get(), area.left, area.top,
           SRCCOPY);
  }
  ImageClass picture = PixelsOf(bitmap);
  DeleteObject(bitmap);
  return picture;
}

RECT WindowArea(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area;
}

RECT ClientArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

bool SamePixels(const ImageClass& a, const ImageClass& b) {
  if (a.width != b.width || a.height != b.height) return false;
  for (int32_t y = 0; y < a.height; ++y) {
    if (!std::equal(a.Row(y), a.Row(y) + a.width, b.Row(y))) return false;
  }
  return true;
}

ImageClass CaptureSettled(const RECT& area) {
  ImageClass last = CaptureScreen(area);
  WaitUntil("the screen to stop changing", [&] {
    Sleep(kSettledMilliseconds);
    ImageClass now = CaptureScreen(area);
    const bool settled = SamePixels(now, last);
    last = now;
    return settled;
  });
  return last;
}

size_t CountColours(const ImageClass& picture) {
  std::set<uint32_t> colours;
  for (int32_t y = 0; y < picture.height; ++y) {
    colours.insert(picture.Row(y), picture.Row(y) + picture.width);
  }
  return colours.size();
}

void SaveScreen(const std::string& name, const RECT& area) {
  SaveResult("screen-" + name + ".png", CaptureSettled(area));
}

std::string SaveFailureScreen() {
  std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
  std::replace(name.begin(), name.end(), '/', '-');
  SaveResult("failure-" + name + ".png", CaptureScreen(WholeScreen()));
  return ResultPath("failure-" + name + ".png");
}
