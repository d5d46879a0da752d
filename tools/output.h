#pragma once

#include <string>
#include <string_view>

// What the exit code of the program says.
enum ExitCode : int { kDone = 0, kFound = 1, kMisused = 2 };

// What a run of the program prints.
struct Output {
  std::string out, err;

  // Reports a file that something is wrong with.
  void Error(std::string_view file, std::string_view reason) { Report("error: ", file, reason); }
  void Warn(std::string_view file, std::string_view reason) { Report("warning: ", file, reason); }
  // The same where nothing can go on.
  ExitCode Fail(std::string_view file, std::string_view reason) {
    Error(file, reason);
    return kFound;
  }
  // Reports a command that cannot be carried out as it stands.
  ExitCode Misuse(std::string_view reason) {
    err.append("error: ").append(reason).append("; see corvanta-sprite --help\n");
    return kMisused;
  }

 private:
  void Report(std::string_view kind, std::string_view file, std::string_view reason) {
    err.append(kind).append(file).append(": ").append(reason).append("\n");
  }
};
