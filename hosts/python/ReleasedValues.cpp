#include "hosts/python/ReleasedValues.h"

#include "hosts/python/HostValue.h"
#include "hosts/python/KeptError.h"

namespace folivar::python {

void ReleasedValues::Add(HostValue& value) {
  HostValue* first = first_.load(std::memory_order_relaxed);
  do {
    value.nextReleased_ = first;
  } while (!first_.compare_exchange_weak(first, &value, std::memory_order_release,
                                         std::memory_order_relaxed));
}

void ReleasedValues::LetGoOfAll() {
  const KeptError kept;
  isLettingGo_ = true;
  while (HostValue* value = first_.exchange(nullptr, std::memory_order_acquire)) {
    while (value != nullptr) {
      HostValue* const next = value->nextReleased_;
      value->Clear();
      delete value;
      value = next;
    }
  }
  isLettingGo_ = false;
}

}  // namespace folivar::python
