#pragma once

#include <array>
#include <cstddef>
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

// 0 to 999 without leading zeros, each in a word of its own.
struct Short {
  std::array<char, 3> digits{};
  std::uint8_t size = 0;
};
inline constexpr std::array<Short, 1000> kShort = [] {
  std::array<Short, 1000> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    Short& number = numbers[i];
    if (i >= 100) number.digits[number.size++] = static_cast<char>('0' + i / 100);
    if (i >= 10) number.digits[number.size++] = static_cast<char>('0' + i / 10 % 10);
    number.digits[number.size++] = static_cast<char>('0' + i % 10);
  }
  return numbers;
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

// Without leading zeros; at most ten digits. Of a short number four bytes are written, whatever its
// length: the copy is faster than the choice.
inline char* WriteDecimal(char* out, std::uint32_t number) {
  if (number < 1000) {
    const decimal::Short& digits = decimal::kShort[number];
    std::memcpy(out, &digits, sizeof digits);
    return out + digits.size;
  }
  if (number < 10000) return WriteFourDigits(out, number);
  return WriteFourDigits(WriteDecimal(out, number / 10000), number % 10000);
}

// Exactly ten digits with leading zeros; `number` below 10^10.
inline char* WriteTenDigits(char* out, std::uint64_t number) {
  out = decimal::WritePair(out, static_cast<std::uint32_t>(number / 100000000));
  const auto rest = static_cast<std::uint32_t>(number % 100000000);
  return WriteFourDigits(WriteFourDigits(out, rest / 10000), rest % 10000);
}

}  // namespace folivar
