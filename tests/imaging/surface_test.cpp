#include <gtest/gtest.h>

#include <functional>
#include <tuple>
#include <type_traits>

#include "imaging/dib_class.h"
#include "imaging/image_class.h"
#include "imaging/memory_dc.h"
#include "support/surface_text.h"

namespace {

// What both kinds of surface do, and where they differ.
template <class Kind>
class SurfaceTest : public testing::Test {};
using Kinds = testing::Types<DIBClass, ImageClass>;
TYPED_TEST_SUITE(SurfaceTest, Kinds);

// 't' is the key colour but for its top byte, 'W' what inverting makes of 0.
const Legend kLegend = {{'.', 0}, {'#', 1},        {'2', 2},          {'3', 3},
                        {'4', 4}, {'W', 0xFFFFFF}, {'K', kKeyColour}, {'t', 0x010000FF}};
constexpr char kSource[] = "#2t|4K#";

using Drawing = std::function<void(BitmapClass& to, const BitmapClass& from)>;

const auto line = [](auto... n) { return [=](auto& to, auto&) { to.DrawLine(n..., 1); }; };
const auto frame = [](auto... n) { return [=](auto& to, auto&) { to.DrawFrame(n..., 1); }; };
const auto invert = [](auto... n) { return [=](auto& to, auto&) { to.InvertFrame(n...); }; };
const auto draw = [](auto... n) { return [=](auto& to, auto& from) { to.Draw(from, n...); }; };
const auto keyed = [](auto... n) {
  return [=](auto& to, auto& from) { to.DrawKeyed(from, n..., kKeyColour); };
};
const auto region = [](auto... n) {
  return [=](auto& to, auto& from) { to.CopyRegion(from, n...); };
};
const auto keyedRegion = [](auto... n) {
  return [=](auto& to, auto& from) { to.CopyRegionKeyed(from, n..., kKeyColour); };
};

struct Row {
  const char* name;
  Drawing draw;
  const char* image;          // what is drawn onto 6 x 4 pixels
  const char* dib = nullptr;  // the same where it is null
};

constexpr char kNothing[] = "......|......|......|......";

const Row kRows[] = {
    // Only an ImageClass has a line's end point.
    {"Flat", line(0, 0, 3, 1), "###...|...#..|......|......", "###...|......|......|......"},
    {"Backwards", line(3, 1, 0, 0), "#.....|.###..|......|......", "......|.###..|......|......"},
    {"Steep", line(0, 0, 1, 3), "#.....|#.....|#.....|.#....", "#.....|#.....|#.....|......"},
    {"Diagonal", line(0, 3, 3, 0), "...#..|..#...|.#....|#.....", "......|..#...|.#....|#....."},
    {"OnePoint", line(2, 1, 2, 1), "......|..#...|......|......", kNothing},
    {"Outside", line(-2, -1, 4, 2), "##....|..##..|....#.|......", "##....|..##..|......|......"},
    {"Frame", frame(1, 0, 4, 4), ".####.|.#..#.|.#..#.|.####."},
    {"FramePastTheCorner", frame(4, 2, 9, 9), "......|......|....##|....#."},
    {"FrameWithoutEnd", frame(1, 1, INT32_MAX, INT32_MAX), "......|.#####|.#....|.#...."},
    {"FrameAtNegativeX", frame(-1, 0, 3, 3), kNothing},
    {"FrameAtNegativeY", frame(0, -1, 3, 3), kNothing},
    {"FrameWithoutWidth", frame(0, 0, 0, 3), kNothing},
    {"Inverted", invert(1, 0, 4, 4), ".WWWW.|.W..W.|.W..W.|.WWWW."},
    {"InvertedColumn", invert(5, 1, 1, 3), "......|.....W|.....W|.....W"},
    {"InvertedPastTheCorner", invert(4, 2, 9, 9), "......|......|....WW|....W."},
    // Only the Draw of a DIBClass is clipped.
    {"Whole", draw(1, 1), "......|.#2t..|.4K#..|......"},
    {"WholePastTheRight", draw(5, 0), kNothing, ".....#|.....4|......|......"},
    {"WholePastTheBottom", draw(0, 3), kNothing, "......|......|......|#2t..."},
    {"WholeAtNegativeY", draw(0, -1), kNothing},
    {"Keyed", keyed(3, 2), "......|......|...#2t|...4.#"},
    {"KeyedPastTheRight", keyed(4, 0), kNothing},
    {"KeyedAtNegativeY", keyed(0, -1), kNothing},
    {"Region", region(4, 3, 1, 0, 2, 1), "......|......|......|....2t"},
    {"RegionOfNegativeHeight", region(0, 0, 0, 0, 2, -1), kNothing},
    {"RegionAtNegativeX", region(-1, 0, 0, 0, 2, 2), kNothing},
    {"RegionWiderThanTheSource", region(0, 0, 1, 0, 3, 1), kNothing},
    {"RegionHigherThanTheSource", region(0, 0, 0, 1, 1, 2), kNothing},
    {"RegionPastTheRight", region(5, 0, 0, 0, 2, 1), kNothing},
    {"RegionPastTheBottom", region(0, 3, 0, 0, 1, 2), kNothing},
    {"RegionWithoutEnd", region(0, 0, 1, 1, INT32_MAX, INT32_MAX), kNothing},
    {"KeyedRegionCutByBoth", keyedRegion(4, 1, 0, 0, 9, 9), "......|....#2|....4.|......"},
};

TYPED_TEST(SurfaceTest, DrawsThesePixels) {
  ImageClass image;
  DIBClass dib;
  Draw(image, kSource, kLegend);
  Draw(dib, kSource, kLegend);
  for (const Row& row : kRows) {
    const bool differs = row.dib && std::is_same_v<TypeParam, DIBClass>;
    for (const BitmapClass* source : std::initializer_list<const BitmapClass*>{&image, &dib}) {
      TypeParam target, empty;
      Draw(target, kNothing);
      row.draw(target, *source);
      EXPECT_EQ(Rows(differs ? row.dib : row.image), Drawn(target, kLegend)) << row.name;
      row.draw(empty, *source);
      EXPECT_EQ(0, empty.valid) << row.name << " onto an empty surface";
    }
  }
}

TYPED_TEST(SurfaceTest, PixelsAreReachedInsideOnly) {
  const uint32_t pixels[] = {1, 2, 0, 0, 3, 4};
  TypeParam surface;
  ASSERT_TRUE(surface.CreateFromPixels(pixels, 3, 2));
  EXPECT_EQ(4U, surface.Row(1)[2]);
  EXPECT_EQ(3U, *surface.PixelAddress(1, 1));
  for (const POINT& at : {POINT{3, 0}, POINT{0, 2}, POINT{-1, 0}, POINT{0, -1}}) {
    surface.PutPixel(at.x, at.y, 1);
    EXPECT_EQ(0U, surface.ReadPixel(at.x, at.y)) << at.x << ", " << at.y;
    EXPECT_EQ(nullptr, surface.PixelAddress(at.x, at.y)) << at.x << ", " << at.y;
  }
  EXPECT_EQ(nullptr, surface.Row(2));
  EXPECT_EQ(nullptr, surface.Row(-1));
  EXPECT_EQ(Rows("#2.|.34"), Drawn(surface));
}

}  // namespace
