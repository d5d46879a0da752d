#include "controls/item_preview.h"

#include "document/load_screen_doc.h"
#include "imaging/image_files.h"
#include "imaging/memory_dc.h"
#include "imaging/pixel_colour.h"

namespace {

void FillWithFaceColour(HWND control, HDC target) {
  RECT client{};
  GetClientRect(control, &client);
  FillRect(target, &client, GetSysColorBrush(COLOR_3DFACE));
}

void Tint(BitmapClass& picture) {
  ReplaceColor(picture, kKeyColour, SwapRedBlue(GetSysColor(COLOR_3DFACE)));
  ReplaceColor(picture, kSideMarker, SideColour(doc.itemColour));
}

}  // namespace

uint32_t SideColour(int32_t itemColour) {
  constexpr uint32_t kColours[] = {0x6150FF, 0xCE0000, 0xCE1EFA};
  return kColours[itemColour];
}

void ItemPreview::Attach(HWND control) {
  hook.Attach(control, [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_PAINT ? OnPaint() : hook.PassOn(message, wParam, lParam);
  });
}

LRESULT ItemPreview::OnPaint() const {
  const HWND control = hook.Control();
  if (!doc.itemPreview.valid) {
    ValidateRect(control, nullptr);
    return 0;
  }
  const PaintDc paint(control);
  FillWithFaceColour(control, paint.get());
  const SIZE client = ClientSize(control);
  doc.itemPreview.BlitTo(paint.get(), (client.cx - doc.itemPreview.width) / 2,
                         (client.cy - doc.itemPreview.height) / 2);
  return 0;
}

void ItemPreview::Show(const char* path) const {
  doc.itemPreview.Free();
  if (TryLoadImageFile(path, doc.itemPreview)) {
    Tint(doc.itemPreview);
  } else {
    doc.itemPreview.Free();
    // An empty preview paints nothing, so the picture shown before has to be wiped here.
    const WindowDc target(hook.Control());
    FillWithFaceColour(hook.Control(), target.get());
  }
  InvalidateRect(hook.Control(), nullptr, TRUE);
}
