#pragma once

#include <cstddef>

// How many allocations of the C++ heap have not been given back.
size_t LiveAllocations();

// Lets so many allocations of the C++ heap succeed while it lives; all others throw std::bad_alloc.
class AllocationsLeft {
 public:
  explicit AllocationsLeft(int count);
  ~AllocationsLeft();
  AllocationsLeft(const AllocationsLeft&) = delete;
  AllocationsLeft& operator=(const AllocationsLeft&) = delete;
};

// Tries a step with no allocation left, then with one, and so on, until it succeeds. `failed` looks
// after each failure. The number of failures.
template <class Step, class Failed>
int FailEachAllocation(Step step, Failed failed) {
  int count = 0;
  for (;; ++count) {
    {
      const AllocationsLeft left(count);
      if (step()) return count;
    }
    failed();
  }
}
