#include "shell/startup.h"

#include <cstring>

#include "controls/image_preview.h"
#include "controls/link_control.h"
#include "document/load_screen_doc.h"
#include "imagelib/imagelib.h"
#include "imaging/image_files.h"
#include "resources/resource.h"
#include "shell/commands.h"
#include "shell/main_window.h"
#include "shell/view_window.h"

namespace {

bool RegisterEditorClass(const char* name, WNDPROC procedure) {
  WNDCLASSEXA description{};
  description.cbSize = sizeof description;
  description.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
  description.lpfnWndProc = procedure;
  description.hInstance = doc.instance;
  description.hIcon = doc.appIcon;
  description.hIconSm = doc.appIcon;
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  description.lpszMenuName = MAKEINTRESOURCEA(IDR_MAIN_MENU);
  description.lpszClassName = name;
  if (RegisterClassExA(&description)) return true;
  MessageBoxA(nullptr, "RegisterClassEx failed!", "Error", MB_OK | MB_ICONHAND);
  return false;
}

HWND CreateMainWindow() {
  return CreateWindowExA(WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE, kMainClassName, "Corvanta 1.1",
                         WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CW_USEDEFAULT,
                         CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                         doc.instance, nullptr);
}

void RunMessageLoop() {
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

}  // namespace

void FindAppDir() {
  GetModuleFileNameA(nullptr, doc.appDir, MAX_PATH);
  if (char* backslash = std::strrchr(doc.appDir, '\\')) backslash[1] = '\0';
}

bool StartEditor(HINSTANCE instance, int showCommand) {
  doc.animateAboutBox = 1;
  InitCommonControls();
  RegisterImagePreview();
  InitImageFiles();
  doc.canvas.Create(kPictureWidth, kPictureHeight);
  if (!LoadFixedTemplates()) return false;
  doc.instance = instance;
  doc.appIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_CORVANTA));
  if (!RegisterEditorClass(kMainClassName, MainWindowProc)) return false;
  if (!RegisterEditorClass(kViewClassName, ViewProc)) return false;
  RegisterLinkClass();
  doc.mainWindow = CreateMainWindow();
  if (!doc.mainWindow) return false;
  SetLayers(1, 1);
  SetMode(MoveSmallMap);
  ShowWindow(doc.mainWindow, showCommand);
  UpdateWindow(doc.mainWindow);
  return true;
}

void ShutDownEditor() {
  FreeDocumentImages();
  ImageUnInit();
  DeleteLinkFont();
}

int RunEditor(HINSTANCE instance, int showCommand) {
  FindAppDir();
  if (StartEditor(instance, showCommand)) RunMessageLoop();
  ShutDownEditor();
  return 0;
}
