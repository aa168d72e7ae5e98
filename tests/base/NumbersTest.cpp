#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "folivar/base/Error.h"
#include "folivar/base/Numbers.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(RoundHalfToEven, RoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(RoundHalfToEven(0.5), 0);
  EXPECT_EQ(RoundHalfToEven(1.5), 2);
  EXPECT_EQ(RoundHalfToEven(2.5), 2);
  EXPECT_EQ(RoundHalfToEven(-0.5), 0);
  EXPECT_EQ(RoundHalfToEven(-1.5), -2);
  EXPECT_EQ(RoundHalfToEven(-2.5), -2);
  EXPECT_EQ(RoundHalfToEven(std::nextafter(0.5, 1)), 1);
  EXPECT_EQ(RoundHalfToEven(std::nextafter(0.5, 0)), 0);
  EXPECT_EQ(RoundHalfToEven(4503599627370495.5), 4503599627370496);
  EXPECT_EQ(RoundHalfToEven(4503599627370497.0), 4503599627370497);
}

TEST(RoundHalfToEven, LeavesWhatIsNotFinite) {
  EXPECT_EQ(RoundHalfToEven(kInfinity), kInfinity);
  EXPECT_EQ(RoundHalfToEven(-kInfinity), -kInfinity);
  EXPECT_TRUE(std::isnan(RoundHalfToEven(kNotANumber)));
}

TEST(Finite, GivesASumAsItIsOrRaises6) {
  constexpr float kLargest = std::numeric_limits<float>::max();
  EXPECT_EQ(Finite(-1.5F), -1.5F);
  EXPECT_EQ(Finite(kLargest), kLargest);
  EXPECT_EQ(ErrorNumberOf([] { Finite(kLargest + kLargest); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { Finite(std::numeric_limits<float>::quiet_NaN()); }),
            Error::kOverflow);
}

TEST(DigitsOf, TellsSixDigits) {
  EXPECT_EQ(DigitsOf(0), "0");
  EXPECT_EQ(DigitsOf(-0.5), "-0.5");
  EXPECT_EQ(DigitsOf(0.000123), "0.000123");
  EXPECT_EQ(DigitsOf(12.25), "12.25");
  EXPECT_EQ(DigitsOf(120000), "120000");
  EXPECT_EQ(DigitsOf(999999.7), "1e+06");
  EXPECT_EQ(DigitsOf(2147483648.0), "2.14748e+09");
  EXPECT_EQ(DigitsOf(-3e9), "-3e+09");
  EXPECT_EQ(DigitsOf(1.5e-7), "1.5e-07");
  EXPECT_EQ(DigitsOf(1e300), "1e+300");
  EXPECT_EQ(DigitsOf(std::numeric_limits<double>::max()), "1.79769e+308");
  EXPECT_EQ(DigitsOf(std::numeric_limits<double>::denorm_min()), "0");
  EXPECT_EQ(DigitsOf(-std::numeric_limits<double>::infinity()), "-inf");
  EXPECT_EQ(DigitsOf(std::numeric_limits<double>::quiet_NaN()), "nan");
}

}  // namespace
}  // namespace folivar::test
