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

LRESULT OnPaint(HWND preview) {
  AdjustScreenshot();
  RepaintView();
  const SIZE client = ClientSize(preview);
  DIBClass picture(client.cx, client.cy);
  picture.Fill(SwapRedBlue(GetSysColor(COLOR_BTNFACE)));
  picture.Draw(doc.screenshot, (client.cx - doc.screenshot.width) / 2,
               (client.cy - doc.screenshot.height) / 2);
  const PaintDc paint(preview);
  picture.BlitTo(paint.get(), 0, 0);
  return 0;
}

LRESULT CALLBACK ScreenshotPreviewProc(HWND preview, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) return OnPaint(preview);
  return DefWindowProcA(preview, message, wParam, lParam);
}

void RefreshPreview(HWND dialog) {
  InvalidateRect(GetDlgItem(dialog, IDC_SHOT_PREVIEW), nullptr, TRUE);
}

INT_PTR OnInitDialog(HWND dialog) {
  ReplaceWindowProc(GetDlgItem(dialog, IDC_SHOT_PREVIEW), ScreenshotPreviewProc);
  for (const Slider& slider : kSliders) {
    SendDlgItemMessageA(dialog, slider.id, TBM_SETRANGE, TRUE, MAKELPARAM(0, slider.last));
    SendDlgItemMessageA(dialog, slider.id, TBM_SETPOS, TRUE, kNeutral);
    doc.*slider.field = kNeutral;
  }
  doc.adjustGreyscale = 0;
  return TRUE;
}

void OnSliderMoved(HWND dialog, HWND trackbar) {
  const int id = GetDlgCtrlID(trackbar);
  for (const Slider& slider : kSliders) {
    if (slider.id != id) continue;
    doc.*slider.field = static_cast<int32_t>(SendMessageA(trackbar, TBM_GETPOS, 0, 0));
  }
  RefreshPreview(dialog);
}

void OnGreyscale(HWND dialog) {
  const bool checked = IsDlgButtonChecked(dialog, IDC_SHOT_GREYSCALE) == BST_CHECKED;
  for (const int id : kColourSliders) EnableWindow(GetDlgItem(dialog, id), !checked);
  doc.adjustGreyscale = checked ? 1 : 0;
  RefreshPreview(dialog);
}

INT_PTR OnCommand(HWND dialog, int id) {
  switch (id) {
    case IDOK:
      EndDialog(dialog, 1);
      return TRUE;
    case IDCANCEL:
      EndDialog(dialog, 0);
      return TRUE;
    case IDC_SHOT_GREYSCALE:
      OnGreyscale(dialog);
      break;
  }
  return FALSE;
}

INT_PTR CALLBACK ScreenshotSettingsProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      return OnInitDialog(dialog);
    case WM_HSCROLL:
      OnSliderMoved(dialog, reinterpret_cast<HWND>(lParam));
      break;
    case WM_COMMAND:
      return OnCommand(dialog, LOWORD(wParam));
  }
  return FALSE;
}

}  // namespace

int OpenScreenshotSettings(HWND owner) {
  if (!doc.screenshot.valid) {
    MessageBoxA(owner, "Please select screenshot in the load screen settings dialog", "Corvanta",
                MB_OK | MB_ICONEXCLAMATION);
    return 0;
  }
  doc.screenshotOriginal = doc.screenshot;
  if (RunDialog(IDD_SCREENSHOT_SETTINGS, owner, ScreenshotSettingsProc) == 0) {
    doc.screenshot = doc.screenshotOriginal;
  }
  RepaintView();
  return 1;
}
