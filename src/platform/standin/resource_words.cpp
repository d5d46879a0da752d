#include "platform/standin/resources.h"

namespace standin {
namespace {

struct Word {
  const char* name;
  DWORD value;
};

// The words with a value that a script may use. A style that is new to the script is added here.
constexpr Word kWords[] = {{"WS_POPUP", WS_POPUP},
                           {"WS_CHILD", WS_CHILD},
                           {"WS_VISIBLE", WS_VISIBLE},
                           {"WS_DISABLED", WS_DISABLED},
                           {"WS_CLIPSIBLINGS", WS_CLIPSIBLINGS},
                           {"WS_CLIPCHILDREN", WS_CLIPCHILDREN},
                           {"WS_CAPTION", WS_CAPTION},
                           {"WS_BORDER", WS_BORDER},
                           {"WS_VSCROLL", WS_VSCROLL},
                           {"WS_HSCROLL", WS_HSCROLL},
                           {"WS_SYSMENU", WS_SYSMENU},
                           {"WS_THICKFRAME", WS_THICKFRAME},
                           {"WS_GROUP", WS_GROUP},
                           {"WS_TABSTOP", WS_TABSTOP},
                           {"WS_MAXIMIZEBOX", WS_MAXIMIZEBOX},
                           {"DS_SETFONT", DS_SETFONT},
                           {"DS_MODALFRAME", DS_MODALFRAME},
                           {"DS_CENTER", DS_CENTER},
                           {"DS_CONTROL", DS_CONTROL},
                           {"DS_3DLOOK", DS_3DLOOK},
                           {"BS_MULTILINE", BS_MULTILINE},
                           {"ES_MULTILINE", ES_MULTILINE},
                           {"ES_AUTOHSCROLL", ES_AUTOHSCROLL},
                           {"ES_READONLY", ES_READONLY},
                           {"ES_NUMBER", ES_NUMBER},
                           {"SS_LEFTNOWORDWRAP", SS_LEFTNOWORDWRAP},
                           {"SS_BLACKRECT", SS_BLACKRECT},
                           {"SS_ETCHEDFRAME", SS_ETCHEDFRAME},
                           {"SS_SUNKEN", SS_SUNKEN},
                           {"SS_CENTERIMAGE", SS_CENTERIMAGE},
                           {"LBS_NOTIFY", LBS_NOTIFY},
                           {"LBS_SORT", LBS_SORT},
                           {"CBS_DROPDOWNLIST", CBS_DROPDOWNLIST},
                           {"CBS_SORT", CBS_SORT},
                           {"UDS_SETBUDDYINT", UDS_SETBUDDYINT},
                           {"UDS_AUTOBUDDY", UDS_AUTOBUDDY},
                           {"UDS_ARROWKEYS", UDS_ARROWKEYS},
                           {"UDS_NOTHOUSANDS", UDS_NOTHOUSANDS},
                           {"TBS_BOTH", TBS_BOTH},
                           {"TBS_NOTICKS", TBS_NOTICKS},
                           {"IDOK", IDOK},
                           {"IDCANCEL", IDCANCEL}};

}  // namespace

bool FindResourceWord(const std::string& word, DWORD& value) {
  for (const Word& known : kWords) {
    if (word != known.name) continue;
    value = known.value;
    return true;
  }
  return false;
}

}  // namespace standin
