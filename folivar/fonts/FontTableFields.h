#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "folivar/base/BigEndian.h"

namespace folivar {

// The name of a table as the number that it is in a file.
constexpr std::uint32_t TagOf(std::string_view name) {
  std::uint32_t tag = 0;
  for (const char letter : name) tag = tag << 8 | static_cast<unsigned char>(letter);
  return tag;
}

// A font begins with the list of its tables.
inline constexpr std::uint32_t kFontHeader = 12;   // version, table count, three to search by
inline constexpr std::uint32_t kTableRecord = 16;  // tag, checksum, offset, length

// The tables of a TrueType font as far as they are read: as many bytes as hold the fields, which
// are named here by their offsets. What a font lacks reads as zeros.

// The font as a whole.
struct HeadTable {
  static constexpr std::string_view kTag = "head";
  static constexpr std::size_t kSize = 54;

  // What makes the sum of the whole file come out.
  static constexpr std::size_t kChecksumAdjustment = 8;

  std::uint16_t UnitsPerEm() const { return U16At(bytes, 18); }
  // The box around all glyphs.
  std::int16_t XMin() const { return S16At(bytes, 36); }
  std::int16_t YMin() const { return S16At(bytes, 38); }
  std::int16_t XMax() const { return S16At(bytes, 40); }
  std::int16_t YMax() const { return S16At(bytes, 42); }
  bool IsBold() const { return (U16At(bytes, 44) & 0x01) != 0; }
  bool IsItalic() const { return (U16At(bytes, 44) & 0x02) != 0; }

  std::array<unsigned char, kSize> bytes = {};
};

// Lines of text from left to right.
struct HheaTable {
  static constexpr std::string_view kTag = "hhea";
  static constexpr std::size_t kSize = 36;

  std::int16_t Ascender() const { return S16At(bytes, 4); }
  std::int16_t Descender() const { return S16At(bytes, 6); }  // below the baseline: negative
  // How many glyphs have a width of their own in table "hmtx".
  std::uint16_t WidthCount() const { return U16At(bytes, 34); }

  std::array<unsigned char, kSize> bytes = {};
};

// How much there is of everything.
struct MaxpTable {
  static constexpr std::string_view kTag = "maxp";
  static constexpr std::size_t kSize = 6;

  std::uint16_t GlyphCount() const { return U16At(bytes, 4); }

  std::array<unsigned char, kSize> bytes = {};
};

// What Windows and OS/2 want to know.
struct OS2Table {
  static constexpr std::string_view kTag = "OS/2";
  static constexpr std::size_t kSize = 86;

  // The classes of weight and width: 400 and 5 are normal, 700 is bold.
  std::uint16_t Weight() const { return U16At(bytes, 4); }
  std::uint16_t Width() const { return U16At(bytes, 6); }
  // Under which licence the font may be embedded.
  std::uint16_t Licence() const { return U16At(bytes, 8); }
  std::int16_t StrikeoutSize() const { return S16At(bytes, 26); }
  // Of the class of symbols, the high byte of two that say which family the font resembles.
  bool IsSymbolic() const { return bytes[30] == 12; }
  bool IsBold() const { return (U16At(bytes, 62) & 0x20) != 0; }
  bool IsItalic() const { return (U16At(bytes, 62) & 0x01) != 0; }
  std::uint16_t FirstCharacter() const { return U16At(bytes, 64); }
  std::uint16_t LastCharacter() const { return U16At(bytes, 66); }
  std::uint16_t WinAscent() const { return U16At(bytes, 74); }
  std::uint16_t WinDescent() const { return U16At(bytes, 76); }  // counted downwards
  // Of the code pages that the font claims, symbols are the only one.
  bool HasSymbolCharacterSet() const { return U32At(bytes, 78) == 0x80000000; }

  std::array<unsigned char, kSize> bytes = {};
};

// What printers of the PCL language want to know.
struct PCLTTable {
  static constexpr std::string_view kTag = "PCLT";
  static constexpr std::size_t kSize = 54;

  std::uint16_t CapHeight() const { return U16At(bytes, 16); }

  std::array<unsigned char, kSize> bytes = {};
};

// The font is a SystemFace or a TrueTypeFontTables.
template <class Table, class Font>
Table TableOf(Font& font) {
  Table table;
  font.ReadTable(Table::kTag, table.bytes);
  return table;
}

}  // namespace folivar
