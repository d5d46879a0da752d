#include "shell/save_commands.h"

#include "dialogs/file_dialogs.h"
#include "dialogs/shp_options.h"
#include "document/composition.h"
#include "document/load_screen_doc.h"

int SaveAsShp() {
  constexpr char kFilter[] = "SHP(YR/RA2) files(*.shp)\0*.shp\0All Files (*.*)\0*.*\0";
  if (AskSaveName(doc.mainWindow, doc.lastFilePath, kFilter, "shp")) {
    OpenShpOptions(doc.lastFilePath);
  }
  return 1;
}

int SaveAsImage() {
  ImageClass picture;
  if (!picture.Create(kPictureWidth, kPictureHeight)) return 0;
  ComposeLoadScreen(&picture);
  return SaveImageFileAs(doc.mainWindow, doc.lastFilePath, picture);
}
