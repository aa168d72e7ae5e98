#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace folivar::test {

// Numbers as font files have them: the high byte first.
std::string U16(std::uint32_t value);
std::string U32(std::uint32_t value);
void SetU16(std::string& bytes, std::size_t offset, std::uint32_t value);
void SetU32(std::string& bytes, std::size_t offset, std::uint32_t value);
std::uint32_t U16In(std::string_view bytes, std::size_t offset);
std::uint32_t U32In(std::string_view bytes, std::size_t offset);

// A TrueType font file in the making. It starts as a small sound font, "Test Sans": an em of 1000
// units, eight glyphs without outlines whose widths are 100, 101, ... 107 units, the letters "A"
// to "G" being glyphs 1 to 7.
class FontBuilder {
 public:
  FontBuilder();
  // Starts as the font of a file.
  explicit FontBuilder(std::string_view file);

  // Lists the tables in the order of their tags, each with its checksum.
  std::string Build() const;

  std::uint32_t version = 0x00010000;
  std::map<std::string, std::string> tables;  // the bytes, by their tags
};

// A collection (.ttc). Equal tables are in it once, shared by the fonts.
std::string BuildCollection(const std::vector<FontBuilder>& fonts);

// Where the record of a table begins in a font file: its tag, then at 4 the checksum, at 8 the
// offset, at 12 the length. Throws std::runtime_error when there is none.
std::size_t RecordOf(std::string_view file, std::string_view tag);

// The sum of the big-endian words; bytes that are missing in the last one count as 0.
std::uint32_t ChecksumOf(std::string_view bytes);

// Table "name": one name in UTF-16 each. 1 is the family, 3 the platform of Windows, 0x0409
// English.
struct FontName {
  std::uint32_t platform = 3;
  std::uint32_t encoding = 1;
  std::uint32_t language = 0x0409;
  std::uint32_t name = 1;
  std::string bytes;
};
std::string NameTable(const std::vector<FontName>& names);
std::string BigEndian(std::u16string_view text);

// Table "cmap", and the character maps in it.
struct FontMap {
  std::uint32_t platform;
  std::uint32_t encoding;
  std::string bytes;
};
std::string MapTable(const std::vector<FontMap>& maps);

// Format 4. A segment's glyphs are listed, or follow each other from the first on.
struct MapSegment {
  std::uint32_t first;
  std::uint32_t last;
  std::uint32_t firstGlyph = 0;
  std::vector<std::uint32_t> glyphs = {};
};
std::string SegmentsMap(const std::vector<MapSegment>& segments);

// Format 6.
std::string ArrayMap(std::uint32_t first, const std::vector<std::uint32_t>& glyphs);

// Format 12; glyphs follow each other.
std::string GroupsMap(const std::vector<MapSegment>& groups);

}  // namespace folivar::test
