#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

#include "imaging/dib_class.h"
#include "imaging/image_class.h"
#include "support/surface_text.h"

namespace {

constexpr uint32_t kMark = 1;

// What both kinds of surface do, and, by kIsDib, where they differ.
template <class Kind>
class SurfaceTest : public testing::Test {
 protected:
  static constexpr bool kIsDib = std::is_same_v<Kind, DIBClass>;

  void Make(int32_t width, int32_t height) {
    surface.Create(width, height);
    surface.Fill(0);
  }

  // Draws from both kinds of source, each time onto 4 x 3 fresh pixels: both give the same.
  template <class Check>
  void ForBothSources(const char* rows, Check check) {
    ImageClass image;
    Draw(image, rows);
    DIBClass dib;
    Draw(dib, rows);
    for (const BitmapClass* source : std::initializer_list<const BitmapClass*>{&image, &dib}) {
      surface.Free();
      Make(4, 3);
      check(*source);
    }
  }

  Kind surface;
};

struct KindName {
  template <class Kind>
  static std::string GetName(int) {
    return std::is_same_v<Kind, DIBClass> ? "DIBClass" : "ImageClass";
  }
};

using Kinds = testing::Types<DIBClass, ImageClass>;
TYPED_TEST_SUITE(SurfaceTest, Kinds, KindName);

TYPED_TEST(SurfaceTest, CreateMakesPixelsAndFreeReleasesThem) {
  EXPECT_EQ(0, this->surface.valid);
  EXPECT_TRUE(this->surface.Create(7, 3));
  EXPECT_EQ(1, this->surface.valid);
  EXPECT_EQ(7, this->surface.width);
  EXPECT_EQ(3, this->surface.height);
  EXPECT_EQ(0U, this->surface.ReadPixel(6, 2));
  EXPECT_EQ(4, this->surface.PixelBytes());
  EXPECT_EQ(28, this->surface.RowBytes());
  EXPECT_EQ(this->kIsDib ? 1 : 0, this->surface.IsDIB());
  this->surface.Free();
  this->surface.Free();
  EXPECT_EQ(0, this->surface.valid);
  EXPECT_EQ(0, this->surface.width);
  EXPECT_EQ(0, this->surface.height);
  EXPECT_FALSE(this->surface.Create(4, -1));
  EXPECT_EQ(0, this->surface.valid);
}

TYPED_TEST(SurfaceTest, PixelsComeFromAPackedTopDownBuffer) {
  const uint32_t pixels[] = {1, 2, 3, 4, 0, 1};
  ASSERT_TRUE(this->surface.CreateFromPixels(pixels, 3, 2));
  EXPECT_EQ(Rows("#23|4.#"), Drawn(this->surface));
}

TYPED_TEST(SurfaceTest, RowsAndAddressesReachThePixels) {
  Draw(this->surface, "#2.|.34");
  EXPECT_EQ(2U, this->surface.Row(0)[1]);
  EXPECT_EQ(4U, this->surface.Row(1)[2]);
  EXPECT_EQ(3U, *this->surface.PixelAddress(1, 1));
  *this->surface.PixelAddress(0, 0) = 4;
  this->surface.Row(0)[2] = 3;
  EXPECT_EQ(Rows("423|.34"), Drawn(this->surface));
}

TYPED_TEST(SurfaceTest, PointsOutsideAreNoPixels) {
  this->Make(4, 3);
  for (const auto& [x, y] : std::vector<std::pair<int32_t, int32_t>>{
           {4, 0}, {0, 3}, {-1, 0}, {0, -1}, {INT32_MAX, 1}, {1, INT32_MIN}}) {
    this->surface.PutPixel(x, y, kMark);
    EXPECT_EQ(0U, this->surface.ReadPixel(x, y)) << x << ", " << y;
    EXPECT_EQ(nullptr, this->surface.PixelAddress(x, y)) << x << ", " << y;
  }
  EXPECT_EQ(nullptr, this->surface.Row(3));
  EXPECT_EQ(nullptr, this->surface.Row(-1));
  EXPECT_EQ(Rows("....|....|...."), Drawn(this->surface));
}

TYPED_TEST(SurfaceTest, FillSetsAll32Bits) {
  this->Make(3, 2);
  this->surface.Fill(0x12345678);
  EXPECT_EQ(Rows("###|###"), Drawn(this->surface, {{'#', 0x12345678}}));
}

struct Line {
  const char* name;
  int32_t x1, y1, x2, y2;
  const char *dib, *image;  // on 6 x 4 pixels
};

const Line kLines[] = {
    {"Flat", 0, 0, 3, 1, "###...|......|......|......", "###...|...#..|......|......"},
    {"FlatBackwards", 3, 1, 0, 0, "......|.###..|......|......", "#.....|.###..|......|......"},
    {"Steep", 0, 0, 1, 3, "#.....|#.....|#.....|......", "#.....|#.....|#.....|.#...."},
    {"Level", 1, 2, 4, 2, "......|......|.###..|......", "......|......|.####.|......"},
    {"Upright", 5, 0, 5, 2, ".....#|.....#|......|......", ".....#|.....#|.....#|......"},
    {"Diagonal", 0, 3, 3, 0, "......|..#...|.#....|#.....", "...#..|..#...|.#....|#....."},
    {"Slanted", 0, 0, 5, 2, "###...|...##.|......|......", "##....|..###.|.....#|......"},
    {"OnePoint", 2, 1, 2, 1, "......|......|......|......", "......|..#...|......|......"},
    {"FromOutside", -2, -1, 4, 2, "##....|..##..|......|......", "##....|..##..|....#.|......"},
};

TYPED_TEST(SurfaceTest, LineEndsBeforeItsLastPointOnADibOnly) {
  for (const Line& line : kLines) {
    this->surface.Free();
    this->Make(6, 4);
    this->surface.DrawLine(line.x1, line.y1, line.x2, line.y2, kMark);
    EXPECT_EQ(Rows(this->kIsDib ? line.dib : line.image), Drawn(this->surface)) << line.name;
  }
}

TYPED_TEST(SurfaceTest, FrameIsOnePixelWide) {
  this->Make(7, 9);
  this->surface.DrawFrame(2, 3, 4, 5, kMark);
  EXPECT_EQ(Rows(".......|.......|.......|..####.|..#..#.|..#..#.|..#..#.|..####.|......."),
            Drawn(this->surface));
}

struct Frame {
  const char* name;
  int32_t x, y, width, height;
  const char* drawn;  // on 4 x 3 pixels
};

const Frame kFrames[] = {
    {"NegativeX", -1, 0, 3, 3, "....|....|...."},
    {"NegativeY", 0, -1, 3, 3, "....|....|...."},
    {"NoWidth", 0, 0, 0, 3, "....|....|...."},
    {"NoHeight", 0, 0, 3, 0, "....|....|...."},
    {"OnePixel", 1, 1, 1, 1, "....|.#..|...."},
    {"OneColumn", 1, 0, 1, 3, ".#..|.#..|.#.."},
    {"OneRow", 0, 1, 4, 1, "....|####|...."},
    {"TwoByTwo", 0, 0, 2, 2, "##..|##..|...."},
    {"PastTheCorner", 2, 1, 9, 9, "....|..##|..#."},
    {"FarOutside", 4, 3, 2, 2, "....|....|...."},
    {"Endless", 1, 1, INT32_MAX, INT32_MAX, "....|.###|.#.."},
};

TYPED_TEST(SurfaceTest, FrameOutsideIsCutOff) {
  for (const Frame& frame : kFrames) {
    this->surface.Free();
    this->Make(4, 3);
    this->surface.DrawFrame(frame.x, frame.y, frame.width, frame.height, kMark);
    EXPECT_EQ(Rows(frame.drawn), Drawn(this->surface)) << frame.name;
    this->surface.Fill(0);
    this->surface.InvertFrame(frame.x, frame.y, frame.width, frame.height);
    EXPECT_EQ(Rows(frame.drawn), Drawn(this->surface, {{'.', 0}, {'#', 0xFFFFFF}})) << frame.name;
  }
}

TYPED_TEST(SurfaceTest, InvertFrameSwapsRedAndBlueAndRestoresOnTheSecondCall) {
  const struct {
    uint32_t before, after, restored;
  } cases[] = {{0xFFFFFF, 0x000000, 0xFFFFFF},
               {0x0000FF, 0x00FFFF, 0x0000FF},
               {0x102030, 0xCFDFEF, 0x102030},
               {0x80102030, 0xCFDFEF, 0x102030}};
  this->Make(1, 1);
  for (const auto& pixel : cases) {
    this->surface.Fill(pixel.before);
    this->surface.InvertFrame(0, 0, 1, 1);
    EXPECT_EQ(pixel.after, this->surface.ReadPixel(0, 0)) << std::hex << pixel.before;
    this->surface.InvertFrame(0, 0, 1, 1);
    EXPECT_EQ(pixel.restored, this->surface.ReadPixel(0, 0)) << std::hex << pixel.before;
  }
}

struct Copy {
  const char* name;
  int32_t x, y;
  const char *dib, *image, *keyed;  // of the source #2 / 3K onto 4 x 3 pixels
};

constexpr char kNothing[] = "....|....|....";

const Copy kCopies[] = {
    {"Inside", 1, 1, "....|.#2.|.3K.", "....|.#2.|.3K.", "....|.#2.|.3.."},
    {"InTheCorner", 2, 1, "....|..#2|..3K", "....|..#2|..3K", "....|..#2|..3."},
    {"PastTheRight", 3, 0, "...#|...3|....", kNothing, kNothing},
    {"PastTheBottom", 0, 2, "....|....|#2..", kNothing, kNothing},
    {"BeyondTheEdges", 6, 5, kNothing, kNothing, kNothing},
    {"NegativeX", -1, 0, kNothing, kNothing, kNothing},
    {"NegativeY", 0, -1, kNothing, kNothing, kNothing},
};

TYPED_TEST(SurfaceTest, OnlyTheDrawOfADibIsClipped) {
  for (const Copy& copy : kCopies) {
    this->ForBothSources("#2|3K", [&](const BitmapClass& source) {
      this->surface.Draw(source, copy.x, copy.y);
      EXPECT_EQ(Rows(this->kIsDib ? copy.dib : copy.image), Drawn(this->surface)) << copy.name;
      this->surface.Fill(0);
      this->surface.DrawKeyed(source, copy.x, copy.y, kKeyColour);
      EXPECT_EQ(Rows(copy.keyed), Drawn(this->surface)) << copy.name << ", keyed";
    });
  }
}

TYPED_TEST(SurfaceTest, KeyIsComparedWithItsTopByte) {
  ImageClass source;
  Draw(source, "ab", {{'a', 0x010000FF}, {'b', 0x0000FF}});
  this->Make(2, 1);
  this->surface.DrawKeyed(source, 0, 0, kKeyColour);
  EXPECT_EQ(Rows("a."), Drawn(this->surface, {{'.', 0}, {'a', 0x010000FF}}));
}

struct Region {
  const char* name;
  int32_t dx, dy, sx, sy, w, h;
  const char* drawn;  // of the source #23 / 4K# onto 4 x 3 pixels
};

const Region kRegions[] = {
    {"Whole", 1, 1, 0, 0, 3, 2, "....|.#23|.4K#"},
    {"Part", 0, 2, 1, 0, 2, 1, "....|....|23.."},
    {"NoWidth", 0, 0, 0, 0, 0, 2, kNothing},
    {"NegativeHeight", 0, 0, 0, 0, 2, -1, kNothing},
    {"NegativeTarget", -1, 0, 0, 0, 2, 2, kNothing},
    {"NegativeSource", 0, 0, 0, -1, 2, 2, kNothing},
    {"WiderThanTheSource", 0, 0, 1, 0, 3, 1, kNothing},
    {"HigherThanTheSource", 0, 0, 0, 1, 1, 2, kNothing},
    {"PastTheRight", 3, 0, 0, 0, 2, 1, kNothing},
    {"PastTheBottom", 0, 2, 0, 0, 1, 2, kNothing},
    {"Endless", 0, 0, 1, 1, INT32_MAX, INT32_MAX, kNothing},
};

const Region kKeyedRegions[] = {
    {"Whole", 1, 1, 0, 0, 3, 2, "....|.#23|.4.#"},
    {"WiderThanTheSource", 0, 0, 1, 0, 9, 1, "23..|....|...."},
    {"HigherThanTheSource", 0, 0, 2, 0, 1, 9, "3...|#...|...."},
    {"PastTheRight", 3, 0, 0, 0, 3, 2, "...#|...4|...."},
    {"PastTheBottom", 0, 2, 0, 0, 3, 2, "....|....|#23."},
    {"Endless", 1, 0, 0, 0, INT32_MAX, INT32_MAX, ".#23|.4.#|...."},
    {"BesideTheSource", 0, 0, 3, 0, 1, 1, kNothing},
    {"BesideTheTarget", 4, 0, 0, 0, 1, 1, kNothing},
    {"NoWidth", 0, 0, 0, 0, 0, 1, kNothing},
    {"NegativeTarget", 0, -1, 0, 0, 3, 2, kNothing},
    {"NegativeSource", 0, 0, -1, 0, 3, 2, kNothing},
};

TYPED_TEST(SurfaceTest, CopyRegionIsAllOrNothing) {
  for (const Region& r : kRegions) {
    this->ForBothSources("#23|4K#", [&](const BitmapClass& source) {
      this->surface.CopyRegion(source, r.dx, r.dy, r.sx, r.sy, r.w, r.h);
      EXPECT_EQ(Rows(r.drawn), Drawn(this->surface)) << r.name;
    });
  }
}

TYPED_TEST(SurfaceTest, CopyRegionKeyedIsClippedToBoth) {
  for (const Region& r : kKeyedRegions) {
    this->ForBothSources("#23|4K#", [&](const BitmapClass& source) {
      this->surface.CopyRegionKeyed(source, r.dx, r.dy, r.sx, r.sy, r.w, r.h, kKeyColour);
      EXPECT_EQ(Rows(r.drawn), Drawn(this->surface)) << r.name;
    });
  }
}

TYPED_TEST(SurfaceTest, EmptySurfacesAreNeitherReadNorDrawnOn) {
  ImageClass empty, full;
  Draw(full, "##|##");
  this->surface.Fill(kMark);
  this->surface.DrawFrame(0, 0, 2, 2, kMark);
  this->surface.InvertFrame(0, 0, 2, 2);
  this->surface.DrawLine(0, 0, 3, 3, kMark);
  this->surface.Draw(full, 0, 0);
  this->surface.DrawKeyed(full, 0, 0, 0);
  this->surface.CopyRegion(full, 0, 0, 0, 0, 1, 1);
  this->surface.CopyRegionKeyed(full, 0, 0, 0, 0, 1, 1, 0);
  EXPECT_EQ(0, this->surface.valid);

  this->Make(2, 2);
  this->surface.Draw(empty, 0, 0);
  this->surface.DrawKeyed(empty, 0, 0, 0);
  this->surface.CopyRegion(empty, 0, 0, 0, 0, 1, 1);
  this->surface.CopyRegionKeyed(empty, 0, 0, 0, 0, 1, 1, 0);
  EXPECT_EQ(Rows("..|.."), Drawn(this->surface));
}

TYPED_TEST(SurfaceTest, CopiesHaveTheirOwnPixels) {
  Draw(this->surface, "#2|34");
  TypeParam copy(this->surface);
  TypeParam assigned(this->surface);
  assigned.Free();
  Draw(assigned, "4");
  assigned = this->surface;
  this->surface.Fill(0);
  EXPECT_EQ(Rows("#2|34"), Drawn(copy));
  EXPECT_EQ(Rows("#2|34"), Drawn(assigned));
}

TYPED_TEST(SurfaceTest, CopyOfAnEmptySurfaceIsEmpty) {
  TypeParam empty;
  TypeParam copy(empty);
  EXPECT_EQ(0, copy.valid);
  Draw(this->surface, "#2");
  this->surface = empty;
  EXPECT_EQ(0, this->surface.valid);
  EXPECT_EQ(0, this->surface.width);
}

TYPED_TEST(SurfaceTest, AssignmentToItselfChangesNothing) {
  Draw(this->surface, "#2");
  const TypeParam& itself = this->surface;
  this->surface = itself;
  EXPECT_EQ(Rows("#2"), Drawn(this->surface));
}

}  // namespace
