#include "controls/link_control.h"

#include <cstring>
#include <memory>
#include <string>

#include "document/load_screen_doc.h"
#include "imaging/memory_dc.h"

namespace {

constexpr size_t kLongestAddress = 255;
constexpr int kLongestText = 254;
constexpr COLORREF kLinkColour = RGB(0, 0, 255);

// The control's copy of its address, null before one is set.
std::string* AddressOf(HWND link) {
  return reinterpret_cast<std::string*>(GetWindowLongPtrA(link, GWLP_USERDATA));
}

// Takes ownership of the new address and releases the former one.
void ReplaceAddress(HWND link, std::unique_ptr<std::string> address) {
  const std::unique_ptr<std::string> former(AddressOf(link));
  SetWindowLongPtrA(link, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(address.release()));
}

LRESULT OnSetAddress(HWND link, const char* address) {
  if (!address || std::strlen(address) > kLongestAddress) return 0;
  ReplaceAddress(link, std::make_unique<std::string>(address));
  return 1;
}

LRESULT OnClick(HWND link) {
  if (const std::string* address = AddressOf(link)) {
    ShellExecuteA(link, nullptr, address->c_str(), nullptr, nullptr, SW_SHOWMAXIMIZED);
  }
  return 0;
}

LRESULT OnPaint(HWND link) {
  char text[kLongestText + 1] = "";
  GetWindowTextA(link, text, sizeof text);
  RECT client{};
  GetClientRect(link, &client);
  const PaintDc paint(link);
  const HGDIOBJ former = SelectObject(paint.get(), doc.linkFont.get());
  SetTextColor(paint.get(), kLinkColour);
  SetBkMode(paint.get(), TRANSPARENT);
  DrawTextA(paint.get(), text, -1, &client, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  SelectObject(paint.get(), former);
  return 0;
}

LRESULT CALLBACK LinkProc(HWND link, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
      SetWindowLongPtrA(link, GWLP_USERDATA, 0);
      break;
    case LM_SETADDRESS:
      return OnSetAddress(link, reinterpret_cast<const char*>(wParam));
    case WM_LBUTTONUP:
      return OnClick(link);
    case WM_DESTROY:
      ReplaceAddress(link, nullptr);
      break;
    case WM_PAINT:
      return OnPaint(link);
  }
  return DefWindowProcA(link, message, wParam, lParam);
}

FontHandle MakeLinkFont() {
  constexpr int kHeight = 15;
  constexpr DWORD kUnderlined = TRUE;
  return FontHandle(CreateFontA(kHeight, 0, 0, 0, FW_BOLD, FALSE, kUnderlined, FALSE, ANSI_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                VARIABLE_PITCH, nullptr));
}

}  // namespace

void RegisterLinkClass() {
  if (doc.linkClassRegistered) return;
  WNDCLASSEXA description{};
  description.cbSize = sizeof description;
  description.style = CS_HREDRAW | CS_VREDRAW;
  description.lpfnWndProc = LinkProc;
  description.hInstance = GetModuleHandleA(nullptr);
  description.hCursor = LoadCursorA(nullptr, IDC_HAND);
  description.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
  description.lpszClassName = "LinkClass";
  RegisterClassExA(&description);
  doc.linkFont = MakeLinkFont();
  doc.linkClassRegistered = 1;
}

void DeleteLinkFont() { doc.linkFont.reset(); }
