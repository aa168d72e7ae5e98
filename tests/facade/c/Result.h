#pragma once

#include <folivar.h>

#include <cstdint>
#include <vector>

#include "folivar/base/Text.h"

namespace facade {

// What the C library gave.
class Result {
 public:
  Result() : held_(folivar_missing()) {}
  ~Result() { folivar_clear(&held_); }
  Result(const Result&) = delete;
  Result& operator=(const Result&) = delete;

  folivar_value* Address() { return &held_; }

  // Texts, a text, a number or a flag. Raises 13 for another kind.
  template <class Wanted>
  Wanted As() const;

  // The object, which from now on the caller holds; null for none.
  folivar_object* TakeObject();

 private:
  folivar_value held_;
};

template <>
bool Result::As() const;
template <>
std::int32_t Result::As() const;
template <>
float Result::As() const;
template <>
folivar::Text Result::As() const;
template <>
std::vector<folivar::Text> Result::As() const;

}  // namespace facade
