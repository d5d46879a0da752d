#include "platform/standin/failure.h"

#include <cstdio>
#include <cstdlib>

namespace standin {

void Unsupported(const std::string& what) {
  std::fprintf(stderr, "Stand-in platform: %s\n", what.c_str());
  std::abort();
}

}  // namespace standin
