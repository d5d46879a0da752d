// Menus and icons, which come from the resource script.
#include <cstdio>
#include <vector>

#include "platform/standin/failure.h"
#include "platform/standin/handles.h"
#include "platform/standin/resources.h"

namespace standin {
namespace {

struct MenuItem {
  std::string text;
  UINT id = 0;
  UINT flags = 0;  // type and state together, as GetMenuState gives them
  HMENU popup = nullptr;
};
struct Menu {
  std::vector<MenuItem> items;
};

HandleTable<Menu>& Menus() {
  static auto* menus = new HandleTable<Menu>;
  return *menus;
}

std::shared_ptr<Menu> FindMenu(HMENU menu) { return Menus().Find(menu); }

HMENU Build(const std::vector<MenuItemTemplate>& items) {
  auto menu = std::make_shared<Menu>();
  for (const MenuItemTemplate& item : items) {
    const HMENU popup = item.flags & MF_POPUP ? Build(item.items) : nullptr;
    menu->items.push_back({item.text, item.id, item.flags, popup});
  }
  return Menus().Add<HMENU>(menu);
}

MenuItem* FindItem(HMENU menu, UINT item, UINT flags) {
  const auto found = FindMenu(menu);
  if (!found) return nullptr;
  if (flags & MF_BYPOSITION) return item < found->items.size() ? &found->items[item] : nullptr;
  for (MenuItem& candidate : found->items) {
    if (candidate.popup) {
      if (MenuItem* below = FindItem(candidate.popup, item, flags)) return below;
    } else if (!(candidate.flags & MF_SEPARATOR) && candidate.id == item) {
      return &candidate;
    }
  }
  return nullptr;
}

// Pictures are never drawn; a handle says which one is meant, and is the same at every call.
HICON HandleOf(HINSTANCE instance, int id) {
  static auto* handles = new std::map<std::pair<HINSTANCE, int>, HICON>;
  HICON& handle = (*handles)[{instance, id}];
  if (!handle) handle = reinterpret_cast<HICON>(NextHandle());
  return handle;
}

// Changes the bits of an item's state. Gives the bits before, or -1 without such an item.
int ChangeState(HMENU menu, UINT item, UINT flags, UINT bits) {
  MenuItem* found = FindItem(menu, item, flags);
  if (!found) return -1;
  const UINT before = found->flags & bits;
  found->flags = (found->flags & ~bits) | (flags & bits);
  return static_cast<int>(before);
}

}  // namespace

HMENU CreateMenuFromResource(LPCSTR name) {
  if (!name) return nullptr;
  const auto& menus = ProgramResources().menus;
  const auto found = menus.find(ResourceNumber(name));
  return found == menus.end() ? nullptr : Build(found->second);
}

void FreeMenu(HMENU menu) {
  const auto found = Menus().Find(menu);
  if (!found) return;
  for (const MenuItem& item : found->items) FreeMenu(item.popup);
  Menus().Remove(menu);
}

}  // namespace standin

using namespace standin;

HMENU GetSubMenu(HMENU menu, int position) {
  const MenuItem* item = FindItem(menu, static_cast<UINT>(position), MF_BYPOSITION);
  return item ? item->popup : nullptr;
}

int GetMenuItemCount(HMENU menu) {
  const auto found = FindMenu(menu);
  return found ? static_cast<int>(found->items.size()) : -1;
}

UINT GetMenuItemID(HMENU menu, int position) {
  const MenuItem* item = FindItem(menu, static_cast<UINT>(position), MF_BYPOSITION);
  return item && !item->popup ? item->id : static_cast<UINT>(-1);
}

UINT GetMenuState(HMENU menu, UINT item, UINT flags) {
  const MenuItem* found = FindItem(menu, item, flags);
  if (found && found->popup) Unsupported("menus have no state");
  return found ? found->flags : static_cast<UINT>(-1);
}

int GetMenuStringA(HMENU menu, UINT item, LPSTR buffer, int size, UINT flags) {
  const MenuItem* found = FindItem(menu, item, flags);
  if (!found) return 0;
  if (!buffer || size <= 0) return static_cast<int>(found->text.size());
  const int length = std::snprintf(buffer, static_cast<size_t>(size), "%s", found->text.c_str());
  return length < size ? length : size - 1;
}

DWORD CheckMenuItem(HMENU menu, UINT item, UINT flags) {
  return static_cast<DWORD>(ChangeState(menu, item, flags, MF_CHECKED));
}

BOOL EnableMenuItem(HMENU menu, UINT item, UINT flags) {
  return ChangeState(menu, item, flags, MF_GRAYED | MF_DISABLED);
}

BOOL CheckMenuRadioItem(HMENU menu, UINT first, UINT last, UINT check, UINT flags) {
  bool checked = false;
  for (UINT item = first; item <= last; ++item) {
    MenuItem* found = FindItem(menu, item, flags);
    if (!found || (found->flags & MF_SEPARATOR)) continue;
    found->flags &= ~static_cast<UINT>(MF_CHECKED);
    if (item != check) continue;
    found->flags |= MF_CHECKED | MFT_RADIOCHECK;
    checked = true;
  }
  return checked;
}

HICON LoadIconA(HINSTANCE instance, LPCSTR name) {
  const int id = ResourceNumber(name);
  if (instance && !ProgramResources().icons.count(id)) Unsupported("no icon " + std::to_string(id));
  return HandleOf(instance, id);
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
  if (instance) Unsupported("cursors are the system's");
  return HandleOf(nullptr, -ResourceNumber(name));
}
