#pragma once

#include <memory>
#include <type_traits>

#include "platform/win32.h"

struct GdiDeleter {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

// Owners of one GDI object, which they delete.
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, GdiDeleter>;
using BitmapHandle = std::unique_ptr<std::remove_pointer_t<HBITMAP>, GdiDeleter>;
