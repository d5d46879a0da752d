#include "shell/copy_to_clipboard.h"

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "imaging/memory_dc.h"

namespace {

// Whether the clipboard took the bitmap, which is the system's from then on.
bool GiveToClipboard(HBITMAP bitmap) {
  if (!OpenClipboard(doc.mainWindow)) return false;
  const bool taken = EmptyClipboard() && SetClipboardData(CF_BITMAP, bitmap);
  CloseClipboard();
  return taken;
}

}  // namespace

void CopyToClipboard() {
  DIBClass picture(kPictureWidth, kPictureHeight);
  if (!picture.valid) return;
  ComposeLoadScreen(&picture);

  const WindowDc screen(nullptr);
  HBITMAP bitmap = CreateCompatibleBitmap(screen.get(), picture.width, picture.height);
  if (!bitmap) return;
  {
    // A bitmap that is still selected into a device context can't change hands.
    const MemoryDc memory(screen.get(), bitmap);
    picture.BlitTo(memory.get(), 0, 0);
  }
  if (!GiveToClipboard(bitmap)) DeleteObject(bitmap);
}
