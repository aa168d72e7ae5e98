#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace folivar {

// Numbers in font files: the high byte first. The bytes must be there.

inline std::uint16_t U16At(std::span<const unsigned char> bytes, std::size_t offset) {
  return static_cast<std::uint16_t>(bytes[offset] << 8 | bytes[offset + 1]);
}

inline std::int16_t S16At(std::span<const unsigned char> bytes, std::size_t offset) {
  return static_cast<std::int16_t>(U16At(bytes, offset));
}

inline std::uint32_t U32At(std::span<const unsigned char> bytes, std::size_t offset) {
  return static_cast<std::uint32_t>(U16At(bytes, offset)) << 16 | U16At(bytes, offset + 2);
}

}  // namespace folivar
