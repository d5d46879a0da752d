#include "dialogs/crop_image.h"

#include <algorithm>

#include "controls/control.h"
#include "dialogs/dialog.h"
#include "document/load_screen_doc.h"
#include "imaging/crop_geometry.h"
#include "imaging/memory_dc.h"
#include "resources/resource.h"

namespace {

constexpr uint32_t kOutline = 0xFFFFFF;
constexpr LONG kSmallestWidth = 440;
constexpr LONG kSmallestHeight = 334;

class CropDialog final : public Dialog {
 public:
  CropDialog(const char* path, SIZE size)
      : cropWidth(size.cx), cropHeight(size.cy), cropPath(path) {}

  // Takes the rectangle's outline away, whose pixels are the picture's again.
  void HideRectangle() const;

  int32_t cropX = 0;
  int32_t cropY = 0;
  const int32_t cropWidth;
  const int32_t cropHeight;

 private:
  INT_PTR OnInit() override;
  INT_PTR OnCommand(int id, UINT notification) override;
  INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnPreviewMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void LayoutCropDialog() const;
  void Place(int id, int x, int y) const;
  void OnFieldChanged(int id);
  void MoveRectangle(int32_t x, int32_t y);
  void ShowRectangle();
  int32_t FieldNumber(int id) const;
  void OnClick(int32_t mouseX, int32_t mouseY);

  const char* const cropPath;
  bool cropInitialising = true;  // while the dialog fills its fields
  ControlHook preview;
  // The rectangle's pixels. The picture itself is dimmed around it and has its outline meanwhile:
  // it may be large, and hundreds of times larger than the rectangle that moves.
  ImageClass inside;
};

INT_PTR CropDialog::OnInit() {
  SendMessageA(Window(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(doc.appIcon));
  SetDlgItemInt(Window(), IDC_CROP_X, 0, FALSE);
  SetDlgItemInt(Window(), IDC_CROP_Y, 0, FALSE);
  SetDlgItemInt(Window(), IDC_CROP_WIDTH, static_cast<UINT>(cropWidth), FALSE);
  SetDlgItemInt(Window(), IDC_CROP_HEIGHT, static_cast<UINT>(cropHeight), FALSE);
  SetDlgItemTextA(Window(), IDC_CROP_PATH, cropPath);
  Send(IDC_CROP_X_ARROWS, UDM_SETRANGE, 0, MAKELPARAM(doc.cropPreview.width - cropWidth, 0));
  Send(IDC_CROP_Y_ARROWS, UDM_SETRANGE, 0, MAKELPARAM(doc.cropPreview.height - cropHeight, 0));
  preview.Attach(Control(IDC_CROP_PREVIEW), [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnPreviewMessage(message, wParam, lParam);
  });
  inside.Create(cropWidth, cropHeight);
  DimRegion(doc.cropPreview, 0, 0, doc.cropPreview.width, doc.cropPreview.height);
  ShowRectangle();
  LayoutCropDialog();
  cropInitialising = false;
  return TRUE;
}

INT_PTR CropDialog::OnCommand(int id, UINT notification) {
  if (id == IDOK) {
    End(1);
  } else if (id == IDCANCEL) {
    End(0);
  } else if (notification == EN_CHANGE) {
    OnFieldChanged(id);
  }
  return FALSE;
}

INT_PTR CropDialog::OnMessage(UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_SIZE) LayoutCropDialog();
  if (message == WM_GETMINMAXINFO) {
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {kSmallestWidth, kSmallestHeight};
  }
  return FALSE;
}

// The static control would draw its own black rectangle: the system gets every message instead.
LRESULT CropDialog::OnPreviewMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    const PaintDc paint(preview.Control());
    const SIZE client = ClientSize(preview.Control());
    SetStretchBltMode(paint.get(), COLORONCOLOR);
    doc.cropPreview.StretchTo(paint.get(), 0, 0, client.cx, client.cy);
  }
  if (message == WM_LBUTTONUP) OnClick(LOWORD(lParam), HIWORD(lParam));
  return DefWindowProcA(preview.Control(), message, wParam, lParam);
}

void CropDialog::LayoutCropDialog() const {
  const SIZE client = ClientSize(Window());
  const int wide = std::max<int>(client.cx - 24, 0);
  MoveWindow(Control(IDC_CROP_PATH), 12, 30, wide, 23, TRUE);
  MoveWindow(Control(IDC_CROP_PREVIEW), 12, 64, wide, std::max<int>(client.cy - 172, 0), TRUE);
  Place(IDC_CROP_GROUP, 12, client.cy - 102);
  Place(IDOK, 87, client.cy - 33);
  Place(IDCANCEL, 169, client.cy - 33);
  constexpr struct {
    int id;
    int x;
  } kFields[] = {{IDC_CROP_X, 33},         {IDC_CROP_X_ARROWS, 93}, {IDC_CROP_Y, 131},
                 {IDC_CROP_Y_ARROWS, 192}, {IDC_CROP_WIDTH, 229},   {IDC_CROP_HEIGHT, 327}};
  for (const auto& field : kFields) Place(field.id, field.x, client.cy - 80);
  RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

void CropDialog::Place(int id, int x, int y) const {
  SetWindowPos(Control(id), nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CropDialog::OnFieldChanged(int id) {
  if (cropInitialising) return;
  if (id == IDC_CROP_X) {
    MoveRectangle(LimitCrop(FieldNumber(id), doc.cropPreview.width, cropWidth), cropY);
  } else if (id == IDC_CROP_Y) {
    MoveRectangle(cropX, LimitCrop(FieldNumber(id), doc.cropPreview.height, cropHeight));
  }
}

// The number of a position field; 0 for one that is negative as an int.
int32_t CropDialog::FieldNumber(int id) const {
  return std::max(static_cast<int32_t>(GetDlgItemInt(Window(), id, nullptr, FALSE)), 0);
}

void CropDialog::OnClick(int32_t mouseX, int32_t mouseY) {
  const SIZE client = ClientSize(preview.Control());
  MoveRectangle(CropAroundMouse(mouseX, client.cx, doc.cropPreview.width, cropWidth),
                CropAroundMouse(mouseY, client.cy, doc.cropPreview.height, cropHeight));
  SetDlgItemInt(Window(), IDC_CROP_X, static_cast<UINT>(cropX), FALSE);
  SetDlgItemInt(Window(), IDC_CROP_Y, static_cast<UINT>(cropY), FALSE);
  UpdateWindow(preview.Control());
}

void CropDialog::MoveRectangle(int32_t x, int32_t y) {
  if (x == cropX && y == cropY) return;
  HideRectangle();
  DimRegion(doc.cropPreview, cropX, cropY, cropWidth, cropHeight);
  cropX = x;
  cropY = y;
  ShowRectangle();
  RedrawWindow(preview.Control(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

void CropDialog::ShowRectangle() {
  UndimRegion(doc.cropPreview, cropX, cropY, cropWidth, cropHeight);
  inside.CopyRegion(doc.cropPreview, 0, 0, cropX, cropY, cropWidth, cropHeight);
  doc.cropPreview.DrawFrame(cropX, cropY, cropWidth, cropHeight, kOutline);
}

void CropDialog::HideRectangle() const {
  doc.cropPreview.CopyRegion(inside, cropX, cropY, 0, 0, cropWidth, cropHeight);
}

}  // namespace

int CropImage(BitmapClass& destination, ImageClass source, const char* path, SIZE size) {
  if (!doc.cropPreview.Create(source.width, source.height)) {
    doc.cropPreview.Free();
    return 0;
  }
  doc.cropPreview.Draw(source, 0, 0);
  source.Free();
  CropDialog dialog(path, size);
  const INT_PTR result = dialog.Run(IDD_CROP_IMAGE, doc.mainWindow);
  if (result != 0) {
    dialog.HideRectangle();
    destination.Create(size.cx, size.cy);
    destination.CopyRegion(doc.cropPreview, 0, 0, dialog.cropX, dialog.cropY, size.cx, size.cy);
  }
  doc.cropPreview.Free();
  return static_cast<int>(result);
}
