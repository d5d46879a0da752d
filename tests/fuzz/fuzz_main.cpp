// Runs a fuzz target where there is no libFuzzer. Every input follows from its number alone.
//
//   fuzz_picture [RUNS [FIRST]]   runs the inputs number FIRST (0) and on
//   fuzz_picture FILE...          runs the files' content
//
// A fault ends the process after a line that says how to run its input again.
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <random>

#include "fuzz/fuzz_target.h"
#include "support/file_content.h"

// The sanitizers end the process by the signal that is caught here.
extern "C" const char* __asan_default_options() { return "abort_on_error=1"; }

namespace {

constexpr size_t kLongestRandom = 1200;
constexpr size_t kLongestChunk = 16;
constexpr size_t kLongestCopy = 256;
constexpr size_t kMostChanges = 8;

char runAgain[512];

void OnFault(int signal) {
  if (write(STDERR_FILENO, runAgain, std::strlen(runAgain)) < 0) return;
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void CatchFaults() {
  std::signal(SIGABRT, OnFault);
  // The sanitizers' own handler says more.
  const auto before = std::signal(SIGSEGV, OnFault);
  if (before != SIG_DFL) std::signal(SIGSEGV, before);
}

// One input, made from a seed by random changes.
class Mutator {
 public:
  Mutator(const std::vector<std::string>& seeds, uint64_t number)
      : seeds_(seeds), random_(number) {}

  std::string Make() {
    if (seeds_.empty()) return Random(Below(kLongestRandom));
    std::string input = seeds_[Below(seeds_.size())];
    for (size_t left = Below(kMostChanges + 1); left > 0; --left) Change(input);
    return input;
  }

 private:
  size_t Below(size_t end) { return static_cast<size_t>(random_() % end); }

  std::string Random(size_t length) {
    std::string bytes(length, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random_());
    return bytes;
  }

  // Ends of ranges, and what means something in a text.
  char TellingByte() {
    constexpr char kTelling[] = "\0\1\x7F\x80\xFF[]=,;. \n\r\x1A";
    return kTelling[Below(sizeof kTelling - 1)];
  }

  void Change(std::string& input) {
    const size_t at = Below(input.size() + 1);
    const size_t count = std::min(1 + Below(kLongestChunk), input.size() - at);
    switch (Below(6)) {
      case 0:
        if (count) input[at] = static_cast<char>(input[at] ^ 1 << Below(8));
        break;
      case 1:
        if (count) input[at] = TellingByte();
        break;
      case 2:
        input.insert(at, 1 + Below(kLongestChunk), TellingByte());
        break;
      case 3:
        input.erase(at, count);
        break;
      case 4:
        input.insert(Below(input.size() + 1), input.substr(at, Below(kLongestCopy)));
        break;
      default:
        const std::string& other = seeds_[Below(seeds_.size())];
        input.replace(at, std::string::npos, other, Below(other.size() + 1));
    }
  }

  const std::vector<std::string>& seeds_;
  std::mt19937_64 random_;
};

// A copy of the exact size shows reading past the end.
void Run(const std::string& input) {
  const std::vector<uint8_t> bytes(input.begin(), input.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  CatchFaults();
  if (argc > 1 && std::strspn(argv[1], "0123456789") < std::strlen(argv[1])) {
    for (int i = 1; i < argc; ++i) {
      std::snprintf(runAgain, sizeof runAgain, "Failed: %s %s\n", argv[0], argv[i]);
      Run(ReadContent(argv[i]));
    }
    return 0;
  }
  const uint64_t runs = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000;
  const uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 0;
  const std::vector<std::string> seeds = FuzzSeeds();
  for (uint64_t number = first; number < first + runs; ++number) {
    std::snprintf(runAgain, sizeof runAgain, "Failed; run it again with: %s 1 %llu\n", argv[0],
                  static_cast<unsigned long long>(number));
    Run(Mutator(seeds, number).Make());
  }
  std::printf("%llu inputs run without a fault\n", static_cast<unsigned long long>(runs));
  return 0;
}
