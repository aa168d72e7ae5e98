#pragma once

#include <cstddef>

namespace folivar::test {

// In programs that link this, memory runs out once when it is told to: of the allocations from now
// on, `number` (counted from 1) raises std::bad_alloc. The object ends that.
class FailingNew {
 public:
  explicit FailingNew(std::size_t number);
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;

  // Whether there were so many.
  bool HasFailed() const;
};

}  // namespace folivar::test
