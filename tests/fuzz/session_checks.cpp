#include <algorithm>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "document/shell_calls.h"
#include "fuzz/fuzz_target.h"
#include "resources/resource.h"

namespace {

bool Within(int32_t value, int32_t first, int32_t last) { return first <= value && value <= last; }

void CheckItems() {
  Require(doc.selectedItem == -1 || doc.items.Contains(doc.selectedItem), "selected item");
  Require(doc.draggedItem == -1 || doc.items.Contains(doc.draggedItem), "dragged item");
  for (int32_t i = 0; i < doc.items.Count(); ++i) {
    const ItemClass& item = doc.items.At(i);
    const int32_t width = item.image.width, height = item.image.height;
    Require(item.image.valid && width > 0 && height > 0, "items have a picture");
    Require(item.selected == (i == doc.selectedItem ? 1U : 0U), "one item is marked");
    // Items start at (100, 100), of any size; moves keep their right and bottom inside.
    Require(Within(item.x, std::min(0, kPictureWidth - 1 - width),
                   std::max(100, kPictureWidth - 1 - width)),
            "item's x");
    Require(Within(item.y, std::min(0, kPictureHeight - 2 - height),
                   std::max(100, kPictureHeight - 1 - height)),
            "item's y");
  }
}

void CheckPlaces() {
  Require(Within(doc.worldMapX, 0, doc.worldMap.width - 1), "world map's x");
  Require(Within(doc.worldMapY, 0, doc.worldMap.height - 1), "world map's y");
  // They start here on any map.
  Require(Within(doc.worldMap2xX, 0, std::max(doc.worldMap2x.width - 1, 232)), "zoomed map's x");
  Require(Within(doc.worldMap2xY, 0, std::max(doc.worldMap2x.height - 1, 103)), "zoomed map's y");
  const int32_t lowest = doc.largeTargetBox.height - doc.smallTargetBox.height + 48;
  Require(doc.targetBoxX == 232, "target box's x");
  Require(Within(doc.targetBoxY, std::min(56, lowest), std::max(103, lowest)), "target box's y");
  Require(Within(doc.mode, MoveSmallMap, MoveTargetBox), "mode");
}

void CheckView() {
  RECT client{};
  GetClientRect(doc.viewWindow, &client);
  Require(Within(doc.viewScrollX, 0, std::max<int>(kPictureWidth - client.right, 0)), "scroll x");
  Require(Within(doc.viewScrollY, 0, std::max<int>(kPictureHeight - client.bottom, 0)), "scroll y");
  Require(!doc.viewOffsetX || !doc.viewScrollX, "a centred view is not scrolled");
  Require(!doc.viewOffsetY || !doc.viewScrollY, "a centred view is not scrolled");
  Require(!doc.dragging || GetCapture() == doc.viewWindow, "a drag has the mouse");
}

// What the user reads off the menu and the scroll bars.
void CheckControls() {
  const HMENU menu = GetMenu(doc.mainWindow);
  const auto isChecked = [menu](UINT id) {
    return GetMenuState(menu, id, MF_BYCOMMAND) & MF_CHECKED;
  };
  Require(!isChecked(IDM_VIEW_TOP_LAYER) == !doc.showTopLayer, "top layer's mark");
  Require(!isChecked(IDM_VIEW_BOTTOM_LAYER) == !doc.showBottomLayer, "bottom layer's mark");
  Require(!isChecked(IDM_STATUS_BAR) == !IsWindowVisible(doc.statusBar), "status bar's mark");
  Require(isChecked(IDM_MOVE_SMALL_MAP + static_cast<UINT>(doc.mode)), "mode's mark");
  const UINT remove = GetMenuState(menu, IDM_DELETE_ITEM, MF_BYCOMMAND);
  Require(doc.selectedItem == -1 || !(remove & MF_GRAYED), "a selected item can be deleted");
  Require(GetScrollPos(doc.viewWindow, SB_HORZ) == doc.viewScrollX, "horizontal bar's thumb");
  Require(GetScrollPos(doc.viewWindow, SB_VERT) == doc.viewScrollY, "vertical bar's thumb");
}

void CheckPictures() {
  Require(Within(doc.side, Allied, Yuri) && Within(doc.iconCount, 2, 3), "side and icons");
  Require(doc.worldMap.valid && doc.sideOverlay.valid && doc.canvas.valid, "the side's pictures");
  for (const ImageClass& icon : doc.icons) {
    Require(!icon.valid || (icon.width == 76 && icon.height == 60), "size of an icon");
  }
  Require(!doc.screenshot.valid || (doc.screenshot.width == 234 && doc.screenshot.height == 232),
          "size of the screenshot");
}

bool ShowsRows(const DIBClass& picture, int32_t first, int32_t end) {
  for (int32_t y = first; y < end; ++y) {
    if (!std::equal(picture.Row(y), picture.Row(y) + kPictureWidth, doc.canvas.Row(y)))
      return false;
  }
  return true;
}

}  // namespace

void CheckDocument() {
  CheckItems();
  CheckPlaces();
  CheckView();
  CheckControls();
  CheckPictures();
}

void CheckComposition(bool shown) {
  // A refused icon stays in sight until something else is repainted.
  constexpr int32_t kIconsTop = 380, kIconsBottom = 440;
  DIBClass picture(kPictureWidth, kPictureHeight);
  ComposeLoadScreen(&picture);
  if (shown) {
    Require(ShowsRows(picture, 0, kIconsTop), "the view shows every change");
    Require(ShowsRows(picture, kIconsBottom, kPictureHeight), "the view shows every change");
  }
  RepaintView();
  Require(ShowsRows(picture, 0, kPictureHeight), "the picture is the same every time");
}
