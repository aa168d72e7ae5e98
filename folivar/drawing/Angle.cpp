#include "folivar/drawing/Angle.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace folivar {
namespace {

constexpr double kQuarterPi = 0.78539816339744830962;
constexpr double kHalfPi = 1.57079632679489661923;

// The binary digits of 2 / pi behind the point, 32 a word, after one word of zeros in front of it.
constexpr std::array<std::uint32_t, 9> kTwoOverPi = {0,          0xA2F9836E, 0x4E441529,
                                                     0xFC2757D1, 0xF534DDC0, 0xDB629599,
                                                     0x3C439041, 0xFE5163AB, 0xDEBBC561};

// The 32 digits from digit `first` on; digit 1 is the first behind the point.
std::uint32_t DigitsOfTwoOverPi(int first) {
  const auto place = static_cast<std::size_t>(first + 31);
  const std::size_t word = place / 32;
  const std::size_t shift = place % 32;
  if (shift == 0) return kTwoOverPi[word];
  return (kTwoOverPi[word] << shift) | (kTwoOverPi[word + 1] >> (32 - shift));
}

// An angle as a number of quarter turns, whole ones modulo 4, and the radians that are left.
struct QuarterTurns {
  unsigned count;
  double rest;  // -pi / 4 to pi / 4
};

// For radians of pi / 4 and above. They are m * 2^e with m below 2^24. Of m * 2^e * 2 / pi only the
// value modulo 4 matters, so the digits of 2 / pi up to e - 2 may be left out; 128 digits from
// there on leave more than 100 behind the point.
QuarterTurns Reduce(float radians) {
  int exponent = 0;
  const auto m = static_cast<std::uint64_t>(std::ldexp(std::frexp(radians, &exponent), 24));
  const int e = exponent - 24;

  std::array<std::uint32_t, 4> turns{};  // m * the digits, modulo 4; two digits before the point
  std::uint64_t carry = 0;
  for (int i = 3; i >= 0; --i) {
    carry += m * DigitsOfTwoOverPi(e - 1 + 32 * i);
    turns[static_cast<std::size_t>(i)] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }

  unsigned count = turns[0] >> 30;
  std::array<std::uint32_t, 3> rest = {(turns[0] << 2) | (turns[1] >> 30),
                                       (turns[1] << 2) | (turns[2] >> 30),
                                       (turns[2] << 2) | (turns[3] >> 30)};
  const bool isAboveHalf = (rest[0] >> 31) != 0;
  if (isAboveHalf) {
    ++count;
    for (std::uint32_t& word : rest) word = ~word;  // 1 - rest, but for the last of 96 digits
  }
  const double share = (rest[2] * 0x1p-96 + rest[1] * 0x1p-64) + rest[0] * 0x1p-32;
  return {count % 4, (isAboveHalf ? -share : share) * kHalfPi};
}

// Taylor series for -pi / 4 to pi / 4.

double SmallSine(double x) {
  const double square = x * x;
  double sum = 0;
  for (int n = 18; n >= 2; n -= 2) sum = (1 + sum) * (-square / (n * (n + 1)));
  return x + x * sum;
}

double SmallCosine(double x) {
  const double square = x * x;
  double sum = 0;
  for (int n = 19; n >= 1; n -= 2) sum = (1 + sum) * (-square / (n * (n + 1)));
  return 1 + sum;
}

}  // namespace

float RadiansFromDegrees(float degrees) {
  return static_cast<float>(degrees * 3.14159265358979 / 180);
}

SineCosine SineCosineOf(float radians) {
  if (!std::isfinite(radians)) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    return {kNone, kNone};
  }
  const float size = std::fabs(radians);
  const QuarterTurns turns = size < kQuarterPi ? QuarterTurns{0, size} : Reduce(size);
  const double sine = SmallSine(turns.rest);
  const double cosine = SmallCosine(turns.rest);
  SineCosine result{sine, cosine};
  if (turns.count == 1) result = {cosine, -sine};
  if (turns.count == 2) result = {-sine, -cosine};
  if (turns.count == 3) result = {-cosine, sine};
  if (radians < 0) result.sine = -result.sine;
  return result;
}

}  // namespace folivar
