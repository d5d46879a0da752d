#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "imaging/bitmap_class.h"

// Pictures as rows of text, so that a failed comparison shows what was drawn:
//
//   EXPECT_EQ(Rows("..#|.#."), Drawn(surface));
//
// '.' is 0, '#' is 1, 'K' the key colour and '?' any colour that the legend does not name.
using Legend = std::map<char, uint32_t>;

inline const Legend& UsualLegend() {
  static const Legend legend = {{'.', 0}, {'#', 1}, {'K', kKeyColour},
                                {'2', 2}, {'3', 3}, {'4', 4}};
  return legend;
}

inline std::string Rows(const char* rows) {
  std::string text = rows;
  std::replace(text.begin(), text.end(), '|', '\n');
  return text + "\n";
}

inline std::string Drawn(const BitmapClass& surface, const Legend& legend = UsualLegend()) {
  std::string text;
  for (int32_t y = 0; y < surface.height; ++y) {
    for (int32_t x = 0; x < surface.width; ++x) {
      char mark = '?';
      for (const auto& [letter, colour] : legend) {
        if (colour == surface.ReadPixel(x, y)) mark = letter;
      }
      text += mark;
    }
    text += '\n';
  }
  return text;
}

// Makes an empty surface the picture of the rows, which are of one length.
inline void Draw(BitmapClass& surface, const char* picture, const Legend& legend = UsualLegend()) {
  const std::string rows = picture;
  const auto height = 1 + std::count(rows.begin(), rows.end(), '|');
  const auto stride = (static_cast<ptrdiff_t>(rows.size()) + 1) / height;
  surface.Create(static_cast<int32_t>(stride - 1), static_cast<int32_t>(height));
  for (int32_t y = 0; y < surface.height; ++y) {
    for (int32_t x = 0; x < surface.width; ++x) {
      surface.PutPixel(x, y, legend.at(rows[static_cast<size_t>(y * stride + x)]));
    }
  }
}
