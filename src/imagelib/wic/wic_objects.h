#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
// windows.h comes first.
#include <objbase.h>
#include <wincodec.h>

#include "imagelib/codecs.h"

// The Windows Imaging Component's objects, as the two halves of the codec use them.
namespace imagelib {

// Owner of one reference to a COM object.
template <typename T>
class ComPointer {
 public:
  ComPointer() = default;
  ~ComPointer() { Reset(); }
  ComPointer(const ComPointer&) = delete;
  ComPointer& operator=(const ComPointer&) = delete;

  T* operator->() const { return object_; }
  T* Get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  // For functions that hand out a new reference; drops the one held.
  T** Receive() {
    Reset();
    return &object_;
  }

  void Reset() {
    if (object_ != nullptr) object_->Release();
    object_ = nullptr;
  }

 private:
  T* object_ = nullptr;
};

// The factory between StartCodecs and StopCodecs, otherwise null. Borrowed.
IWICImagingFactory* Factory();

// Identifier of a container format; kUnknown gives BMP's.
const GUID& ContainerId(FileType type);

}  // namespace imagelib
