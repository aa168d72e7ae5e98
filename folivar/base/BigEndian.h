#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace folivar {

// Numbers in fonts and pictures: the high byte first. Bytes that are read must be there.

inline std::uint16_t U16At(std::span<const unsigned char> bytes, std::size_t offset) {
  return static_cast<std::uint16_t>(bytes[offset] << 8 | bytes[offset + 1]);
}

inline std::int16_t S16At(std::span<const unsigned char> bytes, std::size_t offset) {
  return static_cast<std::int16_t>(U16At(bytes, offset));
}

inline std::uint32_t U32At(std::span<const unsigned char> bytes, std::size_t offset) {
  return static_cast<std::uint32_t>(U16At(bytes, offset)) << 16 | U16At(bytes, offset + 2);
}

inline void AppendU16(std::string& out, std::uint32_t value) {
  out += static_cast<char>(value >> 8 & 0xFF);
  out += static_cast<char>(value & 0xFF);
}

inline void AppendU32(std::string& out, std::uint32_t value) {
  AppendU16(out, value >> 16);
  AppendU16(out, value);
}

}  // namespace folivar
