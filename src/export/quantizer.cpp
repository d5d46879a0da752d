#include "export/quantizer.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <span>

namespace {

// With fewer leaves than this the tree would merge away the picture's main colours; smaller
// palettes are combined from its leaves instead.
constexpr uint32_t kFewestLeaves = 16;

// How many bits of a channel tell its cell.
constexpr uint32_t kCellLevel = 4;
// What a path says below that.
constexpr uint32_t kBelowCell = 24 - 3 * kCellLevel;

constexpr uint32_t Red(uint32_t colour) { return colour >> 16 & 0xFF; }
constexpr uint32_t Green(uint32_t colour) { return colour >> 8 & 0xFF; }
constexpr uint32_t Blue(uint32_t colour) { return colour & 0xFF; }
constexpr uint32_t Pixel(uint32_t red, uint32_t green, uint32_t blue) {
  return red << 16 | green << 8 | blue;
}

// The eight bits of a channel, three places apart.
constexpr auto kSpread = [] {
  std::array<uint32_t, 256> spread{};
  for (uint32_t channel = 0; channel < 256; ++channel) {
    for (uint32_t bit = 0; bit < 8; ++bit) spread[channel] |= (channel >> bit & 1) << 3 * bit;
  }
  return spread;
}();

// The way of a colour down the tree, three bits a level, the root's on top.
constexpr uint32_t PathOf(uint32_t colour) {
  return kSpread[Red(colour)] << 2 | kSpread[Green(colour)] << 1 | kSpread[Blue(colour)];
}

// The average of colours [first, last), weighted by how many pixels each stands for.
uint32_t WeightedAverage(const uint32_t* colours, const uint32_t* totals, uint32_t first,
                         uint32_t last) {
  uint64_t red = 0, green = 0, blue = 0, total = 0;
  for (uint32_t k = first; k < last; ++k) {
    red += uint64_t{Red(colours[k])} * totals[k];
    green += uint64_t{Green(colours[k])} * totals[k];
    blue += uint64_t{Blue(colours[k])} * totals[k];
    total += totals[k];
  }
  assert(total > 0);  // every leaf holds a pixel
  return Pixel(static_cast<uint32_t>(red / total), static_cast<uint32_t>(green / total),
               static_cast<uint32_t>(blue / total));
}

}  // namespace

QuantizerClass::QuantizerClass(uint32_t colours, uint32_t depthOfTree)
    : treeLimit(std::max(colours, kFewestLeaves)),
      paletteSize(colours),
      depth(std::min(depthOfTree, 8U)) {
  // As many as the leaves have, each with its own branches up to the root.
  nodes.reserve((treeLimit + 1) * (depth + 1));
}

bool QuantizerClass::AddSurface(const BitmapClass& surface) {
  if (surface.height < 1 || surface.width < 1) return true;
  if (nodes.empty()) NewNode(0, 0);
  for (int32_t y = 0; y < surface.height; ++y) {
    for (const uint32_t colour : std::span(surface.Row(y), static_cast<size_t>(surface.width))) {
      InsertColor(colour);
      while (leafCount > treeLimit) MergeDeepest();
    }
  }
  return true;
}

inline void QuantizerClass::InsertColor(uint32_t colour) {
  const uint32_t path = PathOf(colour);
  OctreeNode* node = &nodes[cells[path >> kBelowCell]];
  if (!node->leaf) node = FindLeaf(node, path);
  ++node->pixelTotal;
  node->sumRed += Red(colour);
  node->sumGreen += Green(colour);
  node->sumBlue += Blue(colour);
}

OctreeNode* QuantizerClass::FindLeaf(OctreeNode* node, uint32_t path) {
  while (!node->leaf) {
    const uint32_t level = node->level + 1;
    OctreeNode*& child = node->child[path >> (24 - 3 * level) & 7];
    if (!child) child = NewNode(level, path);
    node = child;
    if (level <= kCellLevel) cells[path >> kBelowCell] = Position(node);
  }
  return node;
}

OctreeNode* QuantizerClass::NewNode(uint32_t level, uint32_t path) {
  OctreeNode* node = spareNodes;
  if (node) {
    spareNodes = node->nextInLevel;
    *node = {};
  } else {
    node = &nodes.emplace_back();
  }
  node->level = level;
  node->path = path;
  // The branches of a leaf too many would be merged at once, up to the level where an older branch
  // takes its turn.
  if (level >= (leafCount == treeLimit ? DeepestBranch() : depth)) {
    node->leaf = 1;
    ++leafCount;
  } else {
    node->nextInLevel = levelLists[level];
    levelLists[level] = node;
  }
  return node;
}

uint32_t QuantizerClass::DeepestBranch() const {
  uint32_t level = depth - 1;
  while (level > 0 && !levelLists[level]) --level;
  return level;
}

void QuantizerClass::MergeDeepest() {
  OctreeNode*& newest = levelLists[DeepestBranch()];
  OctreeNode& node = *newest;
  newest = node.nextInLevel;
  for (OctreeNode*& child : node.child) {
    if (!child) continue;
    node.sumRed += child->sumRed;
    node.sumGreen += child->sumGreen;
    node.sumBlue += child->sumBlue;
    node.pixelTotal += child->pixelTotal;
    child->nextInLevel = spareNodes;
    spareNodes = child;
    child = nullptr;
    --leafCount;
  }
  node.leaf = 1;
  ++leafCount;
  if (node.level >= kCellLevel) return;
  const uint32_t count = 1U << 3 * (kCellLevel - node.level);
  std::fill_n(&cells[(node.path >> kBelowCell) & ~(count - 1)], count, Position(&node));
}

void QuantizerClass::CollectLeaves(const OctreeNode* node, uint32_t* table, uint32_t& index,
                                   uint32_t* totals) {
  if (!node) return;
  if (node->leaf) {
    table[index] = Pixel(node->sumRed / node->pixelTotal, node->sumGreen / node->pixelTotal,
                         node->sumBlue / node->pixelTotal);
    if (totals) totals[index] = node->pixelTotal;
    ++index;
    return;
  }
  for (const OctreeNode* child : node->child) CollectLeaves(child, table, index, totals);
}

uint32_t QuantizerClass::EntryCount() const { return std::min(leafCount, paletteSize); }

void QuantizerClass::FillPalette(uint32_t* table) const {
  uint32_t count = 0;
  if (paletteSize >= kFewestLeaves) {
    CollectLeaves(Root(), table, count, nullptr);
    return;
  }
  uint32_t colours[kFewestLeaves] = {};
  uint32_t totals[kFewestLeaves] = {};
  CollectLeaves(Root(), colours, count, totals);
  if (leafCount <= paletteSize) {
    std::copy_n(colours, leafCount, table);
    return;
  }
  for (uint32_t j = 0; j < paletteSize; ++j) {
    table[j] = WeightedAverage(colours, totals, leafCount * j / paletteSize,
                               leafCount * (j + 1) / paletteSize);
  }
}
