// On Windows the stand-in's functions are declared once more behind the platform's own: a signature
// that differs does not compile.
#include "platform/win32.h"
#ifdef _WIN32
#pragma GCC diagnostic ignored "-Wattributes"  // theirs are imported, ours are not
#include "platform/standin/functions.h"
#endif

#include <cstddef>

namespace {

// The structures that cross the border to the system have its layout.
static_assert(sizeof(LONG) == 4 && sizeof(DWORD) == 4 && sizeof(UINT) == 4 && sizeof(BOOL) == 4);
static_assert(sizeof(WPARAM) == 8 && sizeof(LPARAM) == 8 && sizeof(LONG_PTR) == 8);
static_assert(sizeof(MSG) == 48 && offsetof(MSG, wParam) == 16);
static_assert(sizeof(WNDCLASSEXA) == 80 && offsetof(WNDCLASSEXA, lpszClassName) == 64);
static_assert(sizeof(CREATESTRUCTA) == 80 && offsetof(CREATESTRUCTA, cy) == 32);
static_assert(sizeof(PAINTSTRUCT) == 72 && sizeof(MINMAXINFO) == 40 && sizeof(NMHDR) == 24);
static_assert(sizeof(BITMAP) == 32 && offsetof(BITMAP, bmBits) == 24);
static_assert(sizeof(BITMAPINFOHEADER) == 40 && sizeof(BITMAPINFO) == 44);
static_assert(sizeof(LOGFONTA) == 60 && offsetof(LOGFONTA, lfFaceName) == 28);
static_assert(sizeof(OPENFILENAMEA) == 152 && offsetof(OPENFILENAMEA, lpstrDefExt) == 104);
static_assert(sizeof(OFNOTIFYA) == 40);

}  // namespace
