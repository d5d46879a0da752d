#include <gtest/gtest.h>

#include <string>

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
               {2, 4, "0 0 1 1 "},
               {4, 2, "1 3 "},
               {7, 2, "3 6 "},
               {10, 4, "2 4 7 9 "},
               {6, 6, "0 1 2 3 4 5 "},
               {1000, 7, "142 285 428 570 713 856 999 "}};
  for (const auto& row : cases)
    EXPECT_EQ(ColumnsOf(row.width, row.target), row.columns) << row.width << " to " << row.target;
}

TEST(SelectObject, KeepsABitmapInOneContext) {
  Picture first(2, 2), second(2, 2);
  EXPECT_EQ(SelectObject(second.dc, first.bitmap), nullptr);
  EXPECT_EQ(SelectObject(second.dc, second.before), second.bitmap);
}

}  // namespace
