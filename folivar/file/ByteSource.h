#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace folivar {

// Bytes that can be read from any place, such as a file's.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  virtual std::uint64_t Size() const = 0;

  // Copies the bytes from `offset` on and returns how many it copied: as many as fit, fewer only
  // where the bytes end.
  virtual std::size_t Read(std::uint64_t offset, std::span<char> out) = 0;

 protected:
  ByteSource() = default;
  ByteSource(const ByteSource&) = default;
  ByteSource& operator=(const ByteSource&) = default;
};

}  // namespace folivar
