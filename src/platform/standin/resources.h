// The resource script of the program, read once: menus, dialog templates, icons.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/win32.h"

namespace standin {

// Hands the text of a preprocessed resource script to the stand-in. The build writes one static
// object of this class into every program (cmake/EmbedResources.cmake); the text must outlive it.
class EmbeddedResources {
 public:
  explicit EmbeddedResources(const char* text);
};

// One control of a dialog template, in dialog units.
struct ControlTemplate {
  std::string className, text;
  int id = 0;
  DWORD style = 0, exStyle = 0;
  int x = 0, y = 0, width = 0, height = 0;
};

struct DialogTemplate {
  std::string caption;
  DWORD style = 0, exStyle = 0;
  int x = 0, y = 0, width = 0, height = 0;
  int fontSize = 0;
  std::vector<ControlTemplate> controls;
};

struct MenuItemTemplate {
  std::string text;
  UINT id = 0;
  UINT flags = 0;                       // MF_POPUP, MF_SEPARATOR, MF_GRAYED, ...
  std::vector<MenuItemTemplate> items;  // of a popup
};

struct Resources {
  std::map<int, DialogTemplate> dialogs;
  std::map<int, std::vector<MenuItemTemplate>> menus;
  std::set<int> icons;
};

// Reads a script. Ends the process on any word that it does not know.
Resources ReadResources(const std::string& script);

// The program's own resources; empty when none are embedded.
const Resources& ProgramResources();

// The number behind MAKEINTRESOURCEA; names spelled out are not covered.
int ResourceNumber(LPCSTR name);

// A menu made from a resource number, or null for none.
HMENU CreateMenuFromResource(LPCSTR name);
void FreeMenu(HMENU menu);

}  // namespace standin
