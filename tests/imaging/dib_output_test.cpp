#include <gtest/gtest.h>

#include "imaging/dib_class.h"
#include "imaging/memory_dc.h"
#include "support/surface_text.h"

namespace {

// Blits one surface onto the bitmap of another: what arrives there can be read as pixels.
class DibOutputTest : public testing::Test {
 protected:
  DibOutputTest() : target(5, 3) {
    Draw(source, "#23|4#2");
    target.Fill(0);
  }

  DIBClass source, target;
};

TEST_F(DibOutputTest, MemoryHoldsTheBottomRowFirst) {
  EXPECT_EQ(1U, source.bits[3]);
  EXPECT_EQ(3U, source.bits[5]);
  EXPECT_EQ(4U, source.bits[0]);
  DIBClass section(2, 3);
  section.PutPixel(0, 0, 0x12345678);
  EXPECT_EQ(0x12345678U, section.bits[4]);
}

TEST_F(DibOutputTest, BlitToCopiesTheWholeSurface) {
  {
    const MemoryDc dc(nullptr, target.bitmap);
    source.BlitTo(dc.get(), 1, 1);
  }
  EXPECT_EQ(Rows(".....|.#23.|.4#2."), Drawn(target));
}

struct Block {
  const char* name;
  int x, y, sx, sy, w, h;
  const char* drawn;
};

const Block kBlocks[] = {
    {"Inside", 3, 0, 1, 0, 2, 1, "...23|.....|....."},
    {"CutAtTheRight", 0, 1, 1, 1, 300, 1, ".....|#2...|....."},
    {"CutAtTheBottom", 0, 0, 2, 0, 1, 9, "3....|2....|....."},
    {"Empty", 0, 0, 0, 0, 0, 0, ".....|.....|....."},
};

TEST_F(DibOutputTest, BlitRegionIsCutAtTheSurface) {
  for (const Block& block : kBlocks) {
    target.Fill(0);
    {
      const MemoryDc dc(nullptr, target.bitmap);
      source.BlitRegionTo(dc.get(), block.x, block.y, block.sx, block.sy, block.w, block.h);
    }
    EXPECT_EQ(Rows(block.drawn), Drawn(target)) << block.name;
  }
}

TEST_F(DibOutputTest, StretchFillsTheRectangle) {
  DIBClass large(6, 4);
  {
    const MemoryDc dc(nullptr, large.bitmap);
    SetStretchBltMode(dc.get(), COLORONCOLOR);
    source.StretchTo(dc.get(), 0, 0, 6, 4);
  }
  EXPECT_EQ(Rows("##2233|##2233|44##22|44##22"), Drawn(large));
}

}  // namespace
