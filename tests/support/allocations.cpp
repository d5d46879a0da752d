#include "support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

int left = -1;
size_t live = 0;

void* TryAllocate(size_t size) noexcept {
  if (left >= 0 && left-- == 0) return nullptr;
  void* const memory = std::malloc(size ? size : 1);
  if (memory) ++live;
  return memory;
}

void* Allocate(size_t size) {
  if (void* const memory = TryAllocate(size)) return memory;
  throw std::bad_alloc();
}

void Release(void* memory) noexcept {
  if (memory) --live;
  std::free(memory);
}

}  // namespace

size_t LiveAllocations() { return live; }

void FailAllocation(int number) { left = number; }

void* operator new(size_t size) { return Allocate(size); }
void* operator new[](size_t size) { return Allocate(size); }
void* operator new(size_t size, const std::nothrow_t&) noexcept { return TryAllocate(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept { return TryAllocate(size); }
void operator delete(void* memory) noexcept { Release(memory); }
void operator delete[](void* memory) noexcept { Release(memory); }
void operator delete(void* memory, size_t) noexcept { Release(memory); }
void operator delete[](void* memory, size_t) noexcept { Release(memory); }
