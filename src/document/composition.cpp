#include "document/composition.h"

#include <algorithm>

#include "document/load_screen_doc.h"

namespace {

struct Point {
  int32_t x, y;
};

struct Rectangle {
  int32_t x, y, width, height;
};

constexpr Rectangle kPicture = {0, 0, kPictureWidth, kPictureHeight};
constexpr Point kTwoIcons[] = {{311, 380}, {405, 380}};
constexpr Point kThreeIcons[] = {{256, 380}, {350, 380}, {444, 380}};
constexpr Point kScreenshot = {542, 267};
constexpr Point kLargeFrame = {346, 52};
constexpr Rectangle kZoomWindow = {353, 58, 281, 277};
constexpr int32_t kFanLines = 5;
constexpr uint32_t kUpperFan[kFanLines] = {0xC0C0C0, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xC0C0C0};
constexpr uint32_t kLowerFan[kFanLines] = {0x969696, 0xC8C8C8, 0xC8C8C8, 0xC8C8C8, 0x969696};

// Shows a map in a window from its pixel (x, y) on, continued once by its left columns and top
// rows; nothing from a pixel beyond the map.
void Tile(BitmapClass& target, const BitmapClass& map, int32_t x, int32_t y,
          const Rectangle& window) {
  if (x > map.width || y > map.height) return;
  const int32_t w1 = std::min(map.width - x, window.width);
  const int32_t w2 = std::clamp(x - map.width + window.width, 0, map.width);
  const int32_t h1 = std::min(map.height - y, window.height);
  const int32_t h2 = std::clamp(y - map.height + window.height, 0, map.height);
  target.CopyRegion(map, window.x, window.y, x, y, w1, h1);
  target.CopyRegion(map, window.x + w1, window.y, 0, y, w2, h1);
  target.CopyRegion(map, window.x, window.y + h1, x, 0, w1, h2);
  target.CopyRegion(map, window.x + w1, window.y + h1, 0, 0, w2, h2);
}

void DrawIfLoaded(BitmapClass& target, const ImageClass& image, Point at) {
  if (image.valid) target.Draw(image, at.x, at.y);
}

bool HasPictureSize(const BitmapClass& surface) {
  return surface.valid && surface.width == kPictureWidth && surface.height == kPictureHeight;
}

// Whether every pixel of the target is the overlay's or, below it, the map's.
bool MapAndOverlayCover(const BitmapClass& target) {
  const ImageClass& map = doc.worldMap;
  return HasPictureSize(target) && HasPictureSize(doc.sideOverlay) && map.valid &&
         map.width >= kPictureWidth && map.height >= kPictureHeight && doc.worldMapX >= 0 &&
         doc.worldMapX <= map.width && doc.worldMapY >= 0 && doc.worldMapY <= map.height;
}

// Draws both in one pass over the target.
void DrawMapBelowOverlay(BitmapClass& target) {
  const ImageClass& map = doc.worldMap;
  const int32_t x = doc.worldMapX % map.width;
  const int32_t left = std::min(map.width - x, kPictureWidth);
  for (int32_t y = 0; y < kPictureHeight; ++y) {
    uint32_t* to = target.Row(y);
    const uint32_t* overlay = doc.sideOverlay.Row(y);
    const uint32_t* below = map.Row((doc.worldMapY + y) % map.height);
    MergeKeyed(to, overlay, below + x, left, kKeyColour);
    MergeKeyed(to + left, overlay + left, below, kPictureWidth - left, kKeyColour);
  }
}

void DrawMapAndOverlay(BitmapClass& target) {
  if (MapAndOverlayCover(target)) return DrawMapBelowOverlay(target);
  target.Fill(0);
  Tile(target, doc.worldMap, doc.worldMapX, doc.worldMapY, kPicture);
  target.DrawKeyed(doc.sideOverlay, 0, 0, kKeyColour);
}

void DrawBottomLayer(BitmapClass& target) {
  DrawMapAndOverlay(target);
  if (doc.iconCount == 2) {
    for (int i = 0; i < 2; ++i) DrawIfLoaded(target, doc.icons[i], kTwoIcons[i]);
  } else {
    for (int i = 0; i < 3; ++i) DrawIfLoaded(target, doc.icons[i], kThreeIcons[i]);
  }
  DrawIfLoaded(target, doc.screenshot, kScreenshot);
}

// Joins the left columns of the small target box to those of the large frame.
void DrawFan(BitmapClass& target, int32_t fromY, int32_t toY,
             const uint32_t (&colours)[kFanLines]) {
  for (int32_t i = 0; i < kFanLines; ++i) {
    target.DrawLine(doc.targetBoxX + i, fromY, kLargeFrame.x + i, toY, colours[i]);
  }
}

void DrawItems(BitmapClass& target) {
  const int32_t count = doc.items.Count();
  for (int32_t i = 0; i < count; ++i) {
    const ItemClass& item = doc.items.At(i);
    target.DrawKeyed(item.image, item.x, item.y, kKeyColour);
    if (item.selected) {
      target.InvertFrame(item.x, item.y, item.image.width, item.image.height);
    }
  }
}

void DrawTopLayer(BitmapClass& target) {
  target.Draw(doc.largeTargetBox, kLargeFrame.x, kLargeFrame.y);
  Tile(target, doc.worldMap2x, doc.worldMap2xX, doc.worldMap2xY, kZoomWindow);
  target.DrawKeyed(doc.smallTargetBox, doc.targetBoxX, doc.targetBoxY, kKeyColour);
  DrawFan(target, doc.targetBoxY, kLargeFrame.y, kUpperFan);
  // The lower fan ends 4 rows above the frame's bottom.
  DrawFan(target, doc.targetBoxY + doc.smallTargetBox.height,
          kLargeFrame.y + doc.largeTargetBox.height - 4, kLowerFan);
  DrawItems(target);
}

}  // namespace

void ComposeLoadScreen(BitmapClass* target) {
  if (!target) return;
  if (doc.showBottomLayer) {
    DrawBottomLayer(*target);
  } else {
    target->Fill(0);
  }
  if (doc.showTopLayer) DrawTopLayer(*target);
}
