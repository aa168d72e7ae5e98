#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace folivar {

// One of the maps in a font's table "cmap": which glyph a character has, or a code of whatever else
// the map goes by. Read are the formats that fonts for Windows use: 0, 2 (of it the codes of one
// byte), 4, 6 and 12. Where a map ends early, so do its characters.
class CharacterMap {
 public:
  // What ClaimsCharacters looks at, in bytes.
  static constexpr std::uint32_t kStart = 16;
  // The largest that is of use: format 12 with a group for each of all characters.
  static constexpr std::uint32_t kLargest = 16 + 12 * 0x110000;

  CharacterMap() = default;
  // From the map's first byte on; what stands behind the map does no harm.
  explicit CharacterMap(std::vector<unsigned char> bytes) : bytes_(std::move(bytes)) {}

  // Whether its format is read and its start tells of characters; they may be none all the same.
  bool ClaimsCharacters() const;

  // 0 for none.
  std::uint32_t GlyphOf(std::uint32_t character) const;

 private:
  std::vector<unsigned char> bytes_;
};

}  // namespace folivar
