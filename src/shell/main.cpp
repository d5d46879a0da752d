#include "platform/win32.h"
#include "shell/startup.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int showCommand) {
  return RunEditor(instance, showCommand);
}
