#include "controls/image_preview.h"

#include <cstdio>

#include "imaging/memory_dc.h"

namespace {

int32_t previewClassRegistered = 0;

constexpr int kCaptionHeight = 30;  // the strip at the bottom with the picture's size

void DrawCentred(HDC target, const char* text, RECT area) {
  DrawTextA(target, text, -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void DrawPicture(HDC target, const RECT& client, const DIBClass& picture) {
  const PreviewPlacement place =
      FitPreview(client.right, client.bottom, picture.width, picture.height);
  if (place.width == picture.width && place.height == picture.height) {
    picture.BlitTo(target, place.x, place.y);
  } else {
    SetStretchBltMode(target, COLORONCOLOR);
    picture.StretchTo(target, place.x, place.y, place.width, place.height);
  }
  char size[32];
  std::snprintf(size, sizeof size, "%dx%d", picture.width, picture.height);
  RECT strip = client;
  strip.top = strip.bottom - kCaptionHeight;
  DrawCentred(target, size, strip);
}

LRESULT OnPaint(HWND control) {
  const PaintDc paint(control);
  RECT client{};
  GetClientRect(control, &client);
  SetBkMode(paint.get(), TRANSPARENT);
  if (const auto picture =
          reinterpret_cast<const DIBClass*>(GetWindowLongPtrA(control, GWLP_USERDATA))) {
    DrawPicture(paint.get(), client, *picture);
  } else {
    DrawCentred(paint.get(), "No preview", client);
  }
  return 0;
}

LRESULT CALLBACK ImagePreviewProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
    case WM_DESTROY:
      return 0;
    case WM_PAINT:
      return OnPaint(control);
  }
  return DefWindowProcA(control, message, wParam, lParam);
}

}  // namespace

void RegisterImagePreview() {
  if (previewClassRegistered) return;
  WNDCLASSEXA description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = ImagePreviewProc;
  description.hInstance = GetModuleHandleA(nullptr);
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = "ImagePreview";
  RegisterClassExA(&description);
  previewClassRegistered = 1;
}

void ShowPreviewPicture(HWND control, const DIBClass* picture) {
  SetWindowLongPtrA(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(picture));
  InvalidateRect(control, nullptr, TRUE);
}

PreviewPlacement FitPreview(int32_t controlWidth, int32_t controlHeight, int32_t width,
                            int32_t height) {
  PreviewPlacement place{0, 0, width, height};
  if (width > controlWidth || height > controlHeight) {
    place.width = controlWidth;
    place.height = static_cast<int32_t>(static_cast<double>(height) / width * controlWidth);
    if (place.height > controlHeight) {
      place.height = controlHeight;
      place.width = static_cast<int32_t>(static_cast<double>(width) / height * controlHeight);
    }
  }
  place.x = (controlWidth - place.width) / 2;
  place.y = (controlHeight - place.height) / 2;
  return place;
}
