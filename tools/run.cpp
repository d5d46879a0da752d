#include "tools/run.h"

#include <algorithm>
#include <new>
#include <vector>

#include "imagelib/imagelib.h"
#include "tools/arguments.h"
#include "tools/check.h"
#include "tools/make.h"
#include "tools/show.h"

namespace {

constexpr const char* kHelp =
    R"(corvanta-sprite: sprites and template packages without the editor

  corvanta-sprite show FILE.shp FILE.pal OUT.png [--frame N]
      Turns a sprite back into a picture (PNG or BMP). N counts from 0, the first frame.

  corvanta-sprite make PICTURE OUT.shp OUT.pal [--colors N] [--any-size]
  corvanta-sprite make PICTURE OUT.shp [OUT.pal] --palette FILE.pal [--any-size]
      Makes a sprite as the editor exports it: with a palette of its own, of up to N
      colours (1 to 256, otherwise 256), or with the colours of FILE.pal, which OUT.pal
      repeats. The picture is 800 x 520, with --any-size any size.

  corvanta-sprite check FOLDER
      Finds what is wrong with a template package: FOLDER holds Settings.ini and Templates.
      One line for each error (the editor ends, or refuses, hides or mistakes something)
      and each warning (it works, but hardly as meant).

  --verbose   say what was done     --help   this text     --version   the version

Exit code: 0 done (warnings or not), 1 something is wrong with a file, 2 misused.

Examples:
  corvanta-sprite show allied.shp allied.pal allied.png
  corvanta-sprite make painting.png allied.shp allied.pal --colors 128
  corvanta-sprite check "C:\My package"
)";

struct Command {
  std::string name;
  size_t fewestFiles, mostFiles;
  std::vector<Option> options;
  ExitCode (*run)(const Arguments& arguments, Output& output);
};

const std::vector<Command>& Commands() {
  static const std::vector<Command> commands = {
      {"show", 3, 3, {{"--frame", true}, {"--verbose"}}, Show},
      {"make",
       2,
       3,
       {{"--colors", true}, {"--palette", true}, {"--any-size"}, {"--verbose"}},
       Make},
      {"check", 1, 1, {{"--verbose"}}, Check},
  };
  return commands;
}

ExitCode Start(const Command& command, std::span<const std::string> words, Output& output) {
  Arguments arguments;
  const std::string fault = arguments.Parse(words, command.options);
  if (!fault.empty()) return output.Misuse(fault);
  const size_t files = arguments.Files().size();
  if (files < command.fewestFiles || files > command.mostFiles) {
    return output.Misuse(command.name + " does not take " + std::to_string(files) +
                         (files == 1 ? " file" : " files"));
  }
  if (!ImageInit()) return output.Fail("ImageLib", "does not start");
  ExitCode result = kFound;
  try {
    result = command.run(arguments, output);
  } catch (const std::bad_alloc&) {
    output.Error(arguments.Files().front(), "takes more memory than there is");
  }
  ImageUnInit();
  return result;
}

}  // namespace

ExitCode RunSprite(std::span<const std::string> arguments, Output& output) {
  const auto asks = [&](const char* option) {
    return std::find(arguments.begin(), arguments.end(), option) != arguments.end();
  };
  if (asks("--help")) {
    output.out += kHelp;
    return kDone;
  }
  if (asks("--version")) {
    output.out += "corvanta-sprite " CORVANTA_VERSION "\n";
    return kDone;
  }
  if (arguments.empty()) return output.Misuse("there is no command");
  for (const Command& command : Commands()) {
    if (command.name == arguments[0]) return Start(command, arguments.subspan(1), output);
  }
  return output.Misuse("there is no command '" + arguments[0] + "'");
}
