#include "folivar/fonts/CharacterMap.h"

#include <algorithm>
#include <cstddef>

#include "folivar/base/BigEndian.h"

namespace folivar {
namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::uint16_t kNoFormat = 0xFFFF;

std::uint32_t GlyphInSegments(const Bytes& map, std::uint32_t character) {
  // Format 4: segment count * 2 at 6; from 14 on the segments' ends, two bytes, then their starts,
  // deltas, and offsets into the glyphs.
  if (map.size() < 16 || character > 0xFFFF) return 0;
  const std::size_t column = U16At(map, 6) & 0xFFFEU;
  const std::size_t starts = 14 + column + 2;
  if (starts + 3 * column > map.size()) return 0;
  for (std::size_t segment = 0; segment < column; segment += 2) {
    if (U16At(map, 14 + segment) < character) continue;
    const std::uint32_t start = U16At(map, starts + segment);
    if (start > character) return 0;
    const std::uint32_t delta = U16At(map, starts + column + segment);
    const std::size_t place = starts + 2 * column + segment;
    const std::size_t offset = U16At(map, place);
    if (offset == 0) return (character + delta) & 0xFFFF;
    const std::size_t glyph = place + offset + 2 * (character - start);
    if (glyph + 2 > map.size() || U16At(map, glyph) == 0) return 0;
    return (U16At(map, glyph) + delta) & 0xFFFF;
  }
  return 0;
}

std::uint32_t GlyphInArray(const Bytes& map, std::uint32_t character) {
  // Format 6: the first character at 6, their number at 8, a glyph for each from 10 on.
  if (map.size() < 10) return 0;
  const std::uint32_t first = U16At(map, 6);
  if (character < first || character - first >= U16At(map, 8)) return 0;
  const std::size_t glyph = 10 + 2 * std::size_t{character - first};
  return glyph + 2 <= map.size() ? U16At(map, glyph) : 0;
}

std::uint32_t GlyphInGroups(const Bytes& map, std::uint32_t character) {
  // Format 12: the number of groups at 12; from 16 on their first and last character and the glyph
  // of the first.
  constexpr std::size_t kGroup = 12;
  if (map.size() < 16) return 0;
  std::size_t begin = 0;
  std::size_t end = std::min<std::size_t>(U32At(map, 12), (map.size() - 16) / kGroup);
  while (begin < end) {
    const std::size_t middle = begin + (end - begin) / 2;
    const std::size_t group = 16 + kGroup * middle;
    if (character < U32At(map, group)) {
      end = middle;
    } else if (character > U32At(map, group + 4)) {
      begin = middle + 1;
    } else {
      return U32At(map, group + 8) + (character - U32At(map, group));
    }
  }
  return 0;
}

std::uint32_t GlyphInBytes(const Bytes& map, std::uint32_t character) {
  // Format 0: a glyph, one byte, for each of 256 codes from 6 on.
  return character < 256 && 6 + character < map.size() ? map[6 + character] : 0;
}

std::uint32_t GlyphInSubheaders(const Bytes& map, std::uint32_t character) {
  // Format 2: from 6 on, for each of 256 bytes, what it begins; 0 for one that stands alone. Those
  // are in the first subheader, at 518: the first code, their number, a delta, and the offset of
  // the glyphs from its own place.
  constexpr std::size_t kSubheader = 6 + 2 * 256;
  if (map.size() < kSubheader + 8 || character > 0xFF || U16At(map, 6 + 2 * character) != 0) {
    return 0;
  }
  const std::uint32_t first = U16At(map, kSubheader);
  if (character < first || character - first >= U16At(map, kSubheader + 2)) return 0;
  const std::size_t place = kSubheader + 6;
  const std::size_t glyph = place + U16At(map, place) + 2 * std::size_t{character - first};
  if (glyph + 2 > map.size() || U16At(map, glyph) == 0) return 0;
  return (U16At(map, glyph) + U16At(map, kSubheader + 4)) & 0xFFFF;
}

}  // namespace

bool CharacterMap::ClaimsCharacters() const {
  const std::size_t size = bytes_.size();
  switch (size < 2 ? kNoFormat : U16At(bytes_, 0)) {
    case 0:
    case 2:
      return true;
    case 4:
      return size >= 8 && U16At(bytes_, 6) > 1;
    case 6:
      return size >= 10 && U16At(bytes_, 8) != 0;
    case 12:
      return size >= 16 && U32At(bytes_, 12) != 0;
    default:
      return false;
  }
}

std::uint32_t CharacterMap::GlyphOf(std::uint32_t character) const {
  switch (bytes_.size() < 2 ? kNoFormat : U16At(bytes_, 0)) {
    case 0:
      return GlyphInBytes(bytes_, character);
    case 2:
      return GlyphInSubheaders(bytes_, character);
    case 4:
      return GlyphInSegments(bytes_, character);
    case 6:
      return GlyphInArray(bytes_, character);
    case 12:
      return GlyphInGroups(bytes_, character);
    default:
      return 0;
  }
}

}  // namespace folivar
