#include <png.h>

#include <csetjmp>
#include <cstring>
#include <exception>
#include <vector>

#include "imagelib/native/native_codecs.h"

// libpng reports errors by a jump. Functions that it may jump out of hold nothing with a
// destructor; the owners of memory are objects of the function outside the setjmp.
namespace imagelib {
namespace {

void OnError(png_structp png, png_const_charp) { png_longjmp(png, 1); }

void OnWarning(png_structp, png_const_charp) {}

struct Source {
  ByteView file;
  std::size_t at = 0;
};

void ReadFrom(png_structp png, png_bytep target, std::size_t count) {
  auto* source = static_cast<Source*>(png_get_io_ptr(png));
  if (count > source->file.size() - source->at) png_error(png, "premature end");
  std::memcpy(target, source->file.data() + source->at, count);
  source->at += count;
}

void WriteTo(png_structp png, png_bytep data, std::size_t count) {
  auto* file = static_cast<Bytes*>(png_get_io_ptr(png));
  bool written = false;
  try {
    file->insert(file->end(), data, data + count);
    written = true;
  } catch (const std::exception&) {
    // The jump must not leave from inside this handler.
  }
  if (!written) png_error(png, "out of memory");
}

void FlushNothing(png_structp) {}

struct Reader {
  Reader() : png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning)) {
    if (png != nullptr) info = png_create_info_struct(png);
  }
  ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  png_structp png;
  png_infop info = nullptr;
};

struct Writer {
  Writer() : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning)) {
    if (png != nullptr) info = png_create_info_struct(png);
  }
  ~Writer() { png_destroy_write_struct(&png, &info); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  png_structp png;
  png_infop info = nullptr;
};

// Every kind of PNG becomes B, G, R, 0. No gamma is set, and alpha is stripped and not composed:
// the colours stay as stored.
void AskForPixels(png_structp png, png_infop info) {
  const int colorType = png_get_color_type(png, info);
  png_set_strip_16(png);
  if (colorType == PNG_COLOR_TYPE_PALETTE) png_set_palette_to_rgb(png);
  if (colorType == PNG_COLOR_TYPE_GRAY) png_set_expand_gray_1_2_4_to_8(png);
  png_set_gray_to_rgb(png);
  png_set_strip_alpha(png);
  png_set_bgr(png);
  png_set_filler(png, 0, PNG_FILLER_AFTER);
  png_set_interlace_handling(png);
  png_read_update_info(png, info);
}

bool ReadRows(const Reader& reader, const Container& container, png_bytepp rows) {
  if (setjmp(png_jmpbuf(reader.png)) != 0) return false;
  png_set_user_limits(reader.png, kMaxSide, kMaxSide);
  png_read_info(reader.png, reader.info);
  const auto width = static_cast<png_uint_32>(container.width);
  const auto height = static_cast<png_uint_32>(container.height);
  if (png_get_image_width(reader.png, reader.info) != width) return false;
  if (png_get_image_height(reader.png, reader.info) != height) return false;
  AskForPixels(reader.png, reader.info);
  if (png_get_rowbytes(reader.png, reader.info) != std::size_t{width} * 4) return false;
  png_read_image(reader.png, rows);
  png_read_end(reader.png, nullptr);
  return true;
}

bool WriteRows(const Writer& writer, std::int32_t width, std::int32_t height, png_bytepp rows) {
  if (setjmp(png_jmpbuf(writer.png)) != 0) return false;
  png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(width),
               static_cast<png_uint_32>(height), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(writer.png, writer.info);
  png_set_bgr(writer.png);
  png_set_filler(writer.png, 0, PNG_FILLER_AFTER);
  png_write_image(writer.png, rows);
  png_write_end(writer.png, nullptr);
  return true;
}

std::vector<png_bytep> RowsOf(std::uint32_t* pixels, std::int32_t width, std::int32_t height) {
  std::vector<png_bytep> rows(static_cast<std::size_t>(height));
  for (std::size_t y = 0; y < rows.size(); ++y) {
    rows[y] = reinterpret_cast<png_bytep>(pixels + y * static_cast<std::size_t>(width));
  }
  return rows;
}

}  // namespace

bool DecodePng(ByteView file, const Container& container, std::uint32_t* pixels) {
  Source source{file};
  std::vector<png_bytep> rows = RowsOf(pixels, container.width, container.height);
  const Reader reader;
  if (reader.info == nullptr) return false;
  png_set_read_fn(reader.png, &source, ReadFrom);
  return ReadRows(reader, container, rows.data());
}

bool EncodePng(const std::uint32_t* pixels, std::int32_t width, std::int32_t height, Bytes* file) {
  // libpng's rows are not const, but it only reads them.
  std::vector<png_bytep> rows = RowsOf(const_cast<std::uint32_t*>(pixels), width, height);
  const Writer writer;
  if (writer.info == nullptr) return false;
  png_set_write_fn(writer.png, file, WriteTo, FlushNothing);
  return WriteRows(writer, width, height, rows.data());
}

}  // namespace imagelib
