// Menus, which come from the resource script and belong to a window.
#pragma once

#include "platform/win32.h"

namespace standin {

// A menu made from a resource number, or null when there is none.
HMENU CreateMenuFromResource(LPCSTR name);
void FreeMenu(HMENU menu);

}  // namespace standin
