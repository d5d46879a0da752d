#include "dialogs/about.h"

#include "controls/link_control.h"
#include "controls/readme_box.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "resources/resource.h"

namespace {

constexpr DWORD kFadeMilliseconds = 1000;
constexpr LONG kTitleHeight = 30;

FontHandle MakeTitleFont() {
  LOGFONTA font{};
  font.lfHeight = kTitleHeight;
  font.lfCharSet = DEFAULT_CHARSET;
  return FontHandle(CreateFontIndirectA(&font));
}

class AboutDialog final : public Dialog {
 private:
  INT_PTR OnInit() override;
  INT_PTR OnCommand(int id, UINT notification) override;
  INT_PTR OnClose() override;

  ReadmeBox readme;
};

INT_PTR AboutDialog::OnInit() {
  Send(IDC_ABOUT_TITLE, WM_SETFONT, reinterpret_cast<WPARAM>(doc.aboutTitleFont.get()), TRUE);
  const HWND link = Control(IDC_ABOUT_LINK);
  SendMessageA(link, LM_SETADDRESS, reinterpret_cast<WPARAM>(CORVANTA_HOME_PAGE), 0);
  readme.Attach(Control(IDC_ABOUT_README));
  RedrawWindow(link, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
  SetCurrentDirectoryA(doc.appDir);
  readme.Show("Templates\\readme.txt");
  if (doc.animateAboutBox) AnimateWindow(Window(), kFadeMilliseconds, AW_BLEND);
  RedrawWindow(link, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
  return TRUE;
}

INT_PTR AboutDialog::OnCommand(int id, UINT) {
  if (id != IDCANCEL) return FALSE;
  SendMessageA(Window(), WM_CLOSE, 0, 0);
  return TRUE;
}

INT_PTR AboutDialog::OnClose() {
  if (doc.animateAboutBox) {
    // A hidden window hands the focus to its owner only if that one is enabled, and else to
    // another program.
    EnableWindow(doc.mainWindow, TRUE);
    AnimateWindow(Window(), kFadeMilliseconds, AW_BLEND | AW_HIDE);
  }
  return Dialog::OnClose();
}

}  // namespace

void OpenAbout() {
  doc.aboutTitleFont = MakeTitleFont();
  AboutDialog().Run(IDD_ABOUT, doc.mainWindow);
  doc.aboutTitleFont.reset();
}
