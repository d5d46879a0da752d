#pragma once

#include <cstddef>

// How many allocations of the C++ heap have not been given back.
size_t LiveAllocations();

// Lets the allocation of the C++ heap after so many others throw std::bad_alloc, none for -1.
void FailAllocation(int number);

// Tries a step whose first allocation fails, then one whose second does, and so on, until it
// succeeds. `failed` looks after each failure. The number of failures.
template <class Step, class Failed>
int FailEachAllocation(Step step, Failed failed) {
  int count = 0;
  for (;; ++count) {
    FailAllocation(count);
    const bool succeeded = step();
    FailAllocation(-1);
    if (succeeded) return count;
    failed();
  }
}
