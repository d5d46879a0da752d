// A window class that writes down the messages it gets, for tests that compare their order.
#pragma once

#include <string>
#include <vector>

#include "platform/win32.h"

// Registers the class "LogWindow" for as long as it lives. Its windows hand every message to
// DefWindowProcA; those of interest are kept as text, such as "1 SIZE 100x50" for the window whose
// name begins with "1".
class MessageLog {
 public:
  // The messages of interest; all others are left out.
  explicit MessageLog(std::vector<UINT> wanted);
  ~MessageLog();
  MessageLog(const MessageLog&) = delete;
  MessageLog& operator=(const MessageLog&) = delete;

  // Makes a window with the name. Style and place as for CreateWindowExA.
  HWND Create(const char* name, DWORD style, int x, int y, int width, int height,
              HWND parent = nullptr, int id = 0);

  // What has been written down since the last call.
  std::vector<std::string> Take();

  bool paints = true;  // false: WM_PAINT is not handed on and the window stays invalid

 private:
  static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Write(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  static MessageLog* current;
  std::vector<UINT> wanted_;
  std::vector<std::string> lines_;
};

inline constexpr char kLogClass[] = "LogWindow";
