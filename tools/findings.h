#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tools/output.h"

// What is found in a template package, told at once. An error is what ends the editor, what it
// refuses, leaves out or does not draw, and what it shows otherwise than the file says; a warning
// is what works, but hardly as meant. A file is named as it lies in the package's folder.
class Findings {
 public:
  explicit Findings(Output& output) : output_(output) {}

  void Error(std::string_view file, std::string_view reason) {
    output_.Error(file, reason);
    ++errors_;
  }
  void Warn(std::string_view file, std::string_view reason) {
    output_.Warn(file, reason);
    ++warnings_;
  }
  int32_t Errors() const { return errors_; }
  int32_t Warnings() const { return warnings_; }

 private:
  Output& output_;
  int32_t errors_ = 0, warnings_ = 0;
};
