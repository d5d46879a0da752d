#include "export/save_as_shp.h"

#include "document/load_screen_doc.h"
#include "export/shp_options.h"
#include "imaging/save_dialog.h"
#include "resources/resource.h"

int SaveAsShp() {
  constexpr char kFilter[] = "SHP(YR/RA2) files(*.shp)\0*.shp\0All Files (*.*)\0*.*\0";
  if (AskSaveName(doc.mainWindow, doc.lastFilePath, kFilter, "shp")) {
    DialogBoxParamA(doc.instance, MAKEINTRESOURCEA(IDD_SHP_OPTIONS), doc.mainWindow, ShpOptionsProc,
                    reinterpret_cast<LPARAM>(doc.lastFilePath));
  }
  return 1;
}
