// What only the native tests may ask: state that Windows keeps to itself.
#pragma once

#include <string>

#include "platform/win32.h"

namespace standin {

// The last ShellExecuteA: nothing is started, the call is only kept.
struct ShellRequest {
  int count = 0;
  HWND window = nullptr;
  std::string verb, file, parameters, directory;
  int show = 0;
  std::string current;  // the current folder
};
const ShellRequest& LastShellRequest();

// How often MessageBeep has sounded.
int BeepCount();

// Bitmaps, fonts and device contexts that exist now: a test holds the number before against after.
size_t LiveGdiObjects();

}  // namespace standin
