#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <ios>
#include <limits>

#include "folivar/drawing/Angle.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

// The system's sine and cosine in extended precision, of exactly this float, are the judges.
static_assert(std::numeric_limits<long double>::digits >= 64);

// In units of the last place of a double at `expected`.
long double ErrorInUlps(double found, long double expected) {
  const double nearest = static_cast<double>(expected);
  const double step = std::nextafter(std::fabs(nearest), std::numeric_limits<double>::infinity()) -
                      std::fabs(nearest);
  return std::fabs(static_cast<long double>(found) - expected) / static_cast<long double>(step);
}

void ExpectAccurate(float radians) {
  constexpr long double kFewUlps = 4;
  const SineCosine found = SineCosineOf(radians);
  const auto exact = static_cast<long double>(radians);
  ASSERT_LE(ErrorInUlps(found.sine, sinl(exact)), kFewUlps)
      << "sine of " << std::hexfloat << radians;
  ASSERT_LE(ErrorInUlps(found.cosine, cosl(exact)), kFewUlps)
      << "cosine of " << std::hexfloat << radians;
}

TEST(RadiansFromDegrees, RoundsToTheNearestFloat) {
  EXPECT_EQ(RadiansFromDegrees(0), 0.0F);
  EXPECT_EQ(RadiansFromDegrees(45), 0.785398163397447F);
  EXPECT_EQ(RadiansFromDegrees(90), 1.570796326794895F);
  EXPECT_EQ(RadiansFromDegrees(180), 3.14159265358979F);
  EXPECT_EQ(RadiansFromDegrees(270), 4.712388980384685F);
  EXPECT_EQ(RadiansFromDegrees(360), 6.28318530717958F);
  EXPECT_EQ(RadiansFromDegrees(-90), -1.570796326794895F);
  EXPECT_EQ(RadiansFromDegrees(1e30F), 1.74532925199432778e28F);
}

TEST(RadiansFromDegrees, MultipliesByTheShortenedPi) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int i = 0; i < 100'000; ++i) {
    const auto degrees = static_cast<float>(random.Below(1'000'000)) / 1000 - 500;
    const long double exact = static_cast<long double>(degrees) * 3.14159265358979L / 180;
    const float found = RadiansFromDegrees(degrees);
    const float step = std::nextafter(std::fabs(found), 1e30F) - std::fabs(found);
    // Half a unit, and a hair for the double in between.
    ASSERT_LE(std::fabs(static_cast<long double>(found) - exact),
              0.5000001L * static_cast<long double>(step))
        << degrees;
  }
}

TEST(SineCosineOf, RightAnglesAreThoseOfTheRoundedRadians) {
  // The float nearest to pi / 2 lies 4.37e-8 above it; so do its multiples.
  const SineCosine quarter = SineCosineOf(RadiansFromDegrees(90));
  EXPECT_DOUBLE_EQ(quarter.sine, 0.999999999999999);
  EXPECT_DOUBLE_EQ(quarter.cosine, -4.371139000186241e-08);
  const SineCosine half = SineCosineOf(RadiansFromDegrees(180));
  EXPECT_DOUBLE_EQ(half.sine, -8.742278000372475e-08);
  EXPECT_DOUBLE_EQ(half.cosine, -0.9999999999999962);
  const SineCosine none = SineCosineOf(0);
  EXPECT_EQ(none.sine, 0);
  EXPECT_EQ(none.cosine, 1);
}

TEST(SineCosineOf, IsAccurateAtWholeDegrees) {
  for (int degrees = -1080; degrees <= 1080; ++degrees) {
    ASSERT_NO_FATAL_FAILURE(ExpectAccurate(RadiansFromDegrees(static_cast<float>(degrees))));
  }
}

// Where a quarter turn is near, the digits that are left are few.
TEST(SineCosineOf, IsAccurateBesideQuarterTurns) {
  constexpr double kQuarterTurn = 1.57079632679489661923;
  for (int turns = 1; turns <= 100'000; ++turns) {
    const auto near = static_cast<float>(turns * kQuarterTurn);
    for (const float radians : {near, std::nextafter(near, 0.0F), std::nextafter(near, 1e9F)}) {
      ASSERT_NO_FATAL_FAILURE(ExpectAccurate(radians));
      ASSERT_NO_FATAL_FAILURE(ExpectAccurate(-radians));
    }
  }
}

TEST(SineCosineOf, IsAccurateBesideEighthTurns) {
  constexpr double kEighthTurn = 0.78539816339744830962;
  for (int turns = 1; turns <= 1000; ++turns) {
    const auto near = static_cast<float>(turns * kEighthTurn);
    for (const float radians : {near, std::nextafter(near, 0.0F), std::nextafter(near, 1e9F)}) {
      ASSERT_NO_FATAL_FAILURE(ExpectAccurate(radians));
    }
  }
}

TEST(SineCosineOf, IsAccurateAtEveryMagnitude) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int i = 0; i < 500'000; ++i) {
    const auto radians = std::bit_cast<float>(static_cast<std::uint32_t>(random.Bits()));
    if (!std::isfinite(radians)) continue;
    ASSERT_NO_FATAL_FAILURE(ExpectAccurate(radians));
  }
}

TEST(SineCosineOf, IsAccurateAtTheLargestAndTheSmallestAngles) {
  using Limits = std::numeric_limits<float>;
  for (int exponent = -149; exponent < 128; ++exponent) {
    const float power = std::ldexp(1.0F, exponent);
    for (const float radians : {power, std::nextafter(power, 0.0F), 1.5F * power}) {
      ASSERT_NO_FATAL_FAILURE(ExpectAccurate(radians));
    }
  }
  for (const float radians :
       {Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(), 0.0F}) {
    ASSERT_NO_FATAL_FAILURE(ExpectAccurate(radians));
  }
  // Of all floats the nearest to a multiple of pi / 2 for its size.
  ASSERT_NO_FATAL_FAILURE(ExpectAccurate(16367173.0F * 0x1p+72F));
}

TEST(SineCosineOf, ANegativeAngleHasTheOppositeSine) {
  for (const float radians : {0.0F, 0.3F, 1.0F, 2.0F, 3.0F, 4.0F, 5.0F, 6.0F, 1e20F}) {
    EXPECT_EQ(SineCosineOf(-radians).sine, -SineCosineOf(radians).sine);
    EXPECT_EQ(SineCosineOf(-radians).cosine, SineCosineOf(radians).cosine);
  }
}

TEST(SineCosineOf, WhatIsNotFiniteHasNeither) {
  for (const float radians :
       {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
        std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_TRUE(std::isnan(SineCosineOf(radians).sine));
    EXPECT_TRUE(std::isnan(SineCosineOf(radians).cosine));
  }
}

}  // namespace
}  // namespace folivar::test
