#include "shell/copy_to_clipboard.h"

#include <utility>

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "imaging/gdi_handle.h"
#include "imaging/memory_dc.h"

namespace {

void GiveToClipboard(BitmapHandle bitmap) {
  if (!OpenClipboard(doc.mainWindow)) return;
  // A bitmap that the clipboard takes is the system's from then on.
  if (EmptyClipboard() && SetClipboardData(CF_BITMAP, bitmap.get())) {
    static_cast<void>(bitmap.release());
  }
  CloseClipboard();
}

}  // namespace

void CopyToClipboard() {
  DIBClass picture(kPictureWidth, kPictureHeight);
  if (!picture.valid) return;
  ComposeLoadScreen(&picture);

  const WindowDc screen(nullptr);
  BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), picture.width, picture.height));
  if (!bitmap) return;
  {
    // A bitmap that is still selected into a device context can't change hands.
    const MemoryDc memory(screen.get(), bitmap.get());
    picture.BlitTo(memory.get(), 0, 0);
  }
  GiveToClipboard(std::move(bitmap));
}
