// Runs a fuzz target on random bytes where there is no libFuzzer:
//
//   fuzz_session [RUNS [FIRST]]   runs the inputs number FIRST (0) and on
//
// An input follows from its number alone. A fault ends the process after the script of what was
// done and a line that says how to run it again.
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <random>
#include <vector>

#include "fuzz/fuzz_target.h"

// Faults that a sanitizer sees end the process by the signal that is caught here.
extern "C" const char* __asan_default_options() {
  return "abort_on_error=1:allow_user_segv_handler=0";
}

namespace {

char runAgain[512];

void OnFault(int signal) {
  if (write(STDERR_FILENO, script.data(), script.size()) < 0) return;
  if (write(STDERR_FILENO, runAgain, std::strlen(runAgain)) < 0) return;
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

int main(int argc, char** argv) {
  for (const int signal : {SIGABRT, SIGSEGV}) std::signal(signal, OnFault);
  const uint64_t runs = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
  const uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 0;
  for (uint64_t number = first; number < first + runs; ++number) {
    std::snprintf(runAgain, sizeof runAgain, "Failed; run it again with: %s 1 %llu\n", argv[0],
                  static_cast<unsigned long long>(number));
    std::mt19937_64 random(number);
    // Of the exact size, which shows reading past the end.
    std::vector<uint8_t> input(random() % 1200);
    for (uint8_t& byte : input) byte = static_cast<uint8_t>(random());
    LLVMFuzzerTestOneInput(input.data(), input.size());
  }
  std::printf("%llu inputs run without a fault, %llu steps\n",
              static_cast<unsigned long long>(runs), steps);
  return 0;
}
