#pragma once

#include <any>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>
#include <variant>

#include "folivar/base/Api.h"
#include "folivar/base/Object.h"
#include "folivar/base/Text.h"

namespace folivar {

// A number without a fraction. A flag is none, and neither is a single character.
template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char> &&
                      !std::same_as<T, wchar_t> && !std::same_as<T, char8_t> &&
                      !std::same_as<T, char16_t> && !std::same_as<T, char32_t>;

// A value of any kind, as automation hosts pass them: a position or a key, an optional argument, a
// tag. Value() is Missing, an argument that was left out. A value is what it is: where a number is
// wanted, true is none, and neither is "12". (On the automation interface the system converts them
// before they come here, to -1 and 12.)
class FOLIVAR_API Value {
 public:
  Value() = default;

  template <std::same_as<bool> Bool>
  Value(Bool flag) : held_(flag) {}

  template <WholeNumber Integer>
  Value(Integer number) {
    if (std::in_range<std::int64_t>(number)) {
      held_ = static_cast<std::int64_t>(number);
    } else {
      held_ = static_cast<double>(number);
    }
  }

  template <std::floating_point Real>
  Value(Real number) : held_(static_cast<double>(number)) {}

  template <ConvertsTo<TextView> String>
  Value(const String& text) : held_(Text(TextView(text))) {}

  template <std::derived_from<Object> T>
  Value(std::shared_ptr<T> object) : held_(std::shared_ptr<Object>(std::move(object))) {}

  // No value at all; what a tag holds at first.
  static Value Empty() { return Value(Held(std::in_place_type<EmptyValue>)); }
  // Known to be no single value: the bold flag of a selection that is bold only in part.
  static Value Null() { return Value(Held(std::in_place_type<NullValue>)); }
  // Anything of the host's own, for a tag.
  static Value Host(std::any value) { return Value(Held(std::move(value))); }

  bool IsMissing() const { return std::holds_alternative<MissingValue>(held_); }
  bool IsEmpty() const { return std::holds_alternative<EmptyValue>(held_); }
  bool IsNull() const { return std::holds_alternative<NullValue>(held_); }

  // The value held if it is a T, else null. T is one of bool, std::int64_t (all whole numbers that
  // fit), double, Text, std::shared_ptr<Object> and std::any (Host).
  template <class T>
  const T* As() const {
    return std::get_if<T>(&held_);
  }

 private:
  struct MissingValue {};
  struct EmptyValue {};
  struct NullValue {};
  using Held = std::variant<MissingValue, EmptyValue, NullValue, bool, std::int64_t, double, Text,
                            std::shared_ptr<Object>, std::any>;

  explicit Value(Held held) : held_(std::move(held)) {}

  Held held_;
};

// The value as a whole number of 32 bits, halves rounded to even: 6 beyond 32 bits, 94 for Null, 13
// for what is no number.
FOLIVAR_API std::int32_t Int32From(const Value& value);

// The value as a flag, numbers other than 0 being true: 94 for Null, 13 for what is neither a flag
// nor a number.
FOLIVAR_API bool BoolFrom(const Value& value);

// The value as a real, whole numbers included: 94 for Null, 13 for what is no number.
FOLIVAR_API double DoubleFrom(const Value& value);

}  // namespace folivar
