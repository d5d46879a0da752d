#include "shell/editing.h"

#include <algorithm>

#include "document/item_operations.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"

namespace {

constexpr int32_t kHighestTargetBox = 56;

bool IsDown(int key) { return (GetAsyncKeyState(key) & 0x8000) != 0; }

int32_t StepSize() {
  const int32_t step = IsDown(VK_CONTROL) ? 5 : 1;
  return IsDown(VK_SHIFT) ? step * 2 : step;
}

// Past an edge a map goes on at its opposite edge itself, whatever the step. An offset that a
// larger map has left behind comes back step by step.
int32_t StepBack(int32_t position, int32_t step, int32_t size) {
  return position < step ? size - 1 : position - step;
}

int32_t StepOn(int32_t position, int32_t step, int32_t size) {
  return position + step > size - 1 ? 0 : position + step;
}

void MoveMap(WPARAM key, int32_t step, int32_t& x, int32_t& y, const ImageClass& map) {
  switch (key) {
    case VK_LEFT:
      x = StepBack(x, step, map.width);
      break;
    case VK_RIGHT:
      x = StepOn(x, step, map.width);
      break;
    case VK_UP:
      y = StepBack(y, step, map.height);
      break;
    case VK_DOWN:
      y = StepOn(y, step, map.height);
      break;
  }
}

void MoveBox(WPARAM key, int32_t step) {
  const int32_t lowest = doc.largeTargetBox.height - doc.smallTargetBox.height + 48;
  if (key == VK_UP) doc.targetBoxY = std::max(doc.targetBoxY - step, kHighestTargetBox);
  if (key == VK_DOWN) doc.targetBoxY = std::min(doc.targetBoxY + step, lowest);
}

void HandleModeKey(WPARAM key, int32_t step) {
  switch (doc.mode) {
    case MoveSmallMap:
      MoveMap(key, step, doc.worldMapX, doc.worldMapY, doc.worldMap);
      break;
    case MoveLargeMap:
      MoveMap(key, step, doc.worldMap2xX, doc.worldMap2xY, doc.worldMap2x);
      break;
    case MoveTargetBox:
      MoveBox(key, step);
      break;
  }
  RepaintView();
}

// The keyboard keeps an item's right and bottom one pixel inside the picture.
int32_t KeepInside(int32_t position, int32_t itemSize, int32_t pictureSize) {
  return position >= pictureSize - itemSize ? pictureSize - 1 - itemSize : position;
}

void HandleItemKey(WPARAM key, int32_t step) {
  ItemClass& item = doc.items.At(doc.selectedItem);
  switch (key) {
    case VK_TAB:
      SelectNextItem();
      break;
    case VK_ESCAPE:
      UnselectItems();
      break;
    case VK_LEFT:
      item.x = std::max(item.x - step, 0);
      break;
    case VK_UP:
      item.y = std::max(item.y - step, 0);
      break;
    case VK_RIGHT:
      item.x = KeepInside(item.x + step, item.image.width, kPictureWidth);
      break;
    case VK_DOWN:
      item.y = KeepInside(item.y + step, item.image.height, kPictureHeight);
      break;
    case VK_DELETE:
      DeleteSelectedItem();
      break;
    default:
      MessageBeep(MB_ICONEXCLAMATION);
      return;
  }
  RepaintView();
}

int32_t CanvasX(int x) { return x - doc.viewOffsetX + doc.viewScrollX; }
int32_t CanvasY(int y) { return y - doc.viewOffsetY + doc.viewScrollY; }

}  // namespace

void HandleKey(WPARAM key) {
  const int32_t step = StepSize();
  if (doc.selectedItem != -1) {
    HandleItemKey(key, step);
  } else {
    HandleModeKey(key, step);
  }
}

void HandleButtonDown(int x, int y) {
  const int32_t px = CanvasX(x), py = CanvasY(y);
  doc.draggedItem = HitTest(px, py);
  if (doc.draggedItem == -1) {
    UnselectItems();
    return;
  }
  SelectItem(doc.draggedItem);
  doc.grabOffsetX = px - ItemX(doc.draggedItem);
  doc.grabOffsetY = py - ItemY(doc.draggedItem);
  SetCapture(doc.viewWindow);
  doc.dragging = 1;
}

void HandleMouseMove(int x, int y) {
  if (!doc.dragging || doc.draggedItem == -1) return;
  MoveItemTo(doc.draggedItem, CanvasX(x) - doc.grabOffsetX, CanvasY(y) - doc.grabOffsetY);
  RepaintView();
}

void HandleButtonUp() {
  if (!doc.dragging) return;
  doc.draggedItem = -1;
  ReleaseCapture();
}

void HandleCaptureLost() {
  doc.dragging = 0;
  doc.draggedItem = -1;
}
