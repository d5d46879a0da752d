#include "export/shp_palette.h"

#include <algorithm>

namespace {

// The channels of a colour 0x00RRGGBB.
ShpColour Channels(uint32_t colour) {
  return {static_cast<uint8_t>(colour >> 16), static_cast<uint8_t>(colour >> 8),
          static_cast<uint8_t>(colour)};
}

// Colours each way of a cell, and of the cells among whose entries those of a cell are looked for.
constexpr int32_t kCellSize = 16;
constexpr int32_t kCoarseCellSize = 64;
constexpr uint32_t kHashBits = 10;

constexpr int32_t kRedWeight = 30, kGreenWeight = 59, kBlueWeight = 11;

constexpr int32_t Distance(int32_t dr, int32_t dg, int32_t db) {
  return kRedWeight * dr * dr + kGreenWeight * dg * dg + kBlueWeight * db * db;
}

constexpr size_t CellCount(int32_t cellSize) {
  const auto perChannel = static_cast<size_t>(256 / cellSize);
  return perChannel * perChannel * perChannel;
}

size_t CellOf(const ShpColour& colour, int32_t cellSize) {
  const int32_t perChannel = 256 / cellSize;
  const int32_t cell = (colour.red / cellSize * perChannel + colour.green / cellSize) * perChannel +
                       colour.blue / cellSize;
  return static_cast<size_t>(cell);
}

// A channel's values in one cell.
struct CellRange {
  int32_t first, last;

  CellRange(int32_t value, int32_t cellSize)
      : first(value - value % cellSize), last(first + cellSize - 1) {}

  // How far a value is from the nearest and from the farthest of them.
  int32_t Nearest(int32_t value) const { return std::max({first - value, 0, value - last}); }
  int32_t Farthest(int32_t value) const { return std::max(value - first, last - value); }
};

}  // namespace

ShpPalette PaletteOf(const uint32_t (&colours)[kPaletteEntries]) {
  ShpPalette palette;
  for (int32_t i = 0; i < kPaletteEntries; ++i) palette.entries[i] = Channels(colours[i]);
  return palette;
}

int32_t NearestColor(const ShpPalette& palette, int32_t red, int32_t green, int32_t blue,
                     int32_t n) {
  int32_t bestDistance = 0x4B76300E;  // far above the largest distance, 6502500
  int32_t best = 0;
  for (int32_t i = 0; i < n; ++i) {
    const ShpColour& entry = palette.entries[i];
    const int32_t distance = Distance(entry.red - red, entry.green - green, entry.blue - blue);
    if (distance < bestDistance) {
      bestDistance = distance;
      best = i;
    }
  }
  return best;
}

PaletteMapper::PaletteMapper(const ShpPalette& palette, int32_t n)
    : palette_(palette),
      coarse_(CellCount(kCoarseCellSize)),
      fine_(CellCount(kCellSize)),
      known_(1U << kHashBits) {
  const auto scaled = [](int32_t value) { return static_cast<uint32_t>(value) << 8; };
  for (int32_t i = 0; i < n; ++i) {
    const auto& [red, green, blue] = palette.entries[i];
    const auto index = static_cast<uint8_t>(i);
    all_.push_back(index);
    entries_.push_back({scaled(Distance(red, green, blue)) | index, scaled(2 * kRedWeight * red),
                        scaled(2 * kGreenWeight * green), scaled(2 * kBlueWeight * blue)});
  }
}

void PaletteMapper::Map(const uint32_t* pixels, int32_t count, uint8_t* indices) {
  for (int32_t i = 0; i < count; ++i) {
    const uint32_t pixel = pixels[i] & 0xFFFFFF;
    KnownColour& known = known_[pixel * 0x9E3779B1U >> (32 - kHashBits)];
    if (known.pixel != pixel) known = {pixel, Nearest(pixel)};
    indices[i] = known.index;
  }
}

uint8_t PaletteMapper::Nearest(uint32_t pixel) {
  const ShpColour colour = Channels(pixel);
  const Indices* near = &fine_[CellOf(colour, kCellSize)];
  if (near->empty()) {
    near = &NearCell(colour, kCellSize, NearCell(colour, kCoarseCellSize, all_, coarse_), fine_);
  }
  // With the index in the low byte the lower one wins a tie. The sums wrap on the way, but what
  // they come to is less than 2^31 from 0.
  int32_t best = INT32_MAX;
  for (const uint8_t index : *near) {
    const Entry& entry = entries_[index];
    best =
        std::min(best, static_cast<int32_t>(entry.squares - entry.red * colour.red -
                                            entry.green * colour.green - entry.blue * colour.blue));
  }
  return static_cast<uint8_t>(best);
}

const PaletteMapper::Indices& PaletteMapper::NearCell(const ShpColour& colour, int32_t cellSize,
                                                      const Indices& candidates,
                                                      std::vector<Indices>& cells) const {
  Indices& near = cells[CellOf(colour, cellSize)];
  if (!near.empty()) return near;
  const CellRange red(colour.red, cellSize), green(colour.green, cellSize),
      blue(colour.blue, cellSize);
  // Every colour of the cell has an entry within this distance.
  int32_t bound = INT32_MAX;
  for (const uint8_t index : candidates) {
    const auto& [r, g, b] = palette_.entries[index];
    bound = std::min(bound, Distance(red.Farthest(r), green.Farthest(g), blue.Farthest(b)));
  }
  for (const uint8_t index : candidates) {
    const auto& [r, g, b] = palette_.entries[index];
    if (Distance(red.Nearest(r), green.Nearest(g), blue.Nearest(b)) <= bound) near.push_back(index);
  }
  return near;
}
