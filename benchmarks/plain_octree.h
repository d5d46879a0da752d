#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>

#include "imaging/bitmap_class.h"

// The octree as its description has it, one allocation a node and one walk a pixel: what the
// export's QuantizerClass must equal colour for colour, and what its speed is compared with.
class PlainOctree {
 public:
  PlainOctree(uint32_t colours, uint32_t depthOfTree)
      : treeLimit(std::max(colours, kFewestLeaves)),
        paletteSize(colours),
        depth(std::min(depthOfTree, 8U)) {}

  void AddSurface(const BitmapClass& surface) {
    for (int32_t y = 0; y < surface.height; ++y) {
      const uint32_t* row = surface.Row(y);
      for (int32_t x = 0; x < surface.width; ++x) {
        InsertColor(row[x] >> 16 & 0xFF, row[x] >> 8 & 0xFF, row[x] & 0xFF);
        while (leafCount > treeLimit) MergeDeepest();
      }
    }
  }

  uint32_t EntryCount() const { return std::min(leafCount, paletteSize); }

  void FillPalette(uint32_t* table) const {
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

 private:
  static constexpr uint32_t kFewestLeaves = 16;

  struct Node {
    int leaf = 0;
    uint32_t pixelTotal = 0;
    uint32_t sumRed = 0, sumGreen = 0, sumBlue = 0;
    std::unique_ptr<Node> child[8];
    Node* nextInLevel = nullptr;
  };

  static uint32_t Pixel(uint64_t red, uint64_t green, uint64_t blue) {
    return static_cast<uint32_t>(red << 16 | green << 8 | blue);
  }

  static uint32_t WeightedAverage(const uint32_t* colours, const uint32_t* totals, uint32_t first,
                                  uint32_t last) {
    uint64_t red = 0, green = 0, blue = 0, total = 0;
    for (uint32_t k = first; k < last; ++k) {
      red += uint64_t{colours[k] >> 16 & 0xFF} * totals[k];
      green += uint64_t{colours[k] >> 8 & 0xFF} * totals[k];
      blue += uint64_t{colours[k] & 0xFF} * totals[k];
      total += totals[k];
    }
    return Pixel(red / total, green / total, blue / total);
  }

  void InsertColor(uint32_t red, uint32_t green, uint32_t blue) {
    std::unique_ptr<Node>* link = &root;
    for (uint32_t level = 0;; ++level) {
      if (!*link) {
        *link = std::make_unique<Node>();
        if (level == depth) {
          (*link)->leaf = 1;
          ++leafCount;
        } else {
          (*link)->nextInLevel = levelLists[level];
          levelLists[level] = link->get();
        }
      }
      Node& node = **link;
      if (node.leaf) {
        ++node.pixelTotal;
        node.sumRed += red;
        node.sumGreen += green;
        node.sumBlue += blue;
        return;
      }
      const uint32_t shift = 7 - level;
      link = &node.child[(red >> shift & 1) << 2 | (green >> shift & 1) << 1 | (blue >> shift & 1)];
    }
  }

  void MergeDeepest() {
    uint32_t level = depth - 1;
    while (level > 0 && !levelLists[level]) --level;
    Node& node = *levelLists[level];
    levelLists[level] = node.nextInLevel;
    uint32_t merged = 0;
    for (std::unique_ptr<Node>& child : node.child) {
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

  static void CollectLeaves(const Node* node, uint32_t* table, uint32_t& index, uint32_t* totals) {
    if (!node) return;
    if (node->leaf) {
      table[index] = Pixel(node->sumRed / node->pixelTotal, node->sumGreen / node->pixelTotal,
                           node->sumBlue / node->pixelTotal);
      if (totals) totals[index] = node->pixelTotal;
      ++index;
      return;
    }
    for (const std::unique_ptr<Node>& child : node->child) {
      CollectLeaves(child.get(), table, index, totals);
    }
  }

  std::unique_ptr<Node> root;
  uint32_t leafCount = 0;
  Node* levelLists[9] = {};
  uint32_t treeLimit;
  uint32_t paletteSize;
  uint32_t depth;
};
