#include "tools/make.h"

#include <optional>

#include "document/load_screen_doc.h"
#include "export/shp_export.h"
#include "imagelib/replace_file.h"
#include "imaging/image_files.h"
#include "tools/output_texts.h"
#include "tools/sprite_file.h"

namespace {

struct Request {
  std::string picture, shp;
  std::string pal;      // empty: none is written
  std::string palette;  // to use; empty: one is generated
  int32_t colours = kPaletteEntries;
};

// An empty text, or what is wrong with the arguments.
std::string ReadRequest(const Arguments& arguments, Request& request) {
  const std::vector<std::string>& files = arguments.Files();
  request.picture = files[0];
  request.shp = files[1];
  request.palette = arguments.Value("--palette");
  if (files.size() > 2) request.pal = files[2];
  if (arguments.Has("--palette") && arguments.Has("--colors")) {
    return "--colors and --palette exclude each other";
  }
  if (request.pal.empty() && request.palette.empty()) return "OUT.pal is missing";
  std::string fault = arguments.Number("--colors", 1, kPaletteEntries, request.colours);
  if (fault.empty()) fault = OverwritingFault(request.shp, {request.picture, request.palette});
  if (!fault.empty() || request.pal.empty()) return fault;
  // The palette that is used is there already.
  if (AreSameFile(request.pal.c_str(), request.palette.c_str())) request.pal.clear();
  return OverwritingFault(request.pal, {request.picture, request.shp});
}

// An empty text, or why the picture cannot be used.
std::string LoadPicture(const Arguments& arguments, const std::string& path, ImageClass& picture) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return "cannot be found";
  if (!TryLoadImageFile(path.c_str(), picture)) return "is no picture that can be read";
  if (picture.width == kPictureWidth && picture.height == kPictureHeight) return {};
  if (arguments.Has("--any-size")) return {};
  return "is " + SizeText(picture.width, picture.height) + ", not " +
         SizeText(kPictureWidth, kPictureHeight) + " (--any-size takes it as it is)";
}

ExitCode CannotWrite(const std::string& path, Output& output) {
  return output.Fail(path, "cannot be written");
}

// Writes both files beside those that they replace, and only then puts them in place.
ExitCode Write(const ImageClass& picture, const Request& request, const ShpPalette& existing,
               Output& output) {
  imagelib::FreshFile shp(request.shp.c_str());
  if (!shp.IsValid()) return CannotWrite(request.shp, output);
  shp.Close();
  std::optional<imagelib::FreshFile> pal;
  if (!request.pal.empty()) {
    pal.emplace(request.pal.c_str());
    if (!pal->IsValid()) return CannotWrite(request.pal, output);
    pal->Close();
  }
  const bool generate = request.palette.empty();
  FailedStep failed =
      RunShpExport(picture,
                   {shp.Name(), generate ? kGeneratePalette : kExistingPalette,
                    generate ? pal->Name() : request.palette.c_str(), request.colours},
                   [](ExportStep) {});
  if (!failed && !generate && pal) failed = WritePalFile(pal->Name(), existing);
  if (failed) return output.Fail(request.shp, failed);
  if (!shp.Place()) return CannotWrite(request.shp, output);
  if (pal && !pal->Place()) return CannotWrite(request.pal, output);
  return kDone;
}

}  // namespace

ExitCode Make(const Arguments& arguments, Output& output) {
  Request request;
  std::string fault = ReadRequest(arguments, request);
  if (!fault.empty()) return output.Misuse(fault);

  ImageClass picture;
  fault = LoadPicture(arguments, request.picture, picture);
  if (!fault.empty()) return output.Fail(request.picture, fault);
  ShpPalette existing;
  std::string doubt;
  if (!request.palette.empty()) fault = ReadPalette(request.palette, existing, doubt);
  if (!fault.empty()) return output.Fail(request.palette, fault);
  if (!doubt.empty()) output.Warn(request.palette, doubt);

  const ExitCode result = Write(picture, request, existing, output);
  if (result == kDone && arguments.Has("--verbose")) {
    output.out += request.shp + ": " + SizeText(picture.width, picture.height) + "\n";
    if (!request.pal.empty()) output.out += request.pal + ": its palette\n";
  }
  return result;
}
