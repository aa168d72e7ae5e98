#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace folivar {

// Whole numbers as digits, written forward without a detour through a string. These run several
// times for every drawing call.

namespace decimal {

// "00" to "99", one behind the other.
inline constexpr std::array<char, 200> kPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

inline char* WritePair(char* out, std::uint32_t pair) {
  std::memcpy(out, &kPairs[2 * pair], 2);
  return out + 2;
}

}  // namespace decimal

// `number` below 10000, with leading zeros.
inline char* WriteFourDigits(char* out, std::uint32_t number) {
  return decimal::WritePair(decimal::WritePair(out, number / 100), number % 100);
}

// Without leading zeros; at most ten digits.
inline char* WriteDecimal(char* out, std::uint32_t number) {
  if (number < 10) {
    *out = static_cast<char>('0' + number);
    return out + 1;
  }
  if (number < 100) return decimal::WritePair(out, number);
  if (number < 10000) {
    const std::uint32_t high = number / 100;
    return decimal::WritePair(WriteDecimal(out, high), number % 100);
  }
  return WriteFourDigits(WriteDecimal(out, number / 10000), number % 10000);
}

// Exactly ten digits with leading zeros; `number` below 10^10.
inline char* WriteTenDigits(char* out, std::uint64_t number) {
  out = decimal::WritePair(out, static_cast<std::uint32_t>(number / 100000000));
  const auto rest = static_cast<std::uint32_t>(number % 100000000);
  return WriteFourDigits(WriteFourDigits(out, rest / 10000), rest % 10000);
}

}  // namespace folivar
