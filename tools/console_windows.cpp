#include "platform/win32.h"
#include "tools/console.h"

unsigned UseUtf8Console() {
  const UINT before = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  return before;
}

void RestoreConsole(unsigned before) {
  if (before != 0) SetConsoleOutputCP(before);
}
