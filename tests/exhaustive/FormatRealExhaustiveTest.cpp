#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <ios>
#include <limits>
#include <string>

#include "folivar/base/Error.h"
#include "tests/support/ExactReal.h"
#include "tests/support/Random.h"
#include "tests/support/Reals.h"

namespace folivar::test {
namespace {

constexpr std::int64_t kLargest = 20'000'000;

std::string RealOrNothing(double x) {
  try {
    return FormatReal(x);
  } catch (const Error& error) {
    return error.Number() == Error::kOverflow ? "" : "error " + std::to_string(error.Number());
  }
}

// Asserting a million times is slow, so only what is wrong reaches an assertion.
void ExpectExact(double x) {
  const std::string found = RealOrNothing(x);
  const std::string expected = ExactReal(x);
  if (found != expected) {
    FAIL() << std::hexfloat << x << ": expected '" << expected << "', found '" << found << "'";
  }
}

void ExpectExactOfBothSigns(double x) {
  ASSERT_NO_FATAL_FAILURE(ExpectExact(x));
  ASSERT_NO_FATAL_FAILURE(ExpectExact(-x));
}

void ExpectExactAround(double x) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(x));
  ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(std::nextafter(x, kInfinity)));
  ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(std::nextafter(x, -kInfinity)));
}

// k / 10000 in decimal digits, by whole numbers only.
std::string DecimalOf(std::int64_t k) {
  std::string fraction = std::to_string(10000 + k % 10000).substr(1);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  return std::to_string(k / 10000) + (fraction.empty() ? "" : "." + fraction) + " ";
}

TEST(FormatRealExhaustive, EveryTenThousandth) {
  for (std::int64_t k = 0; k <= kLargest; ++k) {
    const double x = static_cast<double>(k) / 10000;
    const std::string expected = DecimalOf(k);
    if (FormatReal(x) != expected || FormatReal(-x) != (k == 0 ? "" : "-") + expected) {
      FAIL() << k << ": expected '" << expected << "', found '" << FormatReal(x) << "' and '"
             << FormatReal(-x) << "'";
    }
  }
}

TEST(FormatRealExhaustive, EveryTenThousandthAsAFloat) {
  for (std::int64_t k = 0; k <= kLargest; ++k) {
    const float x = static_cast<float>(static_cast<double>(k) / 10000);
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(x));
  }
}

// Below 420 a float lies nearer to its ten thousandth than to the half beside it.
TEST(FormatRealExhaustive, EveryTenThousandthThatAFloatTellsApart) {
  for (std::int64_t k = 0; k < 1 << 22; ++k) {
    const float x = static_cast<float>(static_cast<double>(k) / 10000);
    if (FormatReal(x) != DecimalOf(k)) {
      FAIL() << k << ": expected '" << DecimalOf(k) << "', found '" << FormatReal(x) << "'";
    }
  }
}

TEST(FormatRealExhaustive, EveryHalfOfATenThousandth) {
  for (std::int64_t k = 0; k < kLargest; ++k) {
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns((static_cast<double>(k) + 0.5) / 10000));
  }
}

TEST(FormatRealExhaustive, TheDoublesBesideHalves) {
  for (std::int64_t k = 0; k < kLargest; k += 10) {
    ASSERT_NO_FATAL_FAILURE(ExpectExactAround((static_cast<double>(k) + 0.5) / 10000));
  }
}

TEST(FormatRealExhaustive, EveryHalfAsAFloat) {
  for (std::int64_t k = 0; k < kLargest; ++k) {
    const float x = static_cast<float>((static_cast<double>(k) + 0.5) / 10000);
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(x));
  }
}

// An odd number of 32nds is an exact tie of its ten thousandths.
TEST(FormatRealExhaustive, ExactTies) {
  for (std::int64_t m = 1; m <= kLargest; m += 2) {
    const double tie = static_cast<double>(m) / 32;
    if (std::fmod(tie * 20000, 2) != 1) FAIL() << tie << " is no tie";
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(tie));
  }
}

TEST(FormatRealExhaustive, ExactTiesOfEverySizeAndTheDoublesBesideThem) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int i = 0; i < 1'000'000; ++i) {
    const std::uint64_t m = (random.Bits() >> (28 + random.Below(36))) | 1;  // below 2^36
    ASSERT_NO_FATAL_FAILURE(ExpectExactAround(static_cast<double>(m) / 32));
  }
}

TEST(FormatRealExhaustive, RandomBitsOfFloats) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int i = 0; i < 5'000'000; ++i) {
    const auto bits = static_cast<std::uint32_t>(random.Bits());
    ASSERT_NO_FATAL_FAILURE(ExpectExact(std::bit_cast<float>(bits)));
  }
}

TEST(FormatRealExhaustive, RandomBitsOfDoubles) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int i = 0; i < 3'000'000; ++i) {
    ASSERT_NO_FATAL_FAILURE(ExpectExact(std::bit_cast<double>(random.Bits())));
  }
}

// Random bits are mostly far too large or too small; these lie where numbers are written.
TEST(FormatRealExhaustive, RandomDoublesOfEverySizeThatIsWritten) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int i = 0; i < 10'000'000; ++i) {
    const auto mantissa = static_cast<double>(random.Bits() >> 11);  // 53 bits
    const int exponent = -70 + static_cast<int>(random.Below(50));   // up to 2^32
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(std::ldexp(mantissa, exponent)));
  }
}

TEST(FormatRealExhaustive, DoublesBesideTheNearestOfEachTenThousandthAtTheLimit) {
  // The last 200,000 ten thousandths below 2^31 and their halves, and as many beyond.
  constexpr std::int64_t kLimit = (std::int64_t{1} << 31) * 10000;
  for (std::int64_t k = kLimit - 200'000; k < kLimit + 200'000; ++k) {
    ASSERT_NO_FATAL_FAILURE(ExpectExactAround(static_cast<double>(k) / 10000));
    ASSERT_NO_FATAL_FAILURE(ExpectExactAround((static_cast<double>(k) + 0.5) / 10000));
  }
}

TEST(FormatRealExhaustive, EveryDoubleBeside2To31) {
  double below = 2147483648.0;
  double above = below;
  for (int i = 0; i < 1000; ++i) {
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(below));
    ASSERT_NO_FATAL_FAILURE(ExpectExactOfBothSigns(above));
    below = std::nextafter(below, 0.0);
    above = std::nextafter(above, 1e300);
  }
}

}  // namespace
}  // namespace folivar::test
