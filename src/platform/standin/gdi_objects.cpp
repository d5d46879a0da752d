#include <cstring>
#include <new>
#include <utility>

#include "platform/standin/failure.h"
#include "platform/standin/gdi.h"
#include "platform/standin/testing.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

HandleTable<GdiObject>& Objects() {
  static auto* objects = new HandleTable<GdiObject>;
  return *objects;
}

HandleTable<DeviceContext>& Contexts() {
  static auto* contexts = new HandleTable<DeviceContext>;
  return *contexts;
}

// Belongs to the system: it is not counted, and DeleteObject leaves it alone.
HGDIOBJ AddStock(const std::shared_ptr<GdiObject>& object) {
  object->stock = true;
  return Objects().Add<HGDIOBJ>(object);
}

// What a fresh memory device context holds: a bitmap of one pixel and the system font.
HGDIOBJ StockFont() {
  static const HGDIOBJ font = AddStock(std::make_shared<Font>(0));
  return font;
}

HGDIOBJ StockBitmap() {
  static const HGDIOBJ bitmap = AddStock(std::make_shared<Bitmap>(1, 1, false));
  return bitmap;
}

HDC AddContext(const std::shared_ptr<DeviceContext>& context) {
  context->fontHandle = StockFont();
  context->font = FindGdi<Font>(context->fontHandle);
  return Contexts().Add<HDC>(context);
}

// The largest picture that GDI is asked for: sides and sizes beyond it fail as on Windows.
bool FitsInMemory(int width, int height) {
  return width > 0 && height > 0 && static_cast<int64_t>(width) * height <= (1LL << 29);
}

HBITMAP AddBitmap(int width, int height, bool bottomUp) try {
  return Objects().Add<HBITMAP>(std::make_shared<Bitmap>(width, height, bottomUp));
} catch (const std::bad_alloc&) {
  return nullptr;  // no exception may leave a Win32 call
}

}  // namespace

std::shared_ptr<DeviceContext> FindDC(HDC dc) { return Contexts().Find(dc); }

std::shared_ptr<GdiObject> FindGdiObject(const void* handle) { return Objects().Find(handle); }

HDC OpenWindowDC(HWND window, const RECT* clip) {
  auto context = std::make_shared<DeviceContext>();
  context->window = window;
  if (clip) context->clip = *clip;
  return AddContext(context);
}

void CloseWindowDC(HDC dc) { Contexts().Remove(dc); }

Pixels* TargetOf(DeviceContext& dc) {
  if (dc.memory) return &dc.bitmap->pixels;
  const auto window = dc.window ? FindWindowPtr(dc.window) : nullptr;
  return window ? &ClientPixels(*window) : nullptr;
}

size_t LiveGdiObjects() {
  size_t count = Contexts().All().size();
  for (const auto& [handle, object] : Objects().All()) count += object->stock ? 0 : 1;
  return count;
}

}  // namespace standin

using namespace standin;

HDC CreateCompatibleDC(HDC dc) {
  if (dc && !FindDC(dc)) return nullptr;
  auto context = std::make_shared<DeviceContext>();
  context->memory = true;
  context->bitmapHandle = StockBitmap();
  context->bitmap = FindGdi<Bitmap>(context->bitmapHandle);
  return AddContext(context);
}

BOOL DeleteDC(HDC dc) {
  const auto context = FindDC(dc);
  if (!context || !context->memory) return FALSE;
  context->bitmap->selected = false;
  Contexts().Remove(dc);
  return TRUE;
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) {
  const auto context = FindDC(dc);
  const auto found = context ? FindGdiObject(object) : nullptr;
  if (!found) return nullptr;
  if (const auto font = std::dynamic_pointer_cast<Font>(found)) {
    context->font = font;
    return std::exchange(context->fontHandle, object);
  }
  const auto bitmap = std::dynamic_pointer_cast<Bitmap>(found);
  if (!bitmap || !context->memory) return nullptr;
  if (bitmap->selected && bitmap != context->bitmap) return nullptr;
  context->bitmap->selected = false;
  bitmap->selected = !bitmap->stock;
  context->bitmap = bitmap;
  return std::exchange(context->bitmapHandle, object);
}

BOOL DeleteObject(HGDIOBJ object) {
  const auto found = FindGdiObject(object);
  if (!found) return FALSE;
  // A device context that still holds the object keeps it alive; the handle is gone at once.
  if (!found->stock) Objects().Remove(object);
  return TRUE;
}

HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD offset) {
  const BITMAPINFOHEADER& header = info->bmiHeader;
  if (usage != DIB_RGB_COLORS || section || offset || header.biBitCount != 32 ||
      header.biCompression != BI_RGB || header.biSize != sizeof(BITMAPINFOHEADER))
    Unsupported("CreateDIBSection knows pictures of 32 bits in memory of its own only");
  *bits = nullptr;
  if (dc && !FindDC(dc)) return nullptr;
  const int height = header.biHeight < 0 ? -header.biHeight : header.biHeight;
  if (!FitsInMemory(header.biWidth, height)) return nullptr;
  const HBITMAP bitmap = AddBitmap(header.biWidth, height, header.biHeight > 0);
  if (bitmap) *bits = FindGdi<Bitmap>(bitmap)->pixels.Data();
  return bitmap;
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
  if (!FindDC(dc) || !FitsInMemory(width, height)) return nullptr;
  return AddBitmap(width, height, false);
}

HFONT CreateFontIndirectA(const LOGFONTA* font) {
  return Objects().Add<HFONT>(std::make_shared<Font>(font->lfHeight));
}

HFONT CreateFontA(int height, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                  DWORD, LPCSTR) {
  return Objects().Add<HFONT>(std::make_shared<Font>(height));
}

int GetObjectA(HANDLE object, int size, LPVOID buffer) {
  const auto bitmap = FindGdi<Bitmap>(object);
  if (!bitmap || size != sizeof(BITMAP)) return 0;
  Pixels& pixels = bitmap->pixels;
  const BITMAP description{pixels.Width(), pixels.Height(), 32};
  std::memcpy(buffer, &description, sizeof description);
  return sizeof description;
}

DWORD GetSysColor(int index) {
  switch (index) {
    case COLOR_WINDOW:
      return RGB(255, 255, 255);
    case COLOR_WINDOWTEXT:
      return RGB(0, 0, 0);
    case COLOR_BTNFACE:
      return RGB(240, 240, 240);
    default:
      Unsupported("system colour " + std::to_string(index));
  }
}

// As in a window class, a brush is the number of a system colour plus one.
HBRUSH GetSysColorBrush(int index) {
  return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(index) + 1);
}
