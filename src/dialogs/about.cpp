#include "dialogs/about.h"

#include "controls/link_control.h"
#include "controls/readme_box.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "resources/resource.h"

namespace {

constexpr char kWebPage[] = "https://corvanta.example.org/";
constexpr DWORD kFadeMilliseconds = 1000;
constexpr LONG kTitleHeight = 30;

HFONT MakeTitleFont() {
  LOGFONTA font{};
  font.lfHeight = kTitleHeight;
  font.lfCharSet = DEFAULT_CHARSET;
  return CreateFontIndirectA(&font);
}

INT_PTR OnInitDialog(HWND dialog) {
  SendDlgItemMessageA(dialog, IDC_ABOUT_TITLE, WM_SETFONT,
                      reinterpret_cast<WPARAM>(doc.aboutTitleFont), TRUE);
  const HWND link = GetDlgItem(dialog, IDC_ABOUT_LINK);
  SendMessageA(link, LM_SETADDRESS, reinterpret_cast<WPARAM>(kWebPage), 0);
  const HWND readme = GetDlgItem(dialog, IDC_ABOUT_README);
  AttachReadmeBox(readme);
  RedrawWindow(link, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
  SetCurrentDirectoryA(doc.appDir);
  ShowReadme(readme, "Templates\\readme.txt");
  if (doc.animateAboutBox) AnimateWindow(dialog, kFadeMilliseconds, AW_BLEND);
  RedrawWindow(link, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
  return TRUE;
}

void OnClose(HWND dialog) {
  if (doc.animateAboutBox) {
    // A hidden window hands the focus to its owner only if that one is enabled, and else to
    // another program.
    EnableWindow(doc.mainWindow, TRUE);
    AnimateWindow(dialog, kFadeMilliseconds, AW_BLEND | AW_HIDE);
  }
  EndDialog(dialog, 0);
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG:
      return OnInitDialog(dialog);
    case WM_COMMAND:
      if (LOWORD(wParam) != IDCANCEL) return FALSE;
      SendMessageA(dialog, WM_CLOSE, 0, 0);
      return TRUE;
    case WM_CLOSE:
      OnClose(dialog);
      return TRUE;
  }
  return FALSE;
}

}  // namespace

void OpenAbout() {
  doc.aboutTitleFont = MakeTitleFont();
  RunDialog(IDD_ABOUT, doc.mainWindow, AboutProc);
  DeleteObject(doc.aboutTitleFont);
  doc.aboutTitleFont = nullptr;
}
