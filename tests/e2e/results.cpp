#include "e2e/results.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <stdexcept>

#include "imaging/image_files.h"
#include "imaging/memory_dc.h"
#include "support/picture_difference.h"

namespace fs = std::filesystem;

namespace {

constexpr ULONGLONG kPatience = 60000;
constexpr DWORD kPoll = 10;

RECT WholeScreen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

std::string ProgramFolder() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, MAX_PATH);
  return std::string(path, std::string(path).rfind('\\') + 1);
}

// The path that the environment names, in UTF-8, this program's code page. GetEnvironmentVariableA
// of Wine 8 cuts such a text short: it counts its letters and copies as many bytes.
std::string PathFromEnvironment(const char* name, const char* besideProgram) {
  const char* named = std::getenv(name);
  const std::string path = named && *named ? named : ProgramFolder() + besideProgram;
  char full[MAX_PATH] = "";
  GetFullPathNameA(path.c_str(), MAX_PATH, full, nullptr);
  return full;
}

void StartImageLibrary() {
  static const bool started = InitImageFiles();
  if (!started) throw std::runtime_error("ImageLib does not start.");
}

}  // namespace

void WaitUntil(const std::string& what, const std::function<bool()>& condition) {
  const ULONGLONG end = GetTickCount64() + kPatience;
  for (; !condition(); Sleep(kPoll)) {
    if (GetTickCount64() > end) GiveUp("Waited in vain for " + what + ".");
  }
}

void GiveUp(const std::string& why) { throw std::runtime_error(why); }

std::string EditorPath() { return PathFromEnvironment("CORVANTA_E2E_EXE", "Corvanta.exe"); }

std::string ResultPath(const std::string& name) {
  const std::string folder = PathFromEnvironment("CORVANTA_E2E_DIR", "..\\..\\e2e");
  fs::create_directories(fs::u8path(folder));
  return folder + "\\" + name;
}

std::string NewResultPath(const std::string& name) {
  const std::string path = ResultPath(name);
  DeleteFileA(path.c_str());
  return path;
}

ImageClass LoadPicture(const std::string& path) {
  StartImageLibrary();
  ImageClass picture;
  WaitUntil(path + " to be readable", [&] { return LoadImageFile(path.c_str(), picture) == 1; });
  return picture;
}

DIBClass CopyPixels(HDC source, const RECT& area) {
  DIBClass copy(area.right - area.left, area.bottom - area.top);
  const MemoryDc memory(source, copy.bitmap);
  BitBlt(memory.get(), 0, 0, copy.width, copy.height, source, area.left, area.top, SRCCOPY);
  GdiFlush();
  return copy;
}

DIBClass CaptureScreen(const RECT& area, DWORD settled) {
  // Nothing at all comes of an area that reaches beyond the screen.
  RECT visible{};
  const RECT whole = WholeScreen();
  IntersectRect(&visible, &area, &whole);
  const WindowDc screen(nullptr);
  DIBClass last = CopyPixels(screen.get(), visible);
  WaitUntil("the screen to stop changing", [&] {
    Sleep(settled);
    const DIBClass before = last;
    last = CopyPixels(screen.get(), visible);
    return Difference(before, last).empty();
  });
  return last;
}

void Screenshot(HWND window, const std::string& name) {
  // What lies beyond the screen would be missing.
  SetWindowPos(window, nullptr, 8, 32, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  RECT area{};
  GetWindowRect(window, &area);
  StartImageLibrary();
  const std::string path = ResultPath("screen-" + name + ".png");
  if (!SaveImageFile(path.c_str(), CaptureScreen(area))) GiveUp("Can't save " + path);
}

RECT ClientArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

size_t CountColours(const BitmapClass& picture) {
  std::set<uint32_t> colours;
  for (int32_t y = 0; y < picture.height; ++y) {
    colours.insert(picture.Row(y), picture.Row(y) + picture.width);
  }
  return colours.size();
}
