#include "tools/picture_check.h"

#include <set>

#include "document/load_screen_doc.h"
#include "files/template_path.h"
#include "imaging/image_files.h"
#include "tools/output_texts.h"

namespace {

// A colour so near to one that means something is seldom meant to be seen: the trace of a smoothed
// edge or of lossy compression.
constexpr int32_t kNearColour = 90;

struct Size {
  int32_t width, height;
};

constexpr Size kScreen = {kPictureWidth, kPictureHeight};
constexpr Size kCameo = {76, 60};
constexpr Size kZoomWindow = {281, 277};
// The frame reaches from its place to the far corner of the window in it, and to the screen's edge.
constexpr Size kSmallestFrame = {7 + kZoomWindow.width, 6 + kZoomWindow.height};
constexpr Size kLargestFrame = {kPictureWidth - 346, kPictureHeight - 52};
// A new item is placed at (100, 100).
constexpr Size kLargestSymbol = {kPictureWidth - 100, kPictureHeight - 100};

int32_t SquaredDistance(uint32_t one, uint32_t other) {
  int32_t sum = 0;
  for (const uint32_t shift : {0, 8, 16}) {
    const auto difference =
        static_cast<int32_t>(one >> shift & 0xFF) - static_cast<int32_t>(other >> shift & 0xFF);
    sum += difference * difference;
  }
  return sum;
}

// How often a colour occurs, and colours nearly like it.
struct ColourUse {
  int32_t exact = 0, alike = 0;
  int32_t alikeX = 0, alikeY = 0;  // the first of those
};

ColourUse UseOf(const ImageClass& picture, uint32_t colour) {
  ColourUse use;
  for (int32_t y = 0; y < picture.height; ++y) {
    const uint32_t* row = picture.Row(y);
    for (int32_t x = 0; x < picture.width; ++x) {
      if (row[x] == colour) ++use.exact;
      if (row[x] == colour || SquaredDistance(row[x], colour) >= kNearColour * kNearColour)
        continue;
      if (use.alike++ == 0) use.alikeX = x, use.alikeY = y;
    }
  }
  return use;
}

std::vector<std::string> DistinctFiles(const std::vector<CatalogueEntry>& entries) {
  std::vector<std::string> files;
  std::set<std::string> seen;
  for (const CatalogueEntry& entry : entries) {
    if (seen.insert(entry.fileName).second) files.push_back(entry.fileName);
  }
  return files;
}

}  // namespace

// A picture of the Templates folder, empty after telling why it could not be loaded.
class PictureCheck::Picture {
 public:
  Picture(PictureCheck& check, const std::string& fileName)
      : findings_(check.findings_), name_("Templates\\" + fileName) {
    ++check.count_;
    const std::string path = TemplatePath(check.folder_, fileName);
    if (path.empty()) {
      Error("has a path of more than " + std::to_string(MAX_PATH - 1) + " bytes");
    } else if (GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES) {
      Error("is missing");
    } else if (!TryLoadImageFile(path.c_str(), image_)) {
      Error("is no picture that can be read");
    }
  }

  bool IsLoaded() const { return image_.valid != 0; }
  Size Extent() const { return {image_.width, image_.height}; }
  void Error(const std::string& reason) const { findings_.Error(name_, reason); }
  void Warn(const std::string& reason) const { findings_.Warn(name_, reason); }

  bool IsSmallerThan(const Size& size) const {
    return image_.width < size.width || image_.height < size.height;
  }
  bool IsLargerThan(const Size& size) const {
    return image_.width > size.width || image_.height > size.height;
  }
  // "is 10 x 10, but should be" and what it should be.
  std::string SizeFault(const char* relation, const Size& size) const {
    return "is " + SizeText(image_.width, image_.height) + ", but should be " + relation +
           SizeText(size.width, size.height);
  }

  void CheckColour(uint32_t colour, const char* name, const char* without) const {
    const ColourUse use = UseOf(image_, colour);
    if (use.exact == 0) Warn(std::string("has no ") + name + ": " + without);
    if (use.alike > 0) {
      Warn("has " + Counted(use.alike, "pixel") + " of nearly " + name + ", the first at " +
           std::to_string(use.alikeX) + ", " + std::to_string(use.alikeY));
    }
  }
  void CheckTransparency() const {
    CheckColour(kKeyColour, "pure blue (0, 0, 255)", "nothing is transparent");
  }

 private:
  Findings& findings_;
  std::string name_;
  ImageClass image_;
};

void PictureCheck::CheckTemplates() {
  CheckBoxes();
  CheckMaps();
  CheckOverlays();
}

void PictureCheck::CheckBoxes() {
  const Picture frame(*this, "com_largetargetbox.png"), box(*this, "com_smalltargetbox.png");
  if (frame.IsLoaded() && frame.IsLargerThan(kLargestFrame)) {
    frame.Error(frame.SizeFault("at most ", kLargestFrame) + ": the editor does not draw it");
  } else if (frame.IsLoaded() && frame.IsSmallerThan(kSmallestFrame)) {
    frame.Warn(frame.SizeFault("at least ", kSmallestFrame) + " to enclose the zoomed map");
  }
  if (!box.IsLoaded()) return;
  box.CheckTransparency();
  const Size limit = {frame.Extent().width - 1, frame.Extent().height - 1};
  if (frame.IsLoaded() && box.IsLargerThan(limit)) {
    box.Error(box.SizeFault("at most ", limit) + ", narrower and lower than the frame");
  }
}

void PictureCheck::CheckMaps() {
  const Picture zoomed(*this, "com_worldmap2x.png");
  if (zoomed.IsLoaded() && zoomed.IsSmallerThan(kZoomWindow)) {
    zoomed.Error(zoomed.SizeFault("at least ", kZoomWindow));
  }
  Size first = {0, 0};
  for (const char* side : {"all", "sov", "psy"}) {
    const Picture map(*this, std::string(side) + "_worldmap.png");
    if (!map.IsLoaded()) continue;
    if (map.IsSmallerThan(kScreen)) map.Error(map.SizeFault("at least ", kScreen));
    if (first.width == 0) first = map.Extent();
    if (map.IsSmallerThan(first) || map.IsLargerThan(first)) {
      map.Error(map.SizeFault("", first) + " like the map before it");
    }
  }
}

void PictureCheck::CheckOverlays() {
  for (const char* side : {"all", "sov", "psy"}) {
    for (const char* count : {"2", "3"}) {
      const Picture overlay(*this, std::string(side) + "_" + count + "icomain.png");
      if (!overlay.IsLoaded()) continue;
      if (overlay.IsLargerThan(kScreen)) {
        overlay.Error(overlay.SizeFault("at most ", kScreen) + ": the editor does not draw it");
      }
      overlay.CheckTransparency();
    }
  }
}

void PictureCheck::CheckSymbols(const std::vector<CatalogueEntry>& symbols) {
  for (const std::string& name : DistinctFiles(symbols)) {
    const Picture symbol(*this, name);
    if (!symbol.IsLoaded()) continue;
    if (symbol.IsLargerThan(kLargestSymbol)) {
      symbol.Error(symbol.SizeFault("at most ", kLargestSymbol) +
                   ": the editor does not draw it where it places it");
    }
    symbol.CheckTransparency();
    symbol.CheckColour(kSideMarker, "pure yellow (255, 255, 0)", "no part takes the side's colour");
  }
}

void PictureCheck::CheckCameos(const std::vector<CatalogueEntry>& cameos) {
  for (const std::string& name : DistinctFiles(cameos)) {
    const Picture cameo(*this, name);
    if (!cameo.IsLoaded()) continue;
    if (cameo.IsSmallerThan(kCameo) || cameo.IsLargerThan(kCameo)) {
      cameo.Error(cameo.SizeFault("", kCameo) + ": the editor refuses it");
    }
  }
}
