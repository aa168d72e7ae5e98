#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "folivar/base/Decimal.h"

namespace folivar::test {
namespace {

// Room for ten digits and for the bytes behind a short number.
using Buffer = std::array<char, 16>;

std::string Decimal(std::uint32_t number) {
  Buffer buffer{};
  return {buffer.data(), WriteDecimal(buffer.data(), number)};
}

std::string FourDigits(std::uint32_t number) {
  Buffer buffer{};
  return {buffer.data(), WriteFourDigits(buffer.data(), number)};
}

std::string TenDigits(std::uint64_t number) {
  Buffer buffer{};
  return {buffer.data(), WriteTenDigits(buffer.data(), number)};
}

std::string Padded(std::uint64_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - digits.size(), '0') + digits;
}

TEST(Decimal, ANumberIsWrittenWithoutLeadingZeros) {
  for (std::uint32_t number = 0; number <= 20000; ++number) {
    ASSERT_EQ(Decimal(number), std::to_string(number));
  }
  for (std::uint32_t power = 10000; power <= 100'000'000; power *= 10) {
    EXPECT_EQ(Decimal(power - 1), std::to_string(power - 1));
    EXPECT_EQ(Decimal(power), std::to_string(power));
    EXPECT_EQ(Decimal(power + 1), std::to_string(power + 1));
  }
  EXPECT_EQ(Decimal(999'999'999), "999999999");
  EXPECT_EQ(Decimal(1'000'000'000), "1000000000");
  EXPECT_EQ(Decimal(std::numeric_limits<std::uint32_t>::max()), "4294967295");
}

TEST(Decimal, FourDigitsHaveLeadingZeros) {
  for (std::uint32_t number = 0; number < 10000; ++number) {
    ASSERT_EQ(FourDigits(number), Padded(number, 4));
  }
}

TEST(Decimal, TenDigitsHaveLeadingZeros) {
  EXPECT_EQ(TenDigits(0), "0000000000");
  EXPECT_EQ(TenDigits(9'999'999'999), "9999999999");
  for (std::uint64_t power = 1; power <= 1'000'000'000; power *= 10) {
    EXPECT_EQ(TenDigits(power - 1), Padded(power - 1, 10));
    EXPECT_EQ(TenDigits(power), Padded(power, 10));
  }
}

}  // namespace
}  // namespace folivar::test
