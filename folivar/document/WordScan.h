#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace folivar {

// Searching text eight bytes at a time. Every text drawn is searched for bytes that need care, and
// nearly none has any.

namespace wordscan {

inline constexpr std::uint64_t kOnes = 0x0101010101010101;
inline constexpr std::uint64_t kHighBits = 0x8080808080808080;

inline std::uint64_t Load(const char* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

// Not 0 when some byte of the word is 0x80 or above.
constexpr std::uint64_t HasHighByte(std::uint64_t word) { return word & kHighBits; }

// Not 0 when some byte of the word is below `limit`, which is at most 0x80.
constexpr std::uint64_t HasByteBelow(std::uint64_t word, unsigned char limit) {
  return (word - kOnes * limit) & ~word & kHighBits;
}

constexpr std::uint64_t HasByte(std::uint64_t word, char byte) {
  return HasByteBelow(word ^ (kOnes * static_cast<unsigned char>(byte)), 1);
}

}  // namespace wordscan

// Whether `test` is not 0 for some word of the bytes. A last word that is not full is filled up
// with blanks.
template <class Test>
bool AnyWord(std::string_view bytes, Test test) {
  std::uint64_t seen = 0;
  std::size_t i = 0;
  for (; i + 8 <= bytes.size(); i += 8) seen |= test(wordscan::Load(bytes.data() + i));
  if (i < bytes.size()) {
    std::uint64_t word = wordscan::kOnes * ' ';
    std::memcpy(&word, bytes.data() + i, bytes.size() - i);
    seen |= test(word);
  }
  return seen != 0;
}

}  // namespace folivar
