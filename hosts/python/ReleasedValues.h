#pragma once

#include <atomic>

namespace folivar::python {

class HostValue;

// The values that the library needs no more. To let go of one may run any Python code, which has no
// place in the midst of the library's work; so they wait here until that is done.
class ReleasedValues {
 public:
  // From whatever thread.
  void Add(HostValue& value);

  // Where the library is at rest. Python's error, if one is set, stays.
  void LetGo() {
    if (first_.load(std::memory_order_relaxed) != nullptr && !isLettingGo_) LetGoOfAll();
  }

 private:
  void LetGoOfAll();

  std::atomic<HostValue*> first_ = nullptr;
  // What goes away may make others go; they wait for their turn, however long the chain is.
  bool isLettingGo_ = false;
};

}  // namespace folivar::python
