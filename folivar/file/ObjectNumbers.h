#pragma once

#include <cstdint>

#include "folivar/file/Reference.h"

namespace folivar {

// The numbering pass of a save: hands out object numbers in order.
class ObjectNumbers {
 public:
  explicit ObjectNumbers(std::int32_t first = 1) : next_(first) {}

  // The next free number. Raises 6 when the 32 bits are used up.
  Reference Take();

  // The number that Take would give: one more than the highest number used.
  std::int32_t NextObjectNumber() const { return next_; }

 private:
  std::int32_t next_;
};

}  // namespace folivar
