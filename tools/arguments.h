#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

struct Option {
  std::string name;
  bool hasValue = false;
};

// A command line behind the command's name. Files and options come in any order; "--" ends the
// options.
class Arguments {
 public:
  // An empty text, or what is wrong with the arguments: an option that is not among those that are
  // known, comes twice or lacks its value.
  std::string Parse(std::span<const std::string> arguments, std::span<const Option> known);

  const std::vector<std::string>& Files() const { return files_; }
  bool Has(const std::string& option) const { return values_.contains(option); }
  // The value of an option, `whenMissing` without it.
  std::string Value(const std::string& option, const std::string& whenMissing = {}) const;
  // The same as a number from `least` to `most`; an empty text, or what is wrong with it.
  std::string Number(const std::string& option, int32_t least, int32_t most, int32_t& number) const;

 private:
  std::vector<std::string> files_;
  std::map<std::string, std::string> values_;
};
