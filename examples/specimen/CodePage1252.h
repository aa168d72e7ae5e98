#pragma once

#include <array>
#include <cstddef>
#include <vector>

// A character of Windows code page 1252, in which the text of a PDF page is written.
struct CodedCharacter {
  unsigned code;
  char16_t character;
};

// The printable ones, by their codes: 32 to 255 without the delete character and without five codes
// that stand for nothing.
inline std::vector<CodedCharacter> PrintableCharacters() {
  constexpr unsigned kSpecial = 0x80;
  // From 0x80 on; elsewhere codes are those of Unicode.
  constexpr std::array<char16_t, 32> kSpecials = {
      u'\u20AC', 0,         u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
      u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0,         u'\u017D', 0,
      0,         u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
      u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0,         u'\u017E', u'\u0178',
  };
  constexpr unsigned kDelete = 0x7F;

  std::vector<CodedCharacter> characters;
  for (unsigned code = 32; code < 256; ++code) {
    const std::size_t special = code - kSpecial;  // huge below it
    const char16_t character =
        special < kSpecials.size() ? kSpecials[special] : static_cast<char16_t>(code);
    if (character != 0 && code != kDelete) characters.push_back({code, character});
  }
  return characters;
}
