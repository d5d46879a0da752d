#pragma once

#include <cstdint>
#include <vector>

#include "imaging/bitmap_class.h"

// One colour of the octree, or a branch of it.
struct OctreeNode {
  int leaf = 0;             // 1 for a colour of the future palette
  uint32_t pixelTotal = 0;  // pixels added to this leaf, of its merged children too
  uint32_t sumRed = 0, sumGreen = 0, sumBlue = 0;
  uint32_t level = 0;                 // 0 for the root
  uint32_t path = 0;                  // of a colour below it, see PathOf
  OctreeNode* child[8] = {};          // by one bit of red, green and blue
  OctreeNode* nextInLevel = nullptr;  // list of the unmerged branches of a level, or of spare nodes
};

// Makes a palette for a picture with an octree: every pixel becomes a leaf of a tree that branches
// by the bits of its channels, and while there are too many leaves the newest branch of the deepest
// level becomes one leaf. (M. Gervautz, W. Purgathofer: A Simple Method for Color Quantization:
// Octree Quantization, 1988; with the level lists of J. Prosise, Wicked Code, MSJ August 1997.)
// The tree holds at most max(colours, 16) + 1 leaves at any moment, so its nodes fit into one
// block.
//
// A pixel seldom walks down from the root: for each of 16 x 16 x 16 cells of the colour space the
// lowest node is kept that holds the whole cell, which is mostly the leaf.
class QuantizerClass {
 public:
  // `colours` is 1 to 256. `depth` is how many bits of a channel count, at most 8.
  QuantizerClass(uint32_t colours, uint32_t depth);
  virtual ~QuantizerClass() = default;
  QuantizerClass(const QuantizerClass&) = delete;
  QuantizerClass& operator=(const QuantizerClass&) = delete;

  // Adds all pixels, rows from the top, left to right; the order decides which colours are merged.
  // Always true. Throws std::bad_alloc.
  bool AddSurface(const BitmapClass& surface);

  // Writes the first EntryCount() of 256 colours 0x00RRGGBB in tree order; the rest stays.
  void FillPalette(uint32_t* table) const;

  // Number of colours that FillPalette writes: at most the number asked for, and never more than
  // the picture has.
  uint32_t EntryCount() const;

 private:
  void InsertColor(uint32_t colour);
  OctreeNode* FindLeaf(OctreeNode* node, uint32_t path);
  OctreeNode* NewNode(uint32_t level, uint32_t path);
  uint32_t DeepestBranch() const;
  void MergeDeepest();
  const OctreeNode* Root() const { return nodes.empty() ? nullptr : nodes.data(); }
  uint16_t Position(const OctreeNode* node) const {
    return static_cast<uint16_t>(node - nodes.data());
  }
  static void CollectLeaves(const OctreeNode* node, uint32_t* table, uint32_t& index,
                            uint32_t* totals);

  std::vector<OctreeNode> nodes;  // never moved; the root is the first
  OctreeNode* spareNodes = nullptr;
  uint16_t cells[4096] = {};  // positions in `nodes`
  uint32_t leafCount = 0;
  OctreeNode* levelLists[9] = {};  // newest unmerged branch of each level
  uint32_t treeLimit;
  uint32_t paletteSize;
  uint32_t depth;
};
