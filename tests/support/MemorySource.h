#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "folivar/file/ByteSource.h"

namespace folivar::test {

// Bytes in memory, read like a file. They must outlive the source.
class MemorySource final : public ByteSource {
 public:
  explicit MemorySource(std::string_view bytes) : bytes_(bytes) {}

  std::uint64_t Size() const override { return bytes_.size(); }

  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    if (offset >= bytes_.size()) return 0;
    return bytes_.copy(out.data(), out.size(), static_cast<std::size_t>(offset));
  }

 private:
  std::string_view bytes_;
};

}  // namespace folivar::test
