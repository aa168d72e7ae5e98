#include "tests/support/ManyBytes.h"

#include <sys/mman.h>

#include <stdexcept>

namespace folivar::test {

ManyBytes::ManyBytes(std::size_t size)
    : bytes_(mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)),
      size_(size) {
  if (bytes_ == MAP_FAILED) throw std::runtime_error("no address space for the test");
}

ManyBytes::~ManyBytes() { munmap(bytes_, size_); }

}  // namespace folivar::test
