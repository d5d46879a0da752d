#include <gtest/gtest.h>

#include "imaging/dib_class.h"
#include "imaging/memory_dc.h"

namespace {

// Which column of the source each column of the target shows.
std::string ColumnsOf(int width, int target) {
  DIBClass from(width, 1), to(target, 1);
  for (int i = 0; i < width; ++i) from.PutPixel(i, 0, static_cast<uint32_t>(i));
  const MemoryDc dc(nullptr, to.bitmap);
  SetStretchBltMode(dc.get(), COLORONCOLOR);
  from.StretchTo(dc.get(), 0, 0, target, 1);
  std::string columns;
  for (int i = 0; i < target; ++i) columns += std::to_string(to.ReadPixel(i, 0)) + " ";
  return columns;
}

TEST(StretchBlt, PicksTheSourceColumnInProportion) {
  const struct {
    int width, target;
    const char* columns;
  } cases[] = {{3, 5, "0 0 1 2 2 "},
               {4, 10, "0 0 0 1 1 2 2 2 3 3 "},
               {5, 3, "1 2 4 "},
               {4, 2, "1 3 "},
               {7, 2, "3 6 "},
               {10, 4, "2 4 7 9 "},
               {1000, 7, "142 285 428 570 713 856 999 "}};
  for (const auto& row : cases)
    EXPECT_EQ(ColumnsOf(row.width, row.target), row.columns) << row.width << " to " << row.target;
}

TEST(SelectObject, KeepsABitmapInOneContext) {
  const DIBClass first(2, 2), second(2, 2);
  const MemoryDc one(nullptr, first.bitmap), other(nullptr, second.bitmap);
  EXPECT_EQ(SelectObject(other.get(), first.bitmap), nullptr);
  EXPECT_EQ(SelectObject(other.get(), second.bitmap), second.bitmap);
}

}  // namespace
