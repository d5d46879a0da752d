#include <gtest/gtest.h>

#include <cstring>

#include "platform/win32.h"

namespace {

// A picture in memory with its device context.
class Picture {
 public:
  Picture(int width, int height) : dc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* memory = nullptr;
    bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
    bits = static_cast<DWORD*>(memory);
    before = SelectObject(dc, bitmap);
  }
  ~Picture() {
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  HDC dc;
  HBITMAP bitmap = nullptr;
  DWORD* bits = nullptr;
  HGDIOBJ before = nullptr;
};

TEST(DibSection, KeepsItsRowsFromTheBottomUp) {
  Picture picture(3, 2);
  SetPixel(picture.dc, 0, 0, RGB(0x11, 0x22, 0x33));
  EXPECT_EQ(picture.bits[3], 0x112233u);
  picture.bits[0] = 0x00AABBCC;
  EXPECT_EQ(GetPixel(picture.dc, 0, 1), RGB(0xAA, 0xBB, 0xCC));
  EXPECT_EQ(GetPixel(picture.dc, 3, 0), CLR_INVALID);
  BITMAP description{};
  EXPECT_EQ(GetObjectA(picture.bitmap, sizeof description, &description),
            static_cast<int>(sizeof description));
  EXPECT_EQ(description.bmWidth, 3);
  EXPECT_EQ(description.bmHeight, 2);
  EXPECT_EQ(description.bmBitsPixel, 32);
  EXPECT_EQ(description.bmBits, static_cast<void*>(picture.bits));
}

TEST(DibSection, FailsWithoutASize) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = &info;
  const struct {
    LONG width, height;
  } sizes[] = {{0, 10}, {10, 0}, {-5, 10}, {0x7FFFFFFF, 0x7FFFFFFF}};
  for (const auto& size : sizes) {
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = size.height;
    EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr)
        << size.width << " x " << size.height;
  }
}

TEST(BitBlt, CopiesWhatLiesInsideBothPictures) {
  Picture from(4, 4), to(4, 4);
  for (DWORD i = 0; i < 16; ++i) {
    from.bits[i] = 0x010101 * i;
    to.bits[i] = 0xFFFFFF;
  }
  EXPECT_TRUE(BitBlt(to.dc, 2, 2, 4, 4, from.dc, 0, 0, SRCCOPY));
  EXPECT_EQ(GetPixel(to.dc, 2, 2), GetPixel(from.dc, 0, 0));
  EXPECT_EQ(GetPixel(to.dc, 3, 3), GetPixel(from.dc, 1, 1));
  EXPECT_EQ(GetPixel(to.dc, 1, 1), RGB(255, 255, 255));
  EXPECT_TRUE(BitBlt(to.dc, -1, 0, 2, 1, from.dc, 1, 0, SRCCOPY));
  EXPECT_EQ(GetPixel(to.dc, 0, 0), GetPixel(from.dc, 2, 0));
}

TEST(BitBlt, WithinOnePictureReadsWhatStoodThere) {
  Picture picture(4, 1);
  for (DWORD i = 0; i < 4; ++i) picture.bits[i] = i + 1;
  BitBlt(picture.dc, 1, 0, 3, 1, picture.dc, 0, 0, SRCCOPY);
  EXPECT_EQ(picture.bits[1] & 0xFFFFFF, 1u);
  EXPECT_EQ(picture.bits[3] & 0xFFFFFF, 3u);
}

TEST(StretchBlt, RepeatsAndDropsPixels) {
  Picture two(2, 1), four(4, 1), back(2, 1);
  two.bits[0] = 0x111111;
  two.bits[1] = 0x222222;
  EXPECT_NE(SetStretchBltMode(four.dc, COLORONCOLOR), 0);
  EXPECT_EQ(SetStretchBltMode(four.dc, COLORONCOLOR), COLORONCOLOR);
  EXPECT_TRUE(StretchBlt(four.dc, 0, 0, 4, 1, two.dc, 0, 0, 2, 1, SRCCOPY));
  const DWORD wide[] = {0x111111, 0x111111, 0x222222, 0x222222};
  EXPECT_EQ(std::memcmp(four.bits, wide, sizeof wide), 0);
  SetStretchBltMode(back.dc, COLORONCOLOR);
  EXPECT_TRUE(StretchBlt(back.dc, 0, 0, 2, 1, four.dc, 0, 0, 4, 1, SRCCOPY));
  EXPECT_EQ(std::memcmp(back.bits, two.bits, 8), 0);
}

// Which column of the source each column of the target shows.
std::string ColumnsOf(int width, int target) {
  Picture from(width, 1), to(target, 1);
  for (int i = 0; i < width; ++i) from.bits[i] = static_cast<DWORD>(i);
  SetStretchBltMode(to.dc, COLORONCOLOR);
  StretchBlt(to.dc, 0, 0, target, 1, from.dc, 0, 0, width, 1, SRCCOPY);
  std::string columns;
  for (int i = 0; i < target; ++i) columns += std::to_string(to.bits[i] & 0xFFFFFF) + " ";
  return columns;
}

TEST(StretchBlt, PicksTheSourceColumnInProportion) {
  const struct {
    int width, target;
    const char* columns;
  } cases[] = {{3, 5, "0 0 1 2 2 "},
               {4, 10, "0 0 0 1 1 2 2 2 3 3 "},
               {5, 3, "1 2 4 "},
               {7, 2, "3 6 "},
               {10, 4, "2 4 7 9 "},
               {6, 6, "0 1 2 3 4 5 "},
               {1000, 7, "142 285 428 570 713 856 999 "}};
  for (const auto& row : cases)
    EXPECT_EQ(ColumnsOf(row.width, row.target), row.columns) << row.width << " to " << row.target;
}

TEST(DeviceContext, HoldsABitmapInOnePlaceOnly) {
  Picture picture(2, 2);
  const HDC other = CreateCompatibleDC(nullptr);
  EXPECT_EQ(SelectObject(other, picture.bitmap), nullptr);
  SelectObject(picture.dc, picture.before);
  const HGDIOBJ before = SelectObject(other, picture.bitmap);
  EXPECT_NE(before, nullptr);
  EXPECT_EQ(SelectObject(other, before), picture.bitmap);
  EXPECT_TRUE(DeleteDC(other));
  EXPECT_FALSE(DeleteDC(other));
  EXPECT_EQ(GetPixel(other, 0, 0), CLR_INVALID);
}

TEST(GdiObjects, AreDeletedOnce) {
  const HFONT font = CreateFontA(15, 0, 0, 0, FW_BOLD, 0, 1, 0, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                                 CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, VARIABLE_PITCH, nullptr);
  LOGFONTA description{};
  EXPECT_EQ(GetObjectA(font, sizeof description, &description),
            static_cast<int>(sizeof description));
  EXPECT_EQ(description.lfHeight, 15);
  EXPECT_EQ(description.lfWeight, FW_BOLD);
  EXPECT_EQ(description.lfUnderline, 1);
  EXPECT_TRUE(DeleteObject(font));
  EXPECT_FALSE(DeleteObject(font));
  EXPECT_FALSE(DeleteObject(nullptr));
}

TEST(GetDIBits, GivesACompatibleBitmapFromTheBottomUpOrTopDown) {
  const HDC screen = GetDC(nullptr);
  const HDC dc = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, 2, 2);
  const HGDIOBJ before = SelectObject(dc, bitmap);
  SetPixel(dc, 0, 0, RGB(1, 2, 3));
  SetPixel(dc, 1, 0, RGB(4, 5, 6));
  SetPixel(dc, 0, 1, RGB(7, 8, 9));
  SetPixel(dc, 1, 1, RGB(10, 11, 12));
  SelectObject(dc, before);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = 2;
  info.bmiHeader.biHeight = -2;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  DWORD pixels[4]{};
  EXPECT_EQ(GetDIBits(screen, bitmap, 0, 2, pixels, &info, DIB_RGB_COLORS), 2);
  EXPECT_EQ(pixels[0] & 0xFFFFFF, 0x010203u);
  EXPECT_EQ(pixels[3] & 0xFFFFFF, 0x0A0B0Cu);
  info.bmiHeader.biHeight = 2;
  EXPECT_EQ(GetDIBits(screen, bitmap, 0, 2, pixels, &info, DIB_RGB_COLORS), 2);
  EXPECT_EQ(pixels[0] & 0xFFFFFF, 0x070809u);
  BITMAP description{};
  GetObjectA(bitmap, sizeof description, &description);
  EXPECT_EQ(description.bmWidth, 2);
  EXPECT_EQ(description.bmBits, nullptr);
  DeleteDC(dc);
  DeleteObject(bitmap);
  EXPECT_EQ(ReleaseDC(nullptr, screen), 1);
}

TEST(FillRect, UsesBrushesAndColourNumbers) {
  Picture picture(10, 10);
  const RECT part{2, 2, 5, 20};
  FillRect(picture.dc, &part, GetSysColorBrush(COLOR_3DFACE));
  EXPECT_EQ(GetPixel(picture.dc, 2, 2), GetSysColor(COLOR_3DFACE));
  EXPECT_EQ(GetPixel(picture.dc, 4, 9), GetSysColor(COLOR_3DFACE));
  EXPECT_EQ(GetPixel(picture.dc, 5, 2), RGB(0, 0, 0));
  const RECT rest{5, 0, 10, 10};
  FillRect(picture.dc, &rest, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
  EXPECT_EQ(GetPixel(picture.dc, 5, 2), GetSysColor(COLOR_WINDOW));
}

// The columns and rows that a text covers.
RECT InkOf(Picture& picture, int width, int height, COLORREF colour) {
  RECT ink{width, height, -1, -1};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      if (GetPixel(picture.dc, x, y) != colour) continue;
      ink.left = ink.left < x ? ink.left : x;
      ink.top = ink.top < y ? ink.top : y;
      ink.right = ink.right > x ? ink.right : x;
      ink.bottom = ink.bottom > y ? ink.bottom : y;
    }
  }
  return ink;
}

TEST(DrawText, CentresALineInItsColourWithinTheRectangle) {
  constexpr int kWidth = 200, kHeight = 60;
  Picture picture(kWidth, kHeight);
  const RECT all{0, 0, kWidth, kHeight};
  FillRect(picture.dc, &all, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
  SetTextColor(picture.dc, RGB(0, 0, 255));
  EXPECT_EQ(SetBkMode(picture.dc, TRANSPARENT), OPAQUE);
  RECT strip{20, 20, 180, 50};
  EXPECT_GT(DrawTextA(picture.dc, "MMMMM", -1, &strip, DT_CENTER | DT_VCENTER | DT_SINGLELINE), 0);
  const RECT ink = InkOf(picture, kWidth, kHeight, RGB(0, 0, 255));
  ASSERT_GE(ink.right, 0);
  EXPECT_GE(ink.left, 20);
  EXPECT_LT(ink.right, 180);
  EXPECT_GE(ink.top, 20);
  EXPECT_LT(ink.bottom, 50);
  EXPECT_NEAR((ink.left + ink.right) / 2, 100, 3);
  EXPECT_NEAR((ink.top + ink.bottom) / 2, 35, 4);
}

}  // namespace
