#include "tools/arguments.h"

#include <algorithm>
#include <charconv>

std::string Arguments::Parse(std::span<const std::string> arguments,
                             std::span<const Option> known) {
  bool options = true;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (!options || word.size() < 2 || word[0] != '-') {
      files_.push_back(word);
      continue;
    }
    if (word == "--") {
      options = false;
      continue;
    }
    const auto option = std::find_if(known.begin(), known.end(),
                                     [&](const Option& one) { return one.name == word; });
    if (option == known.end()) return "there is no option " + word + " here";
    if (Has(word)) return word + " is given twice";
    if (option->hasValue && i + 1 == arguments.size()) return word + " lacks its value";
    values_[word] = option->hasValue ? arguments[++i] : "";
  }
  return {};
}

std::string Arguments::Value(const std::string& option, const std::string& whenMissing) const {
  const auto found = values_.find(option);
  return found == values_.end() ? whenMissing : found->second;
}

std::string Arguments::Number(const std::string& option, int32_t least, int32_t most,
                              int32_t& number) const {
  if (!Has(option)) return {};
  const std::string text = Value(option);
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc{} && stop == end && number >= least && number <= most) return {};
  return option + " takes a number from " + std::to_string(least) + " to " + std::to_string(most) +
         ", not '" + text + "'";
}
