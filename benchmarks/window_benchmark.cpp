// Times the shipped editor in its own window: what its user waits for, in milliseconds. CPU time is
// that of the editor's main thread.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "e2e/editor.h"
#include "e2e/results.h"
#include "imagelib/imagelib.h"
#include "resources/resource.h"
#include "support/find_window.h"

namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// The editor's folder among the processes of the system that Wine runs on, whose accounts are right
// where Wine's own say far too little.
std::string ProcessFolder() {
  std::string newest;
  WIN32_FIND_DATAA found{};
  const HANDLE search = FindFirstFileA("Z:\\proc\\*", &found);
  long newestId = 0;
  for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileA(search, &found)) {
    const long id = std::atol(found.cFileName);
    std::string name;
    std::ifstream("Z:\\proc\\" + std::to_string(id) + "\\comm") >> name;
    if (id <= newestId || name != "Corvanta.exe") continue;
    newestId = id;
    newest = "Z:\\proc\\" + std::to_string(id) + "\\";
  }
  FindClose(search);
  if (newest.empty()) throw std::runtime_error("The editor's process is not to be found.");
  return newest;
}

// Milliseconds of CPU that the editor's main thread has used. Its folder among the tasks has the
// number of the process.
double CpuTime(const std::string& process) {
  const size_t name = process.find_last_of('\\', process.size() - 2);
  std::ifstream accounts(process + "task" + process.substr(name) + "schedstat");
  double nanoseconds = 0;
  if (!(accounts >> nanoseconds)) throw std::runtime_error("No CPU time in " + process);
  return nanoseconds / 1e6;
}

// The largest memory that the editor has had, in MiB.
double PeakMemory(const std::string& process) {
  std::ifstream accounts(process + "status");
  for (std::string word; accounts >> word;) {
    double kibibytes = 0;
    if (word == "VmHWM:" && accounts >> kibibytes) return kibibytes / 1024;
  }
  throw std::runtime_error("No memory in " + process);
}

std::string WritePicture(const std::string& name, int width, int height) {
  std::vector<uint32_t> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
  uint32_t noise = 1;
  for (size_t i = 0; i < pixels.size(); ++i) {
    noise = noise * 1664525 + 1013904223;
    pixels[i] = static_cast<uint32_t>(i / 4 % 0xFFFFFF) ^ (noise >> 29);
  }
  const std::string path = NewResultPath(name);
  ImageInit();
  if (!ImageSave(path.c_str(), pixels.data(), width, height)) throw std::runtime_error(path);
  ImageUnInit();
  return path;
}

// Presses the button of a dialog and waits until the condition holds; the time that it took.
template <class Condition>
double Press(HWND dialog, int button, Condition done) {
  const Clock::time_point start = Clock::now();
  PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
  while (!done()) Sleep(0);
  return MillisecondsSince(start);
}

double TimeToEnd(std::string command) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  const Clock::time_point begin = Clock::now();
  CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                 &process);
  WaitForSingleObject(process.hProcess, INFINITE);
  return MillisecondsSince(begin);
}

double TimeToWindow() {
  const Clock::time_point begin = Clock::now();
  const Editor editor;
  while (!FindWindowA("PELMARClass", nullptr)) Sleep(0);
  HWND window = FindWindowA("PELMARClass", nullptr);
  while (!IsWindowVisible(window)) Sleep(0);
  return MillisecondsSince(begin);
}

void BenchStart(const std::string& empty) {
  std::vector<double> editor, nothing;
  for (int i = 0; i < 7; ++i) {
    nothing.push_back(TimeToEnd(empty));
    editor.push_back(TimeToWindow());
  }
  std::printf("start to window %.0f ms, an empty program %.0f ms\n", Median(editor),
              Median(nothing));
}

void BenchKeys(const Editor& editor, const std::string& process) {
  constexpr int kPresses = 2000;
  const double before = CpuTime(process);
  for (int i = 0; i < kPresses; ++i) SendMessageA(editor.Main(), WM_KEYDOWN, VK_RIGHT, 1);
  std::printf("key press %.2f ms CPU\n", (CpuTime(process) - before) / kPresses);
}

void BenchExport(const Editor& editor) {
  std::vector<double> times;
  for (int i = 0; i < 7; ++i) {
    editor.Command(IDM_SAVE_AS_SHP);
    editor.SaveAs(NewResultPath("benchmark.shp"));
    const HWND options = editor.Dialog("SHP save options");
    Paste(GetDlgItem(options, IDC_SHP_NAME), NewResultPath("benchmark.pal"));
    times.push_back(Press(options, IDOK, [options] { return !IsWindow(options); }));
  }
  std::printf("SHP export %.0f ms\n", Median(times));
}

void BenchCrop(const Editor& editor, const std::string& process, const std::string& path) {
  editor.Command(IDM_LOAD_SCREEN_SETTINGS);
  const HWND settings = editor.Dialog("Load screen settings");
  PostMessageA(settings, WM_COMMAND, IDC_SETTINGS_BROWSE, 0);
  const HWND open = editor.Dialog("Choose file to open");
  Paste(FindChild(open, "Edit"), path);
  const double opening = Press(open, IDOK, [] { return FindWindowA("#32770", "Corvanta"); });
  editor.Close(editor.Dialog("Corvanta"), IDYES);
  const HWND crop = editor.Dialog("Crop image");
  const HWND preview = GetDlgItem(crop, IDC_CROP_PREVIEW);
  constexpr int kClicks = 50;
  const double before = CpuTime(process);
  for (int i = 0; i < kClicks; ++i) {
    SendMessageA(preview, WM_LBUTTONUP, 0, MAKELPARAM(20 + 7 * i, 10 + 3 * i));
  }
  std::printf("%s: opening %.0f ms, click %.1f ms CPU, peak memory %.0f MiB\n",
              path.substr(path.rfind('\\') + 1).c_str(), opening,
              (CpuTime(process) - before) / kClicks, PeakMemory(process));
  editor.Close(crop, IDCANCEL);
  editor.Close(settings, IDCANCEL);
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 1 && std::strcmp(arguments[1], "--empty") == 0) return 0;
  BenchStart(std::string(arguments[0]) + " --empty");
  Editor editor;
  editor.WaitForPicture();
  const std::string process = ProcessFolder();
  BenchKeys(editor, process);
  BenchExport(editor);
  BenchCrop(editor, process, WritePicture("1920x1080.png", 1920, 1080));
  BenchCrop(editor, process, WritePicture("6000x4000.png", 6000, 4000));
  return 0;
}
