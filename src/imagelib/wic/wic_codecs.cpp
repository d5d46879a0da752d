#include "imagelib/codecs.h"
#include "imagelib/wic/wic_objects.h"

namespace imagelib {
namespace {

// The apartment and the factory in it, from StartCodecs to StopCodecs.
struct Session {
  ComPointer<IWICImagingFactory> factory;
  bool ownsApartment = false;
};

Session& Current() {
  // Never destroyed: at the process's end COM may be gone before this library is.
  static Session* session = new Session;
  return *session;
}

}  // namespace

IWICImagingFactory* Factory() { return Current().factory.Get(); }

const GUID& ContainerId(FileType type) {
  switch (type) {
    case FileType::kPng:
      return GUID_ContainerFormatPng;
    case FileType::kJpeg:
      return GUID_ContainerFormatJpeg;
    case FileType::kGif:
      return GUID_ContainerFormatGif;
    case FileType::kTiff:
      return GUID_ContainerFormatTiff;
    case FileType::kBmp:
    case FileType::kUnknown:
      break;
  }
  return GUID_ContainerFormatBmp;
}

bool StartCodecs() {
  Session& session = Current();
  const HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  // In an apartment of the other kind the codecs work as well; it is just not ours to leave.
  if (FAILED(entered) && entered != RPC_E_CHANGED_MODE) return false;
  session.ownsApartment = SUCCEEDED(entered);
  const HRESULT created =
      CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                       IID_IWICImagingFactory, reinterpret_cast<void**>(session.factory.Receive()));
  if (SUCCEEDED(created)) return true;
  StopCodecs();
  return false;
}

void StopCodecs() {
  Session& session = Current();
  session.factory.Reset();
  if (session.ownsApartment) CoUninitialize();
  session.ownsApartment = false;
}

const char* ReadablePatterns() { return "*.png;*.bmp;*.jpg;*.jpeg;*.gif;*.tif;*.tiff"; }

const char* CodecDescription() { return "ImageLib (Windows Imaging Component)"; }

bool CanDecode(FileType type) { return type != FileType::kUnknown; }

}  // namespace imagelib
