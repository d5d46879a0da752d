#pragma once

#include <cstdint>

#include "imagelib/bytes.h"
#include "imagelib/container.h"

// What the library needs of the platform; one implementation a platform.
namespace imagelib {

// Of JPEG files, in hundredths: steps are hardly visible, files still small.
inline constexpr int kJpegQuality = 95;

// Ready the decoders and encoders; balanced by StopCodecs. False: nothing to stop.
bool StartCodecs();
void StopCodecs();

// The library's pattern list and description; constant strings.
const char* ReadablePatterns();
const char* CodecDescription();

bool CanDecode(FileType type);

// Decodes a file that Inspect has passed, into `pixels` of the container's size. Top bytes are
// arbitrary. False if the decoder objects or finds another size; `pixels` may then be half written.
bool Decode(ByteView file, const Container& container, std::uint32_t* pixels);

// Encodes into `file`, which is empty; kUnknown becomes a BMP. False for a type without an encoder.
bool Encode(FileType type, const std::uint32_t* pixels, std::int32_t width, std::int32_t height,
            Bytes* file);

}  // namespace imagelib
