#include <algorithm>

#include "imagelib/wic/wic_objects.h"

namespace imagelib {
namespace {

// Opens the first picture of a file in memory. `stream` and `decoder` must outlive `frame`.
bool OpenFrame(ByteView file, FileType type, ComPointer<IWICStream>* stream,
               ComPointer<IWICBitmapDecoder>* decoder, ComPointer<IWICBitmapFrameDecode>* frame) {
  // The stream is only read; its interface has no const.
  auto* bytes = const_cast<BYTE*>(file.data());
  const auto size = static_cast<DWORD>(file.size());
  // The decoder is named by the type found: asking the system to guess would let in every other
  // decoder installed, and with it types that were never walked.
  return SUCCEEDED(Factory()->CreateStream(stream->Receive())) &&
         SUCCEEDED((*stream)->InitializeFromMemory(bytes, size)) &&
         SUCCEEDED(Factory()->CreateDecoder(ContainerId(type), nullptr, decoder->Receive())) &&
         SUCCEEDED((*decoder)->Initialize(stream->Get(), WICDecodeMetadataCacheOnDemand)) &&
         SUCCEEDED((*decoder)->GetFrame(0, frame->Receive()));
}

// In strips of up to 8 MiB: a converter may hold all that it is asked for a second time.
bool CopyStrips(IWICBitmapSource* source, UINT width, UINT height, std::uint32_t* pixels) {
  constexpr UINT kStripPixels = 1U << 21;
  const UINT stripHeight = std::max(kStripPixels / width, 1U);
  for (UINT y = 0; y < height; y += stripHeight) {
    const UINT rows = std::min(stripHeight, height - y);
    const WICRect strip{0, static_cast<INT>(y), static_cast<INT>(width), static_cast<INT>(rows)};
    if (FAILED(source->CopyPixels(&strip, width * 4, width * 4 * rows,
                                  reinterpret_cast<BYTE*>(pixels)))) {
      return false;
    }
    pixels += std::size_t{width} * rows;
  }
  return true;
}

}  // namespace

bool Decode(ByteView file, const Container& container, std::uint32_t* pixels) {
  ComPointer<IWICStream> stream;
  ComPointer<IWICBitmapDecoder> decoder;
  ComPointer<IWICBitmapFrameDecode> frame;
  if (!OpenFrame(file, container.type, &stream, &decoder, &frame)) return false;
  const auto width = static_cast<UINT>(container.width);
  const auto height = static_cast<UINT>(container.height);
  UINT frameWidth = 0;
  UINT frameHeight = 0;
  if (FAILED(frame->GetSize(&frameWidth, &frameHeight))) return false;
  if (frameWidth != width || frameHeight != height) return false;

  // With alpha, and not 32bppBGR: to that one, half transparent pixels might come blended.
  ComPointer<IWICFormatConverter> converter;
  return SUCCEEDED(Factory()->CreateFormatConverter(converter.Receive())) &&
         SUCCEEDED(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppBGRA,
                                         WICBitmapDitherTypeNone, nullptr, 0.0,
                                         WICBitmapPaletteTypeCustom)) &&
         CopyStrips(converter.Get(), width, height, pixels);
}

}  // namespace imagelib
