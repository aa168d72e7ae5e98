#include "folivar/base/Numbers.h"

#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "folivar/base/Error.h"

namespace folivar {

// Every stored float and every operation is rounded to its own type: no extended precision.
static_assert(FLT_EVAL_METHOD == 0);

void RaiseBeyondSingle(std::string_view what, const std::string& object) {
  throw Error::Overflow(std::string(what) + " is beyond a single").WithObject(object);
}

// Not the standard library's, whose shortest digits take more room than all of our formatters.
std::string DigitsOf(double x) {
  if (std::isnan(x)) return "nan";
  const std::string sign = std::signbit(x) ? "-" : "";
  const double magnitude = std::fabs(x);
  if (std::isinf(x)) return sign + "inf";
  // Smaller ones than any measure, whose powers of ten are beyond a double.
  if (magnitude < 1e-300) return sign + "0";

  int exponent = static_cast<int>(std::floor(std::log10(magnitude)));
  double scaled = std::round(magnitude / std::pow(10, exponent) * 1e5);
  if (scaled >= 1e6) {
    scaled /= 10;
    ++exponent;
  }
  std::string digits = std::to_string(static_cast<std::int64_t>(scaled));
  digits.erase(digits.find_last_not_of('0') + 1);
  if (exponent >= 0 && exponent < 6) {
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < whole) digits.append(whole - digits.size(), '0');
    if (digits.size() > whole) digits.insert(whole, ".");
    return sign + digits;
  }
  if (exponent < 0 && exponent >= -4) {
    return sign + "0." + std::string(static_cast<std::size_t>(-exponent) - 1, '0') + digits;
  }
  if (digits.size() > 1) digits.insert(1, ".");
  const std::string power = std::to_string(std::abs(exponent));
  return sign + digits + (exponent < 0 ? "e-" : "e+") + (power.size() < 2 ? "0" : "") + power;
}

}  // namespace folivar
