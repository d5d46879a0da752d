#include "platform/win32.h"
#include "tools/console.h"

// The console keeps its code page when the program has ended, so it gets the old one back.
ConsoleText::ConsoleText() : before_(GetConsoleOutputCP()) { SetConsoleOutputCP(CP_UTF8); }

ConsoleText::~ConsoleText() {
  if (before_ != 0) SetConsoleOutputCP(before_);
}
