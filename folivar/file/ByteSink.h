#pragma once

#include <string_view>

namespace folivar {

// Where a document's bytes go, in order.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  virtual void Write(std::string_view bytes) = 0;

 protected:
  ByteSink() = default;
  ByteSink(const ByteSink&) = default;
  ByteSink& operator=(const ByteSink&) = default;
};

}  // namespace folivar
