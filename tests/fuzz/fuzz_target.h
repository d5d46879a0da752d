#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// What each fuzz target provides to libFuzzer or to fuzz_main.cpp.

// Runs the target once on any bytes. Returns 0; a fault ends the process.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// What the target has done with its input so far, a line a step: told when it fails.
inline std::string script;
// How much it has done with all inputs, where there is something to count.
inline unsigned long long steps = 0;

// Ends the process when a promise is broken.
inline void Require(bool promise, const char* what) {
  if (promise) return;
  std::fprintf(stderr, "%sBroken promise: %s\n", script.c_str(), what);
  script.clear();
  std::abort();
}
