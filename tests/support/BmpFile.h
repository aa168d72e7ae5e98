#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace folivar::test {

// A Windows bitmap put together by hand, sound or not.
struct BmpFile {
  std::int32_t width = 1;
  std::int32_t height = 1;
  std::uint16_t bits = 24;
  std::string palette = {};  // blue, green, red and 0 for each colour
  std::string pixels = {};   // rows from the bottom up, each padded to four bytes
  std::string gap = {};      // between palette and pixels

  std::uint32_t headerSize = 40;
  std::uint32_t compression = 0;
  std::uint32_t colorsUsed = 0;
  // Where the pixels begin, if not where they do.
  std::optional<std::uint32_t> offset = {};

  std::string Bytes() const;
};

// "\x00\x01\xFF\x00" for 0xFF0100, red in the highest byte: an entry of a palette.
std::string PaletteEntry(std::uint32_t rgb);

// Writes a blank picture of one bit a pixel to OutputPath(name).
std::filesystem::path WriteBlankBmp(std::string_view name, std::int32_t width, std::int32_t height);

}  // namespace folivar::test
