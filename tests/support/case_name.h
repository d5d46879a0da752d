#pragma once

#include <string>

// Names the instances of a value-parameterised test after the `name` of their case.
struct CaseName {
  template <class Case>
  std::string operator()(const Case& test) const {
    return test.param.name;
  }
};
