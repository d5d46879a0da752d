#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What each fuzz target provides to libFuzzer or to fuzz_main.cpp.

// Runs the target once on any bytes. Returns 0; a fault ends the process.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Ends the process when a promise is broken.
inline void Require(bool promise, const char* what) {
  if (promise) return;
  std::fprintf(stderr, "Broken promise: %s\n", what);
  std::abort();
}
