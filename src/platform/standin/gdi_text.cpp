#include <algorithm>
#include <cstring>

#include "platform/standin/failure.h"
#include "platform/standin/gdi.h"

using namespace standin;

// No letters are drawn: each character but the space is a filled box in its cell, so that place,
// extent and colour of a text can be seen and tested. A cell is half as wide as the font is high.
int DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format) {
  if (format & ~static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE))
    Unsupported("DrawTextA knows left and centred single lines only");
  const auto context = FindDC(dc);
  Pixels* target = context ? TargetOf(*context) : nullptr;
  if (!target) return 0;
  const int height = std::max(4, std::abs(context->font->description.lfHeight));
  const int cell = height / 2;
  const int count = length < 0 ? static_cast<int>(std::strlen(text)) : length;
  int x = rect->left;
  int y = rect->top;
  if (format & DT_CENTER) x += (rect->right - rect->left - count * cell) / 2;
  if (format & DT_VCENTER) y += (rect->bottom - rect->top - height) / 2;
  const auto paint = [&](const RECT& box, COLORREF colour) {
    const RECT& clip = context->clip;
    for (int row = std::max({box.top, rect->top, clip.top, LONG{0}});
         row < std::min({box.bottom, rect->bottom, clip.bottom, LONG{target->Height()}}); ++row) {
      for (int column = std::max({box.left, rect->left, clip.left, LONG{0}});
           column < std::min({box.right, rect->right, clip.right, LONG{target->Width()}}); ++column)
        target->At(column, row) = PixelOf(colour);
    }
  };
  if (context->backgroundMode == OPAQUE)
    paint({x, y, x + count * cell, y + height}, RGB(255, 255, 255));
  for (int i = 0; i < count; ++i, x += cell) {
    if (text[i] != ' ')
      paint({x, y + height / 4, x + cell - 1, y + height - 1}, context->textColour);
  }
  return height;
}
