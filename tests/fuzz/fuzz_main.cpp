// Runs a fuzz target where there is no libFuzzer:
//
//   fuzz_picture [RUNS [FIRST [FOLDER]]]   runs the inputs number FIRST (0) and on
//
// An input is a file of the folder with some changes, or random bytes where there is none, and
// follows from its number alone. A fault ends the process after a line that says how to run it
// again.
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "support/file_content.h"

// Faults that a sanitizer sees end the process by the signal that is caught here.
extern "C" const char* __asan_default_options() {
  return "abort_on_error=1:allow_user_segv_handler=0";
}

namespace {

constexpr size_t kLongestRandom = 1200, kLongestPiece = 64, kMostChanges = 8;

char runAgain[512];

void OnFault(int signal) {
  if (write(STDERR_FILENO, script.data(), script.size()) < 0) return;
  if (write(STDERR_FILENO, runAgain, std::strlen(runAgain)) < 0) return;
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

// Random bytes, or a seed with random changes.
std::vector<uint8_t> MakeInput(const std::vector<std::string>& seeds, uint64_t number) {
  std::mt19937_64 random(number);
  const auto below = [&random](size_t end) { return static_cast<size_t>(random() % end); };
  std::string input;
  if (seeds.empty()) {
    input.resize(below(kLongestRandom));
    for (char& byte : input) byte = static_cast<char>(random());
  } else {
    input = seeds[below(seeds.size())];
    for (size_t left = below(kMostChanges + 1); left > 0; --left) {
      const size_t from = below(input.size() + 1), at = below(input.size() + 1);
      const std::string telling(1, "\0\1\x7F\x80\xFF"[below(5)]);
      const std::string piece = input.substr(from, below(kLongestPiece));
      input.replace(at, below(3) ? 1 : below(kLongestPiece), below(2) ? telling : piece);
    }
  }
  // A copy of the exact size shows reading past the end.
  return {input.begin(), input.end()};
}

// In the order of their names.
std::vector<std::string> FilesOf(const char* folder) {
  std::set<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(folder)) names.insert(file.path());
  std::vector<std::string> contents;
  for (const std::string& name : names) contents.push_back(ReadContent(name));
  return contents;
}

}  // namespace

int main(int argc, char** argv) {
  for (const int signal : {SIGABRT, SIGSEGV}) std::signal(signal, OnFault);
  const uint64_t runs = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000;
  const uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 0;
  const std::vector<std::string> seeds = argc > 3 ? FilesOf(argv[3]) : std::vector<std::string>();
  for (uint64_t number = first; number < first + runs; ++number) {
    std::snprintf(runAgain, sizeof runAgain, "Failed; run it again with: %s 1 %llu %s\n", argv[0],
                  static_cast<unsigned long long>(number), argc > 3 ? argv[3] : "");
    const std::vector<uint8_t> input = MakeInput(seeds, number);
    LLVMFuzzerTestOneInput(input.data(), input.size());
  }
  std::printf("%llu inputs run without a fault, %llu steps\n",
              static_cast<unsigned long long>(runs), steps);
  return 0;
}
