#pragma once

#include <cstddef>
#include <string_view>

namespace folivar::test {

// Zeros, as many as asked for, which take no memory until somebody reads them: for sizes at the
// limits of 32 bits.
class ManyBytes {
 public:
  explicit ManyBytes(std::size_t size);
  ~ManyBytes();
  ManyBytes(const ManyBytes&) = delete;
  ManyBytes& operator=(const ManyBytes&) = delete;

  std::string_view View() const { return {static_cast<const char*>(bytes_), size_}; }

 private:
  void* bytes_;
  std::size_t size_;
};

}  // namespace folivar::test
