#pragma once

#include <cstdint>

#include "document/item_list.h"
#include "imaging/dib_class.h"
#include "imaging/gdi_handle.h"
#include "imaging/image_class.h"
#include "platform/win32.h"

// Size of the picture that is edited.
inline constexpr int32_t kPictureWidth = 800;
inline constexpr int32_t kPictureHeight = 520;

enum Side : int32_t { Allied = 0, Soviet = 1, Yuri = 2 };

// What the arrow keys move while no item is selected.
enum EditMode : int32_t {
  MoveSmallMap = 0,   // the world map of the bottom layer
  MoveLargeMap = 1,   // the zoomed map in the frame
  MoveTargetBox = 2,  // the small target box, up and down
};

// The one record of the picture being edited and of the editor's windows. It lives as long as the
// process, on the one GUI thread, and is never saved.
struct LoadScreenDoc {
  int32_t showTopLayer = 1;
  int32_t showBottomLayer = 1;
  int32_t side = -1;       // a Side; -1 until the main window is created
  int32_t iconCount = -1;  // 2 or 3; -1 until the main window is created
  int32_t selectedItem = -1;
  int32_t draggedItem = -1;
  int32_t iconChoice[3] = {-1, -1, -1};  // positions in the sorted icon lists, -1 for none
  EditMode mode = MoveSmallMap;
  int32_t worldMapX = 0, worldMapY = 0;          // the map's pixel at canvas (0, 0)
  int32_t worldMap2xX = 232, worldMap2xY = 103;  // the map's pixel at the frame window's corner
  int32_t targetBoxX = 232, targetBoxY = 103;    // canvas position of the small target box
  int32_t animateAboutBox = 0;
  char appDir[MAX_PATH] = "";  // folder of the executable, ending in a backslash

  DIBClass canvas;
  ImageClass worldMap;
  ImageClass sideOverlay;
  ImageClass icons[3];
  ImageClass screenshot;
  ImageClass screenshotOriginal;  // the screenshot before its colours were adjusted
  ImageClass largeTargetBox;
  ImageClass smallTargetBox;
  ImageClass worldMap2x;
  ItemListClass items;
  DIBClass itemPreview;
  DIBClass cropPreview;

  // State that outlives one opening of a dialog.
  char lastFilePath[MAX_PATH] = "";    // the path last chosen in any file dialog
  char screenshotPath[MAX_PATH] = "";  // where the screenshot came from
  int32_t itemColour = 0;
  int32_t adjustRed = 0, adjustGreen = 0, adjustBlue = 0;
  int32_t adjustLightness = 0;
  int32_t adjustGreyscale = 0;
  FontHandle aboutTitleFont;
  FontHandle linkFont;
  int32_t linkClassRegistered = 0;

  HINSTANCE instance = nullptr;
  HICON appIcon = nullptr;
  HWND mainWindow = nullptr;
  HWND viewWindow = nullptr;
  HWND statusBar = nullptr;
  // Where the view shows which part of the canvas.
  int32_t viewOffsetX = 0, viewOffsetY = 0;
  int32_t viewScrollX = 0, viewScrollY = 0;
  int32_t viewVisibleWidth = 0, viewVisibleHeight = 0;
  // The mouse drag: distance of the grabbed point from the item's corner, and whether one runs.
  int32_t grabOffsetX = 0, grabOffsetY = 0;
  int32_t dragging = 0;
};

extern LoadScreenDoc doc;

// "Allied", "Soviet" or "Yuri"; any value but 0 and 1 is Yuri.
const char* SideName(int32_t side);

// Loads the three fixed templates. False after telling the user which one can't be found.
bool LoadFixedTemplates();

// Changes the side, 0 to 2: reloads its world map and overlay, writes the status text and repaints.
// Nothing when it is the current one. A missing template ends the process after a message.
void SetSide(int32_t side);

// Changes the number of icons, 2 or 3, and reloads the overlay; any other number changes nothing.
// A missing template ends the process after a message.
void SetIconCount(int32_t count);

// Switches the layers, moves the View menu's check marks and repaints.
void SetLayers(int32_t showTop, int32_t showBottom);

// Releases the pictures at the end of the process, while the image library still runs.
void FreeDocumentImages();
