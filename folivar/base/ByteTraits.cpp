#include "folivar/base/ByteTraits.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace folivar {
namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

// The high bit of some byte is set when some byte of the word is below `limit`, at most 0x80.
constexpr std::uint64_t BytesBelow(std::uint64_t word, unsigned char limit) {
  return (word - kOnes * limit) & ~word;
}

constexpr std::uint64_t BytesEqual(std::uint64_t word, unsigned char byte) {
  return BytesBelow(word ^ (kOnes * byte), 1);
}

// The high bit of some byte is set when some byte of the word is \ ( or ). The brackets differ in
// the lowest bit.
constexpr std::uint64_t Escapes(std::uint64_t word) {
  return BytesEqual(word, '\\') | BytesEqual(word | kOnes, ')');
}

}  // namespace

ByteTraits TraitsOf(std::string_view bytes) {
  std::uint64_t all = 0;
  std::uint64_t controls = 0;
  std::uint64_t escapes = 0;
  const auto look = [&](std::uint64_t word) {
    all |= word;
    controls |= BytesBelow(word, ' ');
    escapes |= Escapes(word);
  };
  std::size_t place = 0;
  std::uint64_t word = 0;
  for (; place + sizeof word <= bytes.size(); place += sizeof word) {
    std::memcpy(&word, bytes.data() + place, sizeof word);
    look(word);
  }
  if (place < bytes.size()) {
    word = kOnes * ' ';
    std::memcpy(&word, bytes.data() + place, bytes.size() - place);
    look(word);
  }
  return {(all & kHighBits) != 0, (controls & kHighBits) != 0, (escapes & kHighBits) != 0};
}

std::size_t FindEscape(std::string_view bytes, std::size_t from) {
  std::size_t place = from;
  std::uint64_t word = 0;
  for (; place + sizeof word <= bytes.size(); place += sizeof word) {
    std::memcpy(&word, bytes.data() + place, sizeof word);
    if ((Escapes(word) & kHighBits) != 0) break;
  }
  while (place < bytes.size() && !NeedsEscape(bytes[place])) ++place;
  return place;
}

}  // namespace folivar
