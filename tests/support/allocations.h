#pragma once

#include <cstddef>

// How many allocations of the C++ heap have not been given back.
size_t LiveAllocations();

// Lets so many allocations of the C++ heap succeed, all for -1; all others throw std::bad_alloc.
void LimitAllocations(int count);

// Tries a step with no allocation left, then with one, and so on, until it succeeds. `failed` looks
// after each failure. The number of failures.
template <class Step, class Failed>
int FailEachAllocation(Step step, Failed failed) {
  int count = 0;
  for (;; ++count) {
    LimitAllocations(count);
    const bool succeeded = step();
    LimitAllocations(-1);
    if (succeeded) return count;
    failed();
  }
}
