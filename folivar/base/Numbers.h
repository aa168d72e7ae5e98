#pragma once

#include <cmath>
#include <string>
#include <string_view>

namespace folivar {

// 2^52: adding it leaves no bits for a fraction, and the sum is rounded to even.
inline constexpr double kNoFraction = 4503599627370496.0;

// To a whole number, halves to the even one; what is not finite stays as it is.
inline double RoundHalfToEven(double x) {
  if (!(std::fabs(x) < kNoFraction)) return x;
  return x < 0 ? (x - kNoFraction) + kNoFraction : (x + kNoFraction) - kNoFraction;
}

// Raises 6: "a sum of coordinates is beyond a single". `object` is what it is about, if that is
// known.
[[noreturn]] void RaiseBeyondSingle(std::string_view what, const std::string& object = {});

// A sum of coordinates as it is; raises 6 when it is beyond a single.
inline float Finite(float sum) {
  if (!std::isfinite(sum)) RaiseBeyondSingle("a sum of coordinates");
  return sum;
}

// A number for people, in the text of an error: to six digits, "1e+20".
std::string DigitsOf(double x);

}  // namespace folivar
