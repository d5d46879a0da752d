#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>

// Walks the points of a line with one error counter per axis (the integer line drawing of the
// Bresenham family). The caller decides how many points it takes and where an axis steps: that is
// all in which the two kinds of surface differ.
class LineWalk {
 public:
  LineWalk(int32_t x1, int32_t y1, int32_t x2, int32_t y2)
      : x_(x1),
        y_(y1),
        xStep_((x2 > x1) - (x2 < x1)),
        yStep_((y2 > y1) - (y2 < y1)),
        xDistance_(std::abs(x2 - x1)),
        yDistance_(std::abs(y2 - y1)) {}

  int32_t x() const { return x_; }
  int32_t y() const { return y_; }
  // The longer of both distances.
  int32_t length() const { return std::max(xDistance_, yDistance_); }

  // Advances; an axis steps when its counter has reached `threshold`.
  void Step(int32_t threshold) {
    Advance(x_, xError_, xDistance_, xStep_, threshold);
    Advance(y_, yError_, yDistance_, yStep_, threshold);
  }

 private:
  void Advance(int32_t& position, int32_t& error, int32_t distance, int32_t step,
               int32_t threshold) {
    error += distance;
    if (error >= threshold) {
      error -= length();
      position += step;
    }
  }

  int32_t x_, y_;
  int32_t xStep_, yStep_;
  int32_t xDistance_, yDistance_;
  int32_t xError_ = 0, yError_ = 0;
};
