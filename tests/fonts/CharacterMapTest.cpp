#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "folivar/fonts/CharacterMap.h"
#include "tests/support/FontBuilder.h"

namespace folivar::test {
namespace {

CharacterMap Map(const std::string& bytes) {
  return CharacterMap(std::vector<unsigned char>(bytes.begin(), bytes.end()));
}

std::string BytesMap(unsigned char code, char glyph) {
  std::string map = U16(0) + U16(262) + U16(0) + std::string(256, '\0');
  map[6 + code] = glyph;
  return map;
}

// A delta of 2 for "A" and "B"; of "X" and "Y" the glyphs are listed.
std::string Segments() {
  return SegmentsMap({{'A', 'B', 3}, {.first = 'X', .last = 'Y', .glyphs = {9, 0}}});
}

TEST(CharacterMap, IsEmptyAtFirst) {
  EXPECT_FALSE(CharacterMap().ClaimsCharacters());
  EXPECT_EQ(CharacterMap().GlyphOf('A'), 0U);
}

TEST(CharacterMap, ReadsAGlyphForEachByte) {
  const CharacterMap map = Map(BytesMap(0xFF, 7));
  EXPECT_TRUE(map.ClaimsCharacters());
  EXPECT_EQ(map.GlyphOf(0xFF), 7U);
  EXPECT_EQ(map.GlyphOf(0xFE), 0U);
  EXPECT_EQ(map.GlyphOf(0x100), 0U);
}

TEST(CharacterMap, ReadsSegments) {
  const CharacterMap map = Map(Segments());
  EXPECT_TRUE(map.ClaimsCharacters());
  EXPECT_EQ(map.GlyphOf('@'), 0U);
  EXPECT_EQ(map.GlyphOf('A'), 3U);
  EXPECT_EQ(map.GlyphOf('B'), 4U);
  EXPECT_EQ(map.GlyphOf('C'), 0U);
  EXPECT_EQ(map.GlyphOf('X'), 9U);
  EXPECT_EQ(map.GlyphOf('Y'), 0U) << "listed as none";
  EXPECT_EQ(map.GlyphOf(0x10041), 0U) << "beyond the basic plane";
}

TEST(CharacterMap, ReadsAnArray) {
  const CharacterMap map = Map(ArrayMap('A', {5, 0, 6}));
  EXPECT_TRUE(map.ClaimsCharacters());
  EXPECT_EQ(map.GlyphOf('A'), 5U);
  EXPECT_EQ(map.GlyphOf('B'), 0U);
  EXPECT_EQ(map.GlyphOf('C'), 6U);
  EXPECT_EQ(map.GlyphOf('D'), 0U);
}

TEST(CharacterMap, ReadsGroups) {
  const CharacterMap map = Map(GroupsMap({{'A', 'C', 1}, {0x1F600, 0x1F601, 8}}));
  EXPECT_TRUE(map.ClaimsCharacters());
  EXPECT_EQ(map.GlyphOf('C'), 3U);
  EXPECT_EQ(map.GlyphOf('D'), 0U);
  EXPECT_EQ(map.GlyphOf(0x1F601), 9U);
}

TEST(CharacterMap, OtherFormatsHaveNoCharacters) {
  for (const std::uint32_t format : {1U, 3U, 8U, 10U, 13U, 14U, 0xFFFFU}) {
    const CharacterMap map = Map(U16(format) + std::string(300, '\x01'));
    EXPECT_FALSE(map.ClaimsCharacters()) << format;
    EXPECT_EQ(map.GlyphOf('A'), 0U) << format;
  }
}

TEST(CharacterMap, AnEmptyOneClaimsNone) {
  EXPECT_FALSE(Map(ArrayMap('A', {})).ClaimsCharacters());
  EXPECT_FALSE(Map(GroupsMap({})).ClaimsCharacters());
  EXPECT_FALSE(Map(U16(4) + std::string(40, '\0')).ClaimsCharacters());
}

// Whatever of it is missing, nothing beyond its end is read.
TEST(CharacterMap, OneThatEndsEarlyHasTheCharactersThatAreThere) {
  for (const std::string& whole :
       {BytesMap('A', 3), Segments(), ArrayMap('A', {3}), GroupsMap({{'A', 'A', 3}})}) {
    for (std::size_t size = 0; size < whole.size(); ++size) {
      const CharacterMap map = Map(whole.substr(0, size));
      map.ClaimsCharacters();
      EXPECT_TRUE(map.GlyphOf('A') == 0 || map.GlyphOf('A') == 3) << size;
      EXPECT_EQ(map.GlyphOf(0xFFFF), 0U) << size;
    }
    EXPECT_EQ(Map(whole).GlyphOf('A'), 3U);
  }
}

}  // namespace
}  // namespace folivar::test
