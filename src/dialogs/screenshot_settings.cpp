#include "dialogs/screenshot_settings.h"

#include "controls/control.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "imaging/memory_dc.h"
#include "imaging/pixel_colour.h"
#include "imaging/screenshot_adjustment.h"
#include "resources/resource.h"

namespace {

// The sliders with the fields that follow them.
struct Slider {
  int id;
  int32_t LoadScreenDoc::*field;
  int last;  // they start at 0
};

constexpr Slider kSliders[] = {
    {IDC_SHOT_LIGHTNESS, &LoadScreenDoc::adjustLightness, 511},
    {IDC_SHOT_RED, &LoadScreenDoc::adjustRed, 255},
    {IDC_SHOT_GREEN, &LoadScreenDoc::adjustGreen, 255},
    {IDC_SHOT_BLUE, &LoadScreenDoc::adjustBlue, 255},
};
constexpr int kColourSliders[] = {IDC_SHOT_RED, IDC_SHOT_GREEN, IDC_SHOT_BLUE};
constexpr int kNeutral = 255;

// Starts from the unadjusted copy each time, so that adjustments never pile up.
void AdjustScreenshot() {
  doc.screenshot = doc.screenshotOriginal;
  AdjustColours(doc.screenshot, {doc.adjustRed, doc.adjustGreen, doc.adjustBlue,
                                 doc.adjustLightness, doc.adjustGreyscale == 1});
}

void PaintScreenshot(HWND preview) {
  AdjustScreenshot();
  RepaintView();
  const SIZE client = ClientSize(preview);
  DIBClass picture(client.cx, client.cy);
  picture.Fill(SwapRedBlue(GetSysColor(COLOR_BTNFACE)));
  picture.Draw(doc.screenshot, (client.cx - doc.screenshot.width) / 2,
               (client.cy - doc.screenshot.height) / 2);
  const PaintDc paint(preview);
  picture.BlitTo(paint.get(), 0, 0);
}

class ScreenshotSettingsDialog final : public Dialog {
 private:
  INT_PTR OnInit() override;
  INT_PTR OnCommand(int id, UINT notification) override;
  INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnPreviewMessage(UINT message, WPARAM wParam, LPARAM lParam) const;
  void OnSliderMoved(HWND trackbar) const;
  void OnGreyscale() const;
  void RefreshPreview() const { InvalidateRect(preview.Control(), nullptr, TRUE); }

  ControlHook preview;
};

INT_PTR ScreenshotSettingsDialog::OnInit() {
  preview.Attach(Control(IDC_SHOT_PREVIEW), [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnPreviewMessage(message, wParam, lParam);
  });
  for (const Slider& slider : kSliders) {
    Send(slider.id, TBM_SETRANGE, TRUE, MAKELPARAM(0, slider.last));
    Send(slider.id, TBM_SETPOS, TRUE, kNeutral);
    doc.*slider.field = kNeutral;
  }
  doc.adjustGreyscale = 0;
  return TRUE;
}

INT_PTR ScreenshotSettingsDialog::OnCommand(int id, UINT) {
  switch (id) {
    case IDOK:
      End(1);
      return TRUE;
    case IDCANCEL:
      End(0);
      return TRUE;
    case IDC_SHOT_GREYSCALE:
      OnGreyscale();
      break;
  }
  return FALSE;
}

INT_PTR ScreenshotSettingsDialog::OnMessage(UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_HSCROLL) OnSliderMoved(reinterpret_cast<HWND>(lParam));
  return FALSE;
}

LRESULT ScreenshotSettingsDialog::OnPreviewMessage(UINT message, WPARAM wParam,
                                                   LPARAM lParam) const {
  if (message != WM_PAINT) return DefWindowProcA(preview.Control(), message, wParam, lParam);
  PaintScreenshot(preview.Control());
  return 0;
}

void ScreenshotSettingsDialog::OnSliderMoved(HWND trackbar) const {
  const int id = GetDlgCtrlID(trackbar);
  for (const Slider& slider : kSliders) {
    if (slider.id != id) continue;
    doc.*slider.field = static_cast<int32_t>(SendMessageA(trackbar, TBM_GETPOS, 0, 0));
  }
  RefreshPreview();
}

void ScreenshotSettingsDialog::OnGreyscale() const {
  const bool checked = IsDlgButtonChecked(Window(), IDC_SHOT_GREYSCALE) == BST_CHECKED;
  for (const int id : kColourSliders) EnableWindow(Control(id), !checked);
  doc.adjustGreyscale = checked ? 1 : 0;
  RefreshPreview();
}

}  // namespace

int OpenScreenshotSettings(HWND owner) {
  if (!doc.screenshot.valid) {
    MessageBoxA(owner, "Please select screenshot in the load screen settings dialog", "Corvanta",
                MB_OK | MB_ICONEXCLAMATION);
    return 0;
  }
  doc.screenshotOriginal = doc.screenshot;
  if (ScreenshotSettingsDialog().Run(IDD_SCREENSHOT_SETTINGS, owner) == 0) {
    doc.screenshot = doc.screenshotOriginal;
  }
  RepaintView();
  return 1;
}
