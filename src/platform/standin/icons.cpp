#include "platform/standin/failure.h"
#include "platform/standin/handles.h"
#include "platform/standin/resources.h"

using namespace standin;

namespace {

// Pictures are never drawn; a handle says which one is meant, and is the same at every call.
HICON HandleOf(HINSTANCE instance, int id) {
  static auto* handles = new std::map<std::pair<HINSTANCE, int>, HICON>;
  HICON& handle = (*handles)[{instance, id}];
  if (!handle) handle = reinterpret_cast<HICON>(NextHandle());
  return handle;
}

}  // namespace

HICON LoadIconA(HINSTANCE instance, LPCSTR name) {
  const int id = ResourceNumber(name);
  const int firstOfSystem = ResourceNumber(IDI_APPLICATION);
  const bool known = instance ? ProgramResources().icons.count(id) != 0
                              : id >= firstOfSystem && id <= ResourceNumber(IDI_EXCLAMATION);
  if (known) return HandleOf(instance, id);
  SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
  return nullptr;
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
  const int id = ResourceNumber(name);
  if (instance || (id != ResourceNumber(IDC_ARROW) && id != ResourceNumber(IDC_HAND)))
    Unsupported("cursors are the system's arrow and hand");
  return HandleOf(nullptr, -id);
}
