#include "export/quantizer.h"

#include <algorithm>
#include <cassert>

namespace {

// With fewer leaves than this the tree would merge away the picture's main colours; smaller
// palettes are combined from its leaves instead.
constexpr uint32_t kFewestLeaves = 16;

constexpr uint32_t Red(uint32_t colour) { return colour >> 16 & 0xFF; }
constexpr uint32_t Green(uint32_t colour) { return colour >> 8 & 0xFF; }
constexpr uint32_t Blue(uint32_t colour) { return colour & 0xFF; }
constexpr uint32_t Pixel(uint32_t red, uint32_t green, uint32_t blue) {
  return red << 16 | green << 8 | blue;
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
      depth(std::min(depthOfTree, 8U)) {}

bool QuantizerClass::AddSurface(const BitmapClass& surface) {
  for (int32_t y = 0; y < surface.height; ++y) {
    const uint32_t* row = surface.Row(y);
    for (int32_t x = 0; x < surface.width; ++x) {
      InsertColor(Red(row[x]), Green(row[x]), Blue(row[x]));
      while (leafCount > treeLimit) MergeDeepest();
    }
  }
  return true;
}

void QuantizerClass::InsertColor(uint32_t red, uint32_t green, uint32_t blue) {
  std::unique_ptr<OctreeNode>* link = &root;
  for (uint32_t level = 0;; ++level) {
    if (!*link) {
      *link = std::make_unique<OctreeNode>();
      if (level == depth) {
        (*link)->leaf = 1;
        ++leafCount;
      } else {
        (*link)->nextInLevel = levelLists[level];
        levelLists[level] = link->get();
      }
    }
    OctreeNode& node = **link;
    if (node.leaf) {
      ++node.pixelTotal;
      node.sumRed += red;
      node.sumGreen += green;
      node.sumBlue += blue;
      return;
    }
    const uint32_t shift = 7 - level;
    const uint32_t index =
        (red >> shift & 1) << 2 | (green >> shift & 1) << 1 | (blue >> shift & 1);
    link = &node.child[index];
  }
}

void QuantizerClass::MergeDeepest() {
  uint32_t level = depth - 1;
  while (level > 0 && !levelLists[level]) --level;
  OctreeNode& node = *levelLists[level];
  levelLists[level] = node.nextInLevel;
  uint32_t merged = 0;
  for (std::unique_ptr<OctreeNode>& child : node.child) {
    if (!child) continue;
    node.sumRed += child->sumRed;
    node.sumGreen += child->sumGreen;
    node.sumBlue += child->sumBlue;
    node.pixelTotal += child->pixelTotal;
    child.reset();
    ++merged;
  }
  node.leaf = 1;
  leafCount = leafCount - merged + 1;
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
  for (const std::unique_ptr<OctreeNode>& child : node->child) {
    CollectLeaves(child.get(), table, index, totals);
  }
}

uint32_t QuantizerClass::EntryCount() const { return std::min(leafCount, paletteSize); }

void QuantizerClass::FillPalette(uint32_t* table) const {
  uint32_t count = 0;
  if (paletteSize >= kFewestLeaves) {
    CollectLeaves(root.get(), table, count, nullptr);
    return;
  }
  uint32_t colours[kFewestLeaves] = {};
  uint32_t totals[kFewestLeaves] = {};
  CollectLeaves(root.get(), colours, count, totals);
  if (leafCount <= paletteSize) {
    std::copy_n(colours, leafCount, table);
    return;
  }
  for (uint32_t j = 0; j < paletteSize; ++j) {
    table[j] = WeightedAverage(colours, totals, leafCount * j / paletteSize,
                               leafCount * (j + 1) / paletteSize);
  }
}
