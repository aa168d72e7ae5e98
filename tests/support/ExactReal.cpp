#include "tests/support/ExactReal.h"

#include <bit>
#include <cstdint>

namespace folivar::test {
namespace {

__extension__ typedef unsigned __int128 Whole;

constexpr int kMantissaBits = 52;
constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kMantissaBits;
constexpr std::uint64_t kLimit = (std::uint64_t{1} << 31) * 10000;

// |x| * 10000 to the nearest whole number, halves to the even one; kLimit for kLimit and above.
std::uint64_t TenThousandths(std::uint64_t bits) {
  const auto biased = static_cast<int>((bits >> kMantissaBits) & 0x7FF);
  const std::uint64_t fraction = bits & (kHiddenBit - 1);
  // |x| is mantissa * 2^-shift.
  const std::uint64_t mantissa = biased == 0 ? fraction : fraction | kHiddenBit;
  const int shift = 1023 + kMantissaBits - (biased == 0 ? 1 : biased);
  if (shift <= 0) return kLimit;                 // 2^52 and above, infinities, not a number
  const Whole scaled = Whole{mantissa} * 10000;  // below 2^67
  if (shift > 70) return 0;                      // below one eighth
  Whole quotient = scaled >> shift;
  const Whole rest = scaled - (quotient << shift);
  const Whole half = Whole{1} << (shift - 1);
  if (rest > half || (rest == half && quotient % 2 == 1)) ++quotient;
  return quotient < kLimit ? static_cast<std::uint64_t>(quotient) : kLimit;
}

}  // namespace

std::string ExactReal(double x) {
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const std::uint64_t scaled = TenThousandths(bits);
  if (scaled == kLimit) return "";

  // From the right: blank, fraction without its trailing zeros, point, whole part, sign.
  char text[24];
  char* const end = text + sizeof text;
  char* out = end;
  *--out = ' ';
  std::uint64_t fraction = scaled % 10000;
  if (fraction != 0) {
    int digits = 4;
    for (; fraction % 10 == 0; fraction /= 10) --digits;
    for (; digits > 0; --digits, fraction /= 10) *--out = static_cast<char>('0' + fraction % 10);
    *--out = '.';
  }
  std::uint64_t whole = scaled / 10000;
  do {
    *--out = static_cast<char>('0' + whole % 10);
    whole /= 10;
  } while (whole != 0);
  if (scaled != 0 && (bits >> 63) != 0) *--out = '-';
  return {out, end};
}

}  // namespace folivar::test
