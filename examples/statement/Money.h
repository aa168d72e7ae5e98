#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// An amount of money as a whole number of cents, so that sums are exact.
using Cents = std::int64_t;

// 99,999,999,999.99. Keeping every amount and every sum within it, no addition can overflow.
inline constexpr Cents kLargestAmount = 9'999'999'999'999;

inline bool IsTooLarge(Cents amount) { return amount > kLargestAmount || amount < -kLargestAmount; }

// Reads "1234.56", "-0.5", "+7" or ".25". Throws std::invalid_argument with a text that goes on
// after the amount: "is not a number".
Cents ParseCents(std::string_view text);

// "1,234,567.89", "-0.05"
std::string FormatCents(Cents amount);
