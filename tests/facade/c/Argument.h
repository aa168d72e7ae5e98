#pragma once

#include <folivar.h>

#include <cstdint>
#include <type_traits>

#include "folivar/base/Text.h"
#include "folivar/base/Value.h"

namespace facade {

// What the C library gets for an argument.
class Argument {
 public:
  Argument(folivar::TextView text) : value_(text) {}
  Argument(const folivar::Value& value) : value_(value) {}
  Argument(float number) : value_(number) {}
  Argument(std::int32_t number) : value_(number) {}
  Argument(bool flag) : value_(flag) {}
  template <class Enumeration>
  requires std::is_enum_v<Enumeration> Argument(Enumeration value)
      : Argument(static_cast<std::int32_t>(value)) {}
  // Null for no object.
  explicit Argument(folivar_object* object) : isObject_(true), object_(object) {}

  // Good as long as this argument.
  folivar_value Borrowed() const;

 private:
  folivar::Value value_;
  bool isObject_ = false;
  folivar_object* object_ = nullptr;
};

}  // namespace facade
