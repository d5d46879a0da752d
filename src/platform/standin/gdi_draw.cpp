#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/standin/failure.h"
#include "platform/standin/gdi.h"

namespace standin {
namespace {

// The part of the rectangle that lies inside the target and the clip.
RECT Visible(const DeviceContext& dc, const Pixels& target, const RECT& rect) {
  return {std::max({rect.left, dc.clip.left, LONG{0}}), std::max({rect.top, dc.clip.top, LONG{0}}),
          std::min({rect.right, dc.clip.right, LONG{target.Width()}}),
          std::min({rect.bottom, dc.clip.bottom, LONG{target.Height()}})};
}

// Where destination column or row `i` of `length` takes its pixel from: the nearest when the
// picture grows, the last of those that fall together when it shrinks.
int SourceOf(int i, int length, int sourceLength) {
  const int64_t place = i;
  if (length > sourceLength)
    return static_cast<int>(((2 * place + 1) * sourceLength - 1) / (2 * length));
  return static_cast<int>((2 * (place + 1) * sourceLength + length) / (2 * length) - 1);
}

void Fill(const DeviceContext& dc, Pixels& target, const RECT& rect, COLORREF colour) {
  const RECT shown = Visible(dc, target, rect);
  for (int y = shown.top; y < shown.bottom && shown.left < shown.right; ++y)
    std::fill(target.Row(y) + shown.left, target.Row(y) + shown.right, PixelOf(colour));
}

struct Block {
  int x, y, width, height;
};

bool Copy(HDC dc, const Block& to, HDC sourceDC, const Block& from) {
  const auto context = FindDC(dc);
  const auto sourceContext = FindDC(sourceDC);
  Pixels* target = context ? TargetOf(*context) : nullptr;
  Pixels* source = sourceContext ? TargetOf(*sourceContext) : nullptr;
  if (!target || !source) return false;
  if (to.width < 0 || to.height < 0 || from.width < 0 || from.height < 0)
    Unsupported("pictures are not mirrored");
  if (target == source) Unsupported("no picture is copied onto itself");
  const RECT shown = Visible(*context, *target, {to.x, to.y, to.x + to.width, to.y + to.height});
  const bool stretches = to.width != from.width;
  for (int y = shown.top; y < shown.bottom; ++y) {
    const int sourceY = from.y + SourceOf(y - to.y, to.height, from.height);
    if (sourceY < 0 || sourceY >= source->Height()) continue;
    const uint32_t* in = source->Row(sourceY);
    uint32_t* out = target->Row(y);
    for (int x = shown.left; x < shown.right; ++x) {
      const int place = x - to.x;
      const int sourceX = from.x + (stretches ? SourceOf(place, to.width, from.width) : place);
      if (sourceX >= 0 && sourceX < source->Width()) out[x] = in[sourceX];
    }
  }
  return true;
}

}  // namespace

uint32_t PixelOf(COLORREF colour) {
  return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

COLORREF ColourOf(uint32_t pixel) { return PixelOf(pixel); }

}  // namespace standin

using namespace standin;

BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
            DWORD operation) {
  if (operation != SRCCOPY) Unsupported("BitBlt knows SRCCOPY only");
  return Copy(dc, {x, y, width, height}, source, {sourceX, sourceY, width, height});
}

BOOL StretchBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                int sourceWidth, int sourceHeight, DWORD operation) {
  if (operation != SRCCOPY) Unsupported("StretchBlt knows SRCCOPY only");
  const auto context = FindDC(dc);
  const bool stretches = width != sourceWidth || height != sourceHeight;
  if (context && stretches && context->stretchMode != COLORONCOLOR)
    Unsupported("StretchBlt stretches in the mode COLORONCOLOR only");
  return Copy(dc, {x, y, width, height}, source, {sourceX, sourceY, sourceWidth, sourceHeight});
}

int SetStretchBltMode(HDC dc, int mode) {
  const auto context = FindDC(dc);
  return context ? std::exchange(context->stretchMode, mode) : 0;
}

COLORREF GetPixel(HDC dc, int x, int y) {
  const auto context = FindDC(dc);
  Pixels* target = context ? TargetOf(*context) : nullptr;
  if (!target || !target->Contains(x, y)) return CLR_INVALID;
  return ColourOf(target->At(x, y));
}

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
  const auto context = FindDC(dc);
  Pixels* target = context ? TargetOf(*context) : nullptr;
  if (!target) return 0;
  // There are brushes of the system's colours only.
  const auto colour = static_cast<int>(reinterpret_cast<INT_PTR>(brush)) - 1;
  Fill(*context, *target, *rect, GetSysColor(colour));
  return 1;
}

COLORREF SetTextColor(HDC dc, COLORREF colour) {
  const auto context = FindDC(dc);
  return context ? std::exchange(context->textColour, colour) : CLR_INVALID;
}

int SetBkMode(HDC dc, int mode) {
  const auto context = FindDC(dc);
  return context ? std::exchange(context->backgroundMode, mode) : 0;
}

// No letters are drawn: each character but the space is a filled box in its cell, so that place,
// extent and colour of a text can be seen and tested. A cell is half as wide as the font is high.
int DrawTextA(HDC dc, LPCSTR text, int, LPRECT rect, UINT format) {
  if (format & ~static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE))
    Unsupported("DrawTextA knows left and centred single lines only");
  const auto context = FindDC(dc);
  Pixels* target = context ? TargetOf(*context) : nullptr;
  if (!target) return 0;
  if (context->backgroundMode != TRANSPARENT) Unsupported("DrawTextA paints no background");
  const int height = std::max(4, std::abs(context->font->height));
  const int cell = height / 2;
  LONG x = rect->left;
  LONG y = rect->top;
  if (format & DT_CENTER)
    x += (rect->right - rect->left - static_cast<int>(std::strlen(text)) * cell) / 2;
  if (format & DT_VCENTER) y += (rect->bottom - rect->top - height) / 2;
  const auto within = [&](RECT box) -> RECT {
    return {std::max(box.left, rect->left), std::max(box.top, rect->top),
            std::min(box.right, rect->right), std::min(box.bottom, rect->bottom)};
  };
  for (; *text; ++text, x += cell) {
    if (*text != ' ')
      Fill(*context, *target, within({x, y + height / 4, x + cell - 1, y + height - 1}),
           context->textColour);
  }
  return height;
}
