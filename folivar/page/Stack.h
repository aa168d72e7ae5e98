#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"

namespace folivar {

// Last in, first out. Pop and Peek raise 9 when nothing is there.
template <class T>
class Stack {
 public:
  void Push(T value) { values_.push_back(std::move(value)); }

  T Pop() {
    T value = Peek();
    values_.pop_back();
    return value;
  }

  const T& Peek() const {
    if (values_.empty()) throw Error::SubscriptOutOfRange("the stack is empty");
    return values_.back();
  }

  std::int32_t Count() const { return static_cast<std::int32_t>(values_.size()); }

 private:
  std::vector<T> values_;
};

}  // namespace folivar
