#include "platform/win32.h"
#include "shell/startup.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int showCommand) {
  // File dialogs make foreign folders the current one: no library is to come from there.
  SetDllDirectoryA("");
  return RunEditor(instance, showCommand);
}
