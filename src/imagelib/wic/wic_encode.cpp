#include <algorithm>

#include "imagelib/wic/wic_objects.h"

namespace imagelib {
namespace {

bool SetOption(IPropertyBag2* options, const wchar_t* name, VARIANT* value) {
  PROPBAG2 option{};
  option.pstrName = const_cast<wchar_t*>(name);
  return SUCCEEDED(options->Write(1, &option, value));
}

bool SetJpegOptions(IPropertyBag2* options) {
  VARIANT quality{};
  quality.vt = VT_R4;
  quality.fltVal = kJpegQuality / 100.0F;
  if (!SetOption(options, L"ImageQuality", &quality)) return false;
  // Full resolution of the colours: the default halves it, which frays thin coloured lines. An
  // encoder without this option still writes a good picture.
  VARIANT subsampling{};
  subsampling.vt = VT_UI1;
  subsampling.bVal = WICJpegYCrCbSubsampling444;
  SetOption(options, L"JpegYCrCbSubsampling", &subsampling);
  return true;
}

// All encoders take 24-bit pixels; not all take 32-bit ones.
bool WriteRows(IWICBitmapFrameEncode* frame, const std::uint32_t* pixels, UINT width, UINT height) {
  Bytes row((std::size_t{width} * 3 + 3) / 4 * 4);
  const auto rowBytes = static_cast<UINT>(row.size());
  for (UINT y = 0; y < height; ++y) {
    std::uint8_t* target = row.data();
    for (UINT x = 0; x < width; ++x) {
      const std::uint32_t pixel = *pixels++;
      *target++ = static_cast<std::uint8_t>(pixel);
      *target++ = static_cast<std::uint8_t>(pixel >> 8);
      *target++ = static_cast<std::uint8_t>(pixel >> 16);
    }
    if (FAILED(frame->WritePixels(1, rowBytes, rowBytes, row.data()))) return false;
  }
  return true;
}

bool WritePicture(IStream* stream, FileType type, const std::uint32_t* pixels, UINT width,
                  UINT height) {
  ComPointer<IWICBitmapEncoder> encoder;
  ComPointer<IWICBitmapFrameEncode> frame;
  ComPointer<IPropertyBag2> options;
  if (FAILED(Factory()->CreateEncoder(ContainerId(type), nullptr, encoder.Receive())) ||
      FAILED(encoder->Initialize(stream, WICBitmapEncoderNoCache)) ||
      FAILED(encoder->CreateNewFrame(frame.Receive(), options.Receive()))) {
    return false;
  }
  if (type == FileType::kJpeg && (!options || !SetJpegOptions(options.Get()))) return false;
  WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
  return SUCCEEDED(frame->Initialize(options.Get())) && SUCCEEDED(frame->SetSize(width, height)) &&
         SUCCEEDED(frame->SetPixelFormat(&format)) &&
         IsEqualGUID(format, GUID_WICPixelFormat24bppBGR) &&
         WriteRows(frame.Get(), pixels, width, height) && SUCCEEDED(frame->Commit()) &&
         SUCCEEDED(encoder->Commit());
}

bool CopyOut(IStream* stream, Bytes* file) {
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  LARGE_INTEGER start{};
  ULARGE_INTEGER end{};
  if (FAILED(stream->Seek(start, STREAM_SEEK_END, &end)) ||
      FAILED(stream->Seek(start, STREAM_SEEK_SET, nullptr))) {
    return false;
  }
  file->resize(static_cast<std::size_t>(end.QuadPart));
  for (std::size_t at = 0; at < file->size();) {
    const auto wanted = static_cast<ULONG>(std::min(kBlock, file->size() - at));
    ULONG count = 0;
    if (FAILED(stream->Read(file->data() + at, wanted, &count)) || count == 0) return false;
    at += count;
  }
  return !file->empty();
}

}  // namespace

bool Encode(FileType type, const std::uint32_t* pixels, std::int32_t width, std::int32_t height,
            Bytes* file) {
  // A GIF's few colours would have to be chosen first.
  if (type == FileType::kGif) return false;
  ComPointer<IStream> stream;
  return SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive())) &&
         WritePicture(stream.Get(), type, pixels, static_cast<UINT>(width),
                      static_cast<UINT>(height)) &&
         CopyOut(stream.Get(), file);
}

}  // namespace imagelib
