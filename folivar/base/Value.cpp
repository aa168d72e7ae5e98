#include "folivar/base/Value.h"

#include <limits>

#include "folivar/base/Error.h"
#include "folivar/base/Numbers.h"

namespace folivar {
namespace {

[[noreturn]] void RaiseNoNumber(const Value& value) {
  if (value.IsNull()) throw Error::InvalidNull("null stands where a number is wanted");
  throw Error::TypeMismatch("a number is wanted");
}

}  // namespace

std::int32_t Int32From(const Value& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (const auto* whole = value.As<std::int64_t>()) {
    if (!std::in_range<std::int32_t>(*whole)) {
      throw Error::Overflow("the number " + std::to_string(*whole) + " does not fit into 32 bits");
    }
    return static_cast<std::int32_t>(*whole);
  }
  if (const auto* real = value.As<double>()) {
    const double rounded = RoundHalfToEven(*real);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
      throw Error::Overflow("the number " + DigitsOf(*real) + " does not fit into 32 bits");
    }
    return static_cast<std::int32_t>(rounded);
  }
  RaiseNoNumber(value);
}

bool BoolFrom(const Value& value) {
  if (const auto* flag = value.As<bool>()) return *flag;
  if (const auto* whole = value.As<std::int64_t>()) return *whole != 0;
  if (const auto* real = value.As<double>()) return *real != 0;
  if (value.IsNull()) throw Error::InvalidNull("null stands where a flag is wanted");
  throw Error::TypeMismatch("a flag is wanted");
}

double DoubleFrom(const Value& value) {
  if (const auto* whole = value.As<std::int64_t>()) return static_cast<double>(*whole);
  if (const auto* real = value.As<double>()) return *real;
  RaiseNoNumber(value);
}

}  // namespace folivar
