#include "document/load_screen_doc.h"

#include <cstdio>
#include <string>

#include "document/shell_calls.h"
#include "files/template_path.h"
#include "imaging/image_files.h"
#include "resources/resource.h"

LoadScreenDoc doc;

namespace {

struct SideNames {
  const char* prefix;  // of its template files
  const char* display;
};

constexpr SideNames kSides[] = {{"all", "Allied"}, {"sov", "Soviet"}, {"psy", "Yuri"}};

const SideNames& NamesOf(int32_t side) {
  return side == Allied || side == Soviet ? kSides[side] : kSides[Yuri];
}

// Loads a picture of the Templates folder into an empty surface.
bool LoadTemplate(const std::string& fileName, BitmapClass& surface) {
  return TryLoadImageFile(TemplatePath(doc.appDir, fileName).c_str(), surface) != 0;
}

void LoadSideTemplate(const std::string& fileName, BitmapClass& surface) {
  surface.Free();
  if (LoadTemplate(fileName, surface)) return;
  MessageBoxA(doc.mainWindow, "Can't find file!", "Error", MB_OK | MB_ICONEXCLAMATION);
  ExitProcess(0);
}

void LoadOverlay(int32_t iconCount) {
  const std::string prefix = NamesOf(doc.side).prefix;
  LoadSideTemplate(prefix + "_" + std::to_string(iconCount) + "icomain.png", doc.sideOverlay);
}

void WriteSideStatus() {
  char text[64];
  std::snprintf(text, sizeof text, "%s - %d", SideName(doc.side), doc.iconCount);
  SetStatusText(0, text);
}

}  // namespace

const char* SideName(int32_t side) { return NamesOf(side).display; }

bool LoadFixedTemplates() {
  const struct {
    ImageClass& image;
    const char* fileName;
    const char* message;
  } templates[] = {
      {doc.largeTargetBox, "com_largetargetbox.png",
       "Error: Can't find com_largetargetbox.png file."},
      {doc.smallTargetBox, "com_smalltargetbox.png",
       "Error: Can't find com_smalltargetbox.png file."},
      {doc.worldMap2x, "com_worldmap2x.png", "Error: Can't find com_worldmap2x.PNG file."},
  };
  for (const auto& fixed : templates) {
    if (LoadTemplate(fixed.fileName, fixed.image)) continue;
    MessageBoxA(nullptr, fixed.message, "Corvanta", MB_OK | MB_ICONHAND);
    return false;
  }
  return true;
}

void SetSide(int32_t side) {
  if (side == doc.side) return;
  doc.side = side;
  doc.worldMap.Free();
  doc.sideOverlay.Free();
  LoadSideTemplate(std::string(NamesOf(side).prefix) + "_worldmap.png", doc.worldMap);
  LoadOverlay(doc.iconCount == -1 ? 2 : doc.iconCount);
  WriteSideStatus();
  RepaintView();
}

void SetIconCount(int32_t count) {
  if (count == doc.iconCount || (count != 2 && count != 3)) return;
  doc.iconCount = count;
  LoadOverlay(count);
  WriteSideStatus();
  RepaintView();
}

void SetLayers(int32_t showTop, int32_t showBottom) {
  doc.showTopLayer = showTop;
  doc.showBottomLayer = showBottom;
  CheckCommand(kViewPopup, IDM_VIEW_TOP_LAYER, showTop != 0);
  CheckCommand(kViewPopup, IDM_VIEW_BOTTOM_LAYER, showBottom != 0);
  RepaintView();
}

void FreeDocumentImages() {
  for (ImageClass& icon : doc.icons) icon.Free();
  doc.screenshot.Free();
  doc.worldMap.Free();
  doc.largeTargetBox.Free();
  doc.worldMap2x.Free();
  doc.sideOverlay.Free();
  doc.smallTargetBox.Free();
}
