#include <cstddef>
#include <cstdio>
// jpeglib.h needs the two above it, and jerror.h lists its codes by jpeglib.h's configuration.
#include <jpeglib.h>

#include <jerror.h>

#include <array>
#include <csetjmp>
#include <exception>

#include "imagelib/native/native_codecs.h"

// libjpeg reports errors by a jump. Functions that it may jump out of hold nothing with a
// destructor; the owners of memory are objects of the function outside the setjmp.
namespace imagelib {
namespace {

struct ErrorHandler {
  jpeg_error_mgr base;  // First: libjpeg hands back a pointer to it.
  std::jmp_buf leave;
};

[[noreturn]] void OnError(j_common_ptr jpeg) {
  std::longjmp(reinterpret_cast<ErrorHandler*>(jpeg->err)->leave, 1);
}

// libjpeg only warns of damaged pixels and goes on with grey ones. Oddities outside of them, such
// as stray bytes between segments, are common in good files.
void OnMessage(j_common_ptr jpeg, int level) {
  if (level >= 0) return;
  switch (jpeg->err->msg_code) {
    case JWRN_ARITH_BAD_CODE:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_JPEG_EOF:
    case JWRN_MUST_RESYNC:
      OnError(jpeg);
    default:
      break;
  }
}

void PrintNothing(j_common_ptr) {}

jpeg_error_mgr* Install(ErrorHandler* handler) {
  jpeg_std_error(&handler->base);
  handler->base.error_exit = OnError;
  handler->base.emit_message = OnMessage;
  handler->base.output_message = PrintNothing;
  return &handler->base;
}

// The library's own source makes up an end of the picture where the file has none.
boolean FailAtEnd(j_decompress_ptr jpeg) {
  jpeg->err->msg_code = JERR_INPUT_EOF;
  OnError(reinterpret_cast<j_common_ptr>(jpeg));
}

struct Reader {
  Reader() { jpeg.err = Install(&errors); }
  ~Reader() { jpeg_destroy_decompress(&jpeg); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  jpeg_decompress_struct jpeg{};
  ErrorHandler errors;
};

// Collects the output in a vector. The library's own memory destination frees and replaces its
// buffer behind the caller's back, so that an error leaves nothing that could be freed safely.
struct Destination {
  jpeg_destination_mgr base;  // First: libjpeg hands back a pointer to it.
  std::array<JOCTET, 16384> block;
  Bytes* file;
};

void ResetBlock(j_compress_ptr jpeg) {
  auto* destination = reinterpret_cast<Destination*>(jpeg->dest);
  destination->base.next_output_byte = destination->block.data();
  destination->base.free_in_buffer = destination->block.size();
}

void Append(j_compress_ptr jpeg, std::size_t count) {
  auto* destination = reinterpret_cast<Destination*>(jpeg->dest);
  const JOCTET* block = destination->block.data();
  bool written = false;
  try {
    destination->file->insert(destination->file->end(), block, block + count);
    written = true;
  } catch (const std::exception&) {
    // The jump must not leave from inside this handler.
  }
  if (!written) OnError(reinterpret_cast<j_common_ptr>(jpeg));
}

boolean OnBlockFull(j_compress_ptr jpeg) {
  Append(jpeg, reinterpret_cast<Destination*>(jpeg->dest)->block.size());
  ResetBlock(jpeg);
  return TRUE;
}

void OnLastBlock(j_compress_ptr jpeg) {
  const auto* destination = reinterpret_cast<Destination*>(jpeg->dest);
  Append(jpeg, destination->block.size() - destination->base.free_in_buffer);
}

struct Writer {
  explicit Writer(Bytes* file) {
    jpeg.err = Install(&errors);
    destination.base.init_destination = ResetBlock;
    destination.base.empty_output_buffer = OnBlockFull;
    destination.base.term_destination = OnLastBlock;
    destination.file = file;
  }
  ~Writer() { jpeg_destroy_compress(&jpeg); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  jpeg_compress_struct jpeg{};
  ErrorHandler errors;
  Destination destination{};
};

}  // namespace

bool DecodeJpeg(ByteView file, const Container& container, std::uint32_t* pixels) {
  Reader reader;
  jpeg_decompress_struct& jpeg = reader.jpeg;
  if (setjmp(reader.errors.leave) != 0) return false;
  jpeg_create_decompress(&jpeg);
  jpeg_mem_src(&jpeg, file.data(), static_cast<unsigned long>(file.size()));
  jpeg.src->fill_input_buffer = FailAtEnd;
  jpeg_read_header(&jpeg, TRUE);
  const auto width = static_cast<JDIMENSION>(container.width);
  if (jpeg.image_width != width) return false;
  if (jpeg.image_height != static_cast<JDIMENSION>(container.height)) return false;
  jpeg.out_color_space = JCS_EXT_BGRX;
  jpeg_start_decompress(&jpeg);
  while (jpeg.output_scanline < jpeg.output_height) {
    auto* row = reinterpret_cast<JSAMPROW>(pixels + std::size_t{jpeg.output_scanline} * width);
    jpeg_read_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_decompress(&jpeg);
  return true;
}

bool EncodeJpeg(const std::uint32_t* pixels, std::int32_t width, std::int32_t height, Bytes* file) {
  Writer writer(file);
  jpeg_compress_struct& jpeg = writer.jpeg;
  if (setjmp(writer.errors.leave) != 0) return false;
  jpeg_create_compress(&jpeg);
  jpeg.dest = &writer.destination.base;
  jpeg.image_width = static_cast<JDIMENSION>(width);
  jpeg.image_height = static_cast<JDIMENSION>(height);
  jpeg.input_components = 4;
  jpeg.in_color_space = JCS_EXT_BGRX;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, kJpegQuality, TRUE);
  // Full resolution of the colours: the default halves it, which frays thin coloured lines.
  jpeg.comp_info[0].h_samp_factor = 1;
  jpeg.comp_info[0].v_samp_factor = 1;
  jpeg_start_compress(&jpeg, TRUE);
  while (jpeg.next_scanline < jpeg.image_height) {
    // libjpeg's rows are not const, but it only reads them.
    auto* line =
        const_cast<std::uint32_t*>(pixels) + std::size_t{jpeg.next_scanline} * jpeg.image_width;
    auto* row = reinterpret_cast<JSAMPROW>(line);
    jpeg_write_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_compress(&jpeg);
  return true;
}

}  // namespace imagelib
