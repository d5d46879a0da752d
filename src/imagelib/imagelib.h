#pragma once

// The image library: reads and writes picture files as buffers of 32-bit pixels.
//
// A pixel is 0x00RRGGBB, its top byte is always 0. A buffer holds the top row first, rows packed.
// Transparency is dropped and never blended: a transparent pixel keeps the colour stored for it.
// Paths are NUL-terminated and in the process's code page; on systems with '/' as the separator a
// '\' separates folders too. The file is closed again before a call returns.
//
// No call throws or reports more than success. All calls belong on the thread that called
// ImageInit.

#include <stdint.h>

#if !defined(_WIN32)
#define IMAGELIB_API
#elif defined(IMAGELIB_EXPORTS)
#define IMAGELIB_API __declspec(dllexport)
#else
#define IMAGELIB_API __declspec(dllimport)
#endif

struct ImageSize {
  int32_t width;
  int32_t height;
};

extern "C" {

// Makes the library ready; non-zero on success. Until then every other call fails. May be called
// again; each successful call needs one ImageUnInit.
IMAGELIB_API int ImageInit();

// Undoes one ImageInit. The last one forgets all sizes; a surplus call does nothing.
IMAGELIB_API void ImageUnInit();

// The readable file types as a file dialog's pattern list, at most 109 characters, e.g.
// "*.png;*.bmp". Valid before ImageInit; owned by the library.
IMAGELIB_API const char* ImageOpenFilterStr();

// Name and back end of the library in one line; owned by the library.
IMAGELIB_API const char* ImageGetDesc();

// Size of the picture in a file (1 to 16384 each way), non-zero on success. The content decides the
// type, not the name. A file that ends too early gives 0. `size` is written only on success.
IMAGELIB_API int ImageGetSize(const char* path, ImageSize* size);

// Decodes a file into `pixels`, room for width x height of the size that ImageGetSize last gave for
// this very path; non-zero on success. Gives 0 if there is none or the picture has another size by
// now. On failure `pixels` may be partly overwritten, never overrun.
IMAGELIB_API int ImageLoad(const char* path, uint32_t* pixels);

// Writes a picture, non-zero on success. The extension chooses the type, in either case: png, jpg
// or jpeg, on Windows also tif or tiff; anything else becomes a BMP. Top bytes are ignored. An
// existing file is replaced only once the new one is complete, and stays as it was when 0 is
// returned.
IMAGELIB_API int ImageSave(const char* path, const uint32_t* pixels, int width, int height);

}  // extern "C"
