#include "dialogs/crop_image.h"

#include <algorithm>

#include "controls/control.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "imaging/crop_geometry.h"
#include "imaging/dib_class.h"
#include "imaging/memory_dc.h"
#include "resources/resource.h"

namespace {

int32_t cropX = 0;
int32_t cropY = 0;
int32_t cropWidth = 0;
int32_t cropHeight = 0;
int32_t cropInitialising = 0;  // 1 while the dialog fills its fields

constexpr uint32_t kOutline = 0xFFFFFF;
constexpr LONG kSmallestWidth = 440;
constexpr LONG kSmallestHeight = 334;

void PaintCropPreview(HWND preview, HDC target) {
  if (!doc.cropPreview.valid) return;
  DIBClass picture(doc.cropPreview.width, doc.cropPreview.height);
  if (!picture.valid) return;
  picture.Draw(doc.cropPreview, 0, 0);
  DimOutside(picture, cropX, cropY, cropWidth, cropHeight);
  picture.DrawFrame(cropX, cropY, cropWidth, cropHeight, kOutline);
  const SIZE client = ClientSize(preview);
  SetStretchBltMode(target, COLORONCOLOR);
  picture.StretchTo(target, 0, 0, client.cx, client.cy);
}

void OnPaint(HWND preview) {
  const PaintDc paint(preview);
  PaintCropPreview(preview, paint.get());
}

void OnClick(HWND preview, int32_t mouseX, int32_t mouseY) {
  const SIZE client = ClientSize(preview);
  cropX = CropAroundMouse(mouseX, client.cx, doc.cropPreview.width, cropWidth);
  cropY = CropAroundMouse(mouseY, client.cy, doc.cropPreview.height, cropHeight);
  const HWND dialog = GetParent(preview);
  SetDlgItemInt(dialog, IDC_CROP_X, static_cast<UINT>(cropX), FALSE);
  SetDlgItemInt(dialog, IDC_CROP_Y, static_cast<UINT>(cropY), FALSE);
  const WindowDc target(preview);
  PaintCropPreview(preview, target.get());
}

LRESULT CALLBACK CropPreviewProc(HWND preview, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      OnPaint(preview);
      break;
    case WM_LBUTTONUP:
      OnClick(preview, LOWORD(lParam), HIWORD(lParam));
      break;
  }
  return DefWindowProcA(preview, message, wParam, lParam);
}

void Place(HWND dialog, int id, int x, int y) {
  SetWindowPos(GetDlgItem(dialog, id), nullptr, x, y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void LayoutCropDialog(HWND dialog) {
  const SIZE client = ClientSize(dialog);
  const int wide = std::max<int>(client.cx - 24, 0);
  MoveWindow(GetDlgItem(dialog, IDC_CROP_PATH), 12, 30, wide, 23, TRUE);
  MoveWindow(GetDlgItem(dialog, IDC_CROP_PREVIEW), 12, 64, wide, std::max<int>(client.cy - 172, 0),
             TRUE);
  Place(dialog, IDC_CROP_GROUP, 12, client.cy - 102);
  Place(dialog, IDOK, 87, client.cy - 33);
  Place(dialog, IDCANCEL, 169, client.cy - 33);
  constexpr struct {
    int id;
    int x;
  } kFields[] = {{IDC_CROP_X, 33},         {IDC_CROP_X_ARROWS, 93}, {IDC_CROP_Y, 131},
                 {IDC_CROP_Y_ARROWS, 192}, {IDC_CROP_WIDTH, 229},   {IDC_CROP_HEIGHT, 327}};
  for (const auto& field : kFields) Place(dialog, field.id, field.x, client.cy - 80);
  RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

void SetArrowRange(HWND dialog, int id, int32_t last) {
  SendDlgItemMessageA(dialog, id, UDM_SETRANGE, 0, MAKELPARAM(last, 0));
}

INT_PTR OnInitDialog(HWND dialog, const char* path) {
  SendMessageA(dialog, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(doc.appIcon));
  SetDlgItemInt(dialog, IDC_CROP_X, 0, FALSE);
  SetDlgItemInt(dialog, IDC_CROP_Y, 0, FALSE);
  SetDlgItemInt(dialog, IDC_CROP_WIDTH, static_cast<UINT>(cropWidth), FALSE);
  SetDlgItemInt(dialog, IDC_CROP_HEIGHT, static_cast<UINT>(cropHeight), FALSE);
  SetDlgItemTextA(dialog, IDC_CROP_PATH, path);
  SetArrowRange(dialog, IDC_CROP_X_ARROWS, doc.cropPreview.width - cropWidth);
  SetArrowRange(dialog, IDC_CROP_Y_ARROWS, doc.cropPreview.height - cropHeight);
  ReplaceWindowProc(GetDlgItem(dialog, IDC_CROP_PREVIEW), CropPreviewProc);
  LayoutCropDialog(dialog);
  cropInitialising = 0;
  return TRUE;
}

// The number of a position field; 0 for one that is negative as an int.
int32_t FieldNumber(HWND dialog, int id) {
  return std::max(static_cast<int32_t>(GetDlgItemInt(dialog, id, nullptr, FALSE)), 0);
}

void OnFieldChanged(HWND dialog, int id) {
  if (cropInitialising) return;
  if (id == IDC_CROP_X) {
    cropX = LimitCrop(FieldNumber(dialog, id), doc.cropPreview.width, cropWidth);
  } else if (id == IDC_CROP_Y) {
    cropY = LimitCrop(FieldNumber(dialog, id), doc.cropPreview.height, cropHeight);
  } else {
    return;
  }
  RedrawWindow(GetDlgItem(dialog, IDC_CROP_PREVIEW), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

void OnCommand(HWND dialog, int id, UINT notification) {
  if (id == IDOK) {
    EndDialog(dialog, 1);
  } else if (id == IDCANCEL) {
    EndDialog(dialog, 0);
  } else if (notification == EN_CHANGE) {
    OnFieldChanged(dialog, id);
  }
}

INT_PTR CALLBACK CropImageProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      return OnInitDialog(dialog, reinterpret_cast<const char*>(lParam));
    case WM_SIZE:
      LayoutCropDialog(dialog);
      break;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {kSmallestWidth, kSmallestHeight};
      break;
    case WM_COMMAND:
      OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
      break;
  }
  return FALSE;
}

}  // namespace

int CropImage(BitmapClass& destination, const BitmapClass& source, const char* path, SIZE size) {
  cropX = 0;
  cropY = 0;
  cropWidth = size.cx;
  cropHeight = size.cy;
  if (!doc.cropPreview.Create(source.width, source.height)) {
    doc.cropPreview.Free();
    return 0;
  }
  doc.cropPreview.Draw(source, 0, 0);
  cropInitialising = 1;
  const INT_PTR result =
      RunDialog(IDD_CROP_IMAGE, doc.mainWindow, CropImageProc, reinterpret_cast<LPARAM>(path));
  if (result != 0) {
    destination.Create(cropWidth, cropHeight);
    destination.CopyRegion(doc.cropPreview, 0, 0, cropX, cropY, cropWidth, cropHeight);
  }
  doc.cropPreview.Free();
  return static_cast<int>(result);
}
