#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/file/ByteSink.h"

namespace folivar::test {

// Keeps what is written to it, and how long each piece was.
class MemorySink final : public ByteSink {
 public:
  void Write(std::string_view bytes) override {
    bytes_ += bytes;
    writes_.push_back(bytes.size());
  }
  const std::string& Bytes() const { return bytes_; }
  const std::vector<std::size_t>& Writes() const { return writes_; }

 private:
  std::string bytes_;
  std::vector<std::size_t> writes_;
};

}  // namespace folivar::test
