#pragma once

#include <cstdint>
#include <vector>

// One entry of a palette on the full 8-bit scale.
struct ShpColour {
  uint8_t red = 0;
  uint8_t green = 0;
  uint8_t blue = 0;
};

inline constexpr int32_t kPaletteEntries = 256;

// The palette of an export, 768 bytes.
struct ShpPalette {
  ShpColour entries[kPaletteEntries];
};
static_assert(sizeof(ShpPalette) == 768);

// The palette of a table of colours 0x00RRGGBB.
ShpPalette PaletteOf(const uint32_t (&colours)[kPaletteEntries]);

// The first of the palette's first n entries that is nearest to a colour, by the squared channel
// differences weighted 30, 59 and 11 (the share of red, green and blue in brightness, in
// hundredths). n is at least 1; channels are 0 to 255.
int32_t NearestColor(const ShpPalette& palette, int32_t red, int32_t green, int32_t blue,
                     int32_t n);

// Gives pixels the indices that NearestColor gives them, much sooner: a pixel is compared only with
// the entries that are nearest to some colour of its cell, one of 16 x 16 x 16, and not at all when
// its colour was mapped lately. (Locally sorted search, P. Heckbert: Color Image Quantization for
// Frame Buffer Display, 1982.)
class PaletteMapper {
 public:
  // Maps to the first n entries, 1 to 256, of a palette.
  PaletteMapper(const ShpPalette& palette, int32_t n);

  // Writes the index of each of `count` pixels, whose top bytes play no part.
  void Map(const uint32_t* pixels, int32_t count, uint8_t* indices);

 private:
  using Indices = std::vector<uint8_t>;
  struct KnownColour {
    uint32_t pixel = 0xFF000000;  // none that is looked for
    uint8_t index = 0;
  };
  // The distance of a pixel p from an entry e is, by channel, w(e - p)^2 = we^2 - 2wep + wp^2. The
  // last term is the same for all entries, so the others tell which is nearest.
  struct Entry {
    uint32_t squares;           // the sum of we^2, times 256, and the entry's index
    uint32_t red, green, blue;  // 2we, times 256
  };

  uint8_t Nearest(uint32_t pixel);
  // The entries among `candidates` that are nearest to some colour of a colour's cell of
  // `cellSize` values a channel; kept in `cells`.
  const Indices& NearCell(const ShpColour& colour, int32_t cellSize, const Indices& candidates,
                          std::vector<Indices>& cells) const;

  ShpPalette palette_;
  std::vector<Entry> entries_;
  Indices all_;
  std::vector<Indices> coarse_, fine_;  // by cell, empty until a pixel falls into it
  std::vector<KnownColour> known_;      // by a hash of the colour
};
