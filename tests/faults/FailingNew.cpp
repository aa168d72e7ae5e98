#include "tests/faults/FailingNew.h"

#include <cstdlib>
#include <new>

namespace {

// Allocations up to the one that fails; 0 for none.
std::size_t left = 0;

}  // namespace

void* operator new(std::size_t size) {
  if (left != 0 && --left == 0) throw std::bad_alloc();
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
// The sanitizers have one of their own.
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace folivar::test {

FailingNew::FailingNew(std::size_t number) { left = number; }
FailingNew::~FailingNew() { left = 0; }
bool FailingNew::HasFailed() const { return left == 0; }

}  // namespace folivar::test
