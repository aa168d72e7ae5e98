#pragma once

#include <cstdint>

#include "folivar/base/KeyedList.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace folivar {

// The general-purpose keyed collection inside the library: values of any kind in order, each with
// an optional key. Positions count from 1; errors are those of KeyedList.
class KelCollection {
 public:
  void Add(Value item, TextView key = {}, const Value& before = {}, const Value& after = {});
  const Value& Item(const Value& index) const { return values_.Item(index); }
  std::int32_t Count() const { return static_cast<std::int32_t>(values_.Count()); }
  void Remove(const Value& index) { values_.Remove(index); }
  // Whether Item would succeed. Never raises.
  bool KeyExists(const Value& index) const noexcept { return values_.KeyExists(index); }

  // The enumeration, in order.
  template <class Visit>
  void ForEach(Visit visit) const {
    values_.ForEach(visit);
  }

 private:
  KeyedList<Value> values_{"KelCollection"};
};

}  // namespace folivar
