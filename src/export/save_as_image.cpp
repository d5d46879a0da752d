#include "export/save_as_image.h"

#include "document/composition.h"
#include "document/load_screen_doc.h"
#include "imaging/image_files.h"

int SaveAsImage() {
  ImageClass picture;
  if (!picture.Create(kPictureWidth, kPictureHeight)) return 0;
  ComposeLoadScreen(&picture);
  return SaveImageFileAs(doc.mainWindow, doc.lastFilePath, picture);
}
