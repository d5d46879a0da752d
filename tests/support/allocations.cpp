#include "support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int kUnlimited = -1;
int left = kUnlimited;

void* Allocate(size_t size) {
  void* const memory = left == 0 ? nullptr : std::malloc(size ? size : 1);
  if (!memory) throw std::bad_alloc();
  if (left > 0) --left;
  return memory;
}

}  // namespace

AllocationsLeft::AllocationsLeft(int count) { left = count; }
AllocationsLeft::~AllocationsLeft() { left = kUnlimited; }

void* operator new(size_t size) { return Allocate(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept {
  return left == 0 ? nullptr : std::malloc(size);
}
void* operator new[](size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, size_t) noexcept { std::free(memory); }
