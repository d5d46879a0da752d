#include "dialogs/choose_screenshot.h"

#include <utility>

#include "dialogs/crop_image.h"
#include "dialogs/open_image.h"
#include "document/load_screen_doc.h"

namespace {

constexpr int32_t kScreenshotWidth = 234;
constexpr int32_t kScreenshotHeight = 232;

// The crop dialog belongs to the main window: without this the dialog that called for it would take
// clicks meanwhile, and open a second one.
class BlockedDialog {
 public:
  explicit BlockedDialog(HWND dialog) : dialog_(dialog), focus_(GetFocus()) {
    EnableWindow(dialog, FALSE);
  }
  ~BlockedDialog() {
    EnableWindow(dialog_, TRUE);
    SetFocus(focus_ ? focus_ : dialog_);
  }
  BlockedDialog(const BlockedDialog&) = delete;
  BlockedDialog& operator=(const BlockedDialog&) = delete;

 private:
  HWND dialog_;
  HWND focus_;
};

void CropScreenshot(HWND dialog, ImageClass picture) {
  const BlockedDialog blocked(dialog);
  doc.screenshot.Free();
  CropImage(doc.screenshot, std::move(picture), doc.lastFilePath,
            {kScreenshotWidth, kScreenshotHeight});
}

bool WantsCropping(HWND dialog) {
  return MessageBoxA(dialog, "Size of image isn't 234x232.Do you want to crop this image?",
                     "Corvanta", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

}  // namespace

bool ChooseScreenshot(HWND dialog) {
  ImageClass picture;
  if (!OpenImageWithPreview(dialog, doc.lastFilePath, picture)) return false;
  if (picture.width < kScreenshotWidth || picture.height < kScreenshotHeight) {
    MessageBoxA(dialog, "Error: Size of image is less than 234x232\nPlease select another image.",
                "Corvanta", MB_OK | MB_ICONHAND);
    return false;
  }
  if (picture.width == kScreenshotWidth && picture.height == kScreenshotHeight) {
    doc.screenshot = picture;
    return true;
  }
  if (!WantsCropping(dialog)) return false;
  CropScreenshot(dialog, std::move(picture));
  return true;
}
