#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/fonts/TrueTypeFontTables.h"
#include "tests/support/Content.h"
#include "tests/support/FontBuilder.h"
#include "tests/support/FreeTypeFace.h"
#include "tests/support/MemorySource.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

using Widths = std::array<std::int32_t, 256>;

// A font in a file, with the file. Built from one that has to be sound for FreeType too, unless it
// is said to be damaged.
class Font {
 public:
  explicit Font(std::string bytes, std::uint32_t index = 0)
      : bytes_(std::move(bytes)), source_(bytes_), tables_(source_, "some.ttf", index) {}
  explicit Font(const FontBuilder& builder) : Font(builder.Build()) {}

  const TrueTypeFontTables* operator->() const { return &tables_; }

 private:
  std::string bytes_;
  MemorySource source_;
  TrueTypeFontTables tables_;
};

// The text of the error 321 that reading the file raises.
std::string RefusalOf(
    const std::string& bytes, const std::function<void(const Font&)>& use = [](const Font&) {}) {
  const auto read = [&] { use(Font(bytes)); };
  EXPECT_EQ(ErrorNumberOf(read), Error::kInvalidFileFormat);
  return ErrorTextOf(read);
}

std::string Damaged(const std::string& how) { return "file 'some.ttf': damaged font: " + how; }

FontBuilder WithMaps(const std::vector<FontMap>& maps) {
  FontBuilder font;
  font.tables["cmap"] = MapTable(maps);
  return font;
}

FontBuilder WithNames(const std::vector<FontName>& names) {
  FontBuilder font;
  font.tables["name"] = NameTable(names);
  return font;
}

// Widths of 100, that of glyph 0, but for these.
Widths WidthsWith(const std::vector<std::pair<unsigned, std::int32_t>>& others) {
  Widths widths;
  widths.fill(100);
  for (const auto& [code, width] : others) widths.at(code) = width;
  return widths;
}

// What our reader and FreeType agree on, and the rules of the test expect.
void ExpectWidths(const FontBuilder& builder, const Widths& expected) {
  EXPECT_EQ(Font(builder)->Widths(), expected);
  EXPECT_EQ(FreeTypeFace(builder.Build()).Widths(), expected) << "FreeType";
}

TEST(TrueTypeFontTables, InstalledFontsReadAsInFreeType) {
  for (const auto& path : PackagedFonts()) {
    SCOPED_TRACE(path);
    const std::string bytes = ReadBytes(path);
    const Font font(bytes);
    const FreeTypeFace expected(bytes);
    MemorySource source(bytes);
    EXPECT_EQ(TrueTypeFontTables::FontCount(source, "some.ttf"), 1U);
    EXPECT_TRUE(font->HasTrueTypeOutlines());
    EXPECT_EQ(font->FamilyName().Utf8(), expected.Family());
    EXPECT_EQ(font->IsBold(), expected.IsBold());
    EXPECT_EQ(font->IsItalic(), expected.IsItalic());
    EXPECT_EQ(font->Widths(), expected.Widths());
    const SystemFace::TextMetrics metrics = font->Metrics();
    EXPECT_EQ(metrics.ascent, expected.Ascent());
    EXPECT_EQ(metrics.descent, expected.Descent());
    std::string head(54, '\0');
    font->ReadTable("head", {reinterpret_cast<unsigned char*>(head.data()), head.size()});
    EXPECT_EQ(U16In(head, 18), static_cast<std::uint32_t>(expected.UnitsPerEm()));
    for (std::size_t side = 0; side < 4; ++side) {
      EXPECT_EQ(static_cast<std::int16_t>(U16In(head, 36 + 2 * side)), expected.Box().at(side));
    }
    EXPECT_TRUE(font->Program() == bytes);
  }
}

TEST(TrueTypeFontTables, MeasuresAreThousandthsOfTheEmWithHalvesUpwards) {
  FontBuilder builder;
  SetU16(builder.tables["head"], 18, 2000);
  SetU16(builder.tables["OS/2"], 74, 1801);
  SetU16(builder.tables["OS/2"], 76, 399);
  SetU16(builder.tables["hmtx"], 4, 0xFFFF);
  Font font(builder);
  EXPECT_EQ(font->Metrics().ascent, 901);   // 900.5
  EXPECT_EQ(font->Metrics().descent, 200);  // 199.5
  EXPECT_EQ(font->Widths()['A'], 32768);    // 32767.5
  EXPECT_EQ(font->Widths()['B'], 51);
  EXPECT_EQ(font->Widths()['C'], 52);  // 51.5
  EXPECT_EQ(font->Widths(), FreeTypeFace(builder.Build()).Widths());

  builder.tables.erase("OS/2");
  SetU16(builder.tables["hhea"], 6, 3);  // a descent of -1.5
  EXPECT_EQ(Font(builder)->Metrics().descent, -1);
}

TEST(TrueTypeFontTables, MeasuresAreRoundedTo64thsFirst) {
  FontBuilder builder;
  SetU16(builder.tables["head"], 18, 2048);
  SetU16(builder.tables["hmtx"], 4, 683);  // 333.496, in 64ths 333.5
  SetU16(builder.tables["hmtx"], 8, 682);  // 333.008
  EXPECT_EQ(Font(builder)->Widths()['A'], 334);
  EXPECT_EQ(Font(builder)->Widths()['B'], 333);
  EXPECT_EQ(Font(builder)->Widths(), FreeTypeFace(builder.Build()).Widths());
}

TEST(TrueTypeFontTables, GlyphsBehindTheLastWidthHaveThatWidth) {
  FontBuilder builder;
  SetU16(builder.tables["hhea"], 34, 3);
  builder.tables["hmtx"].resize(12 + 2 * 5);
  ExpectWidths(
      builder,
      WidthsWith(
          {{'A', 101}, {'B', 102}, {'C', 102}, {'D', 102}, {'E', 102}, {'F', 102}, {'G', 102}}));
}

TEST(TrueTypeFontTables, GlyphsThatTheFontDoesNotHaveHaveTheWidthOfGlyph0) {
  ExpectWidths(WithMaps({{3, 1, SegmentsMap({{'A', 'C', 6}})}}),
               WidthsWith({{'A', 106}, {'B', 107}}));
}

TEST(TrueTypeFontTables, AFontWithoutWindowsMetricsHasThoseOfTheTableHhea) {
  FontBuilder builder;
  builder.tables.erase("OS/2");
  EXPECT_EQ(Font(builder)->Metrics().ascent, 750);
  EXPECT_EQ(Font(builder)->Metrics().descent, 250);
  builder = FontBuilder();
  SetU16(builder.tables["OS/2"], 74, 0);
  SetU16(builder.tables["OS/2"], 76, 0);
  EXPECT_EQ(Font(builder)->Metrics().ascent, 750);
  EXPECT_EQ(Font(builder)->Metrics().descent, 250);
}

TEST(TrueTypeFontTables, FirstAndLastCodeComeFromTheTableOS2) {
  const auto codes = [](std::uint32_t first, std::uint32_t last) {
    FontBuilder builder;
    SetU16(builder.tables["OS/2"], 64, first);
    SetU16(builder.tables["OS/2"], 66, last);
    const SystemFace::TextMetrics metrics = Font(builder)->Metrics();
    return std::pair<int, int>(metrics.firstCharacter, metrics.lastCharacter);
  };
  EXPECT_EQ(codes(0x20, 0x7E), std::pair(0x1E, 0x7E));
  EXPECT_EQ(codes(0, 0xFF), std::pair(0, 0xFF));
  EXPECT_EQ(codes(1, 0x100), std::pair(1, 0xFF));
  EXPECT_EQ(codes(2, 0xFFFF), std::pair(0, 0xFF));
  EXPECT_EQ(codes(0xFF, 0xFF), std::pair(0xFD, 0xFF));
  EXPECT_EQ(codes(0x100, 0x200), std::pair(0x1E, 0xFF));
}

TEST(TrueTypeFontTables, AFontWithSymbolsHasAllCodes) {
  const FontMap symbols = {3, 0, SegmentsMap({{0xF041, 0xF042, 1}})};
  FontBuilder ofTheSet;
  SetU32(ofTheSet.tables["OS/2"], 78, 0x80000000);
  for (const FontBuilder& builder :
       {WithMaps({symbols}), WithMaps({{3, 1, SegmentsMap({{'A', 'G', 1}})}, symbols}), ofTheSet}) {
    const Font font(builder);
    EXPECT_EQ(font->Metrics().firstCharacter, 0x1E);
    EXPECT_EQ(font->Metrics().lastCharacter, 0xFF);
  }
  EXPECT_EQ(Font(FontBuilder())->Metrics().lastCharacter, 'G');
}

TEST(TrueTypeFontTables, WhatAFontLacksReadsAsZeros) {
  FontBuilder builder;
  builder.tables.erase("OS/2");
  const Font font(builder);
  std::array<unsigned char, 86> bytes = {};
  font->ReadTable("OS/2", bytes);
  font->ReadTable("PCLT", bytes);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), 0), 86);
  EXPECT_FALSE(font->IsBold());
}

TEST(TrueTypeFontTables, ATableThatIsShorterThanAskedForFillsTheStart) {
  FontBuilder builder;
  builder.tables["PCLT"] = "abc";
  std::string bytes = "123456";
  Font(builder)->ReadTable("PCLT", {reinterpret_cast<unsigned char*>(bytes.data()), 6});
  EXPECT_EQ(bytes, "abc456");
  Font(builder)->ReadTable("PCLT", {reinterpret_cast<unsigned char*>(bytes.data()), 2});
  EXPECT_EQ(bytes, "abc456");
}

TEST(TrueTypeFontTables, StylesAreThoseOfTheTableOS2OrElseOfHead) {
  const auto styles = [](std::uint32_t selection, std::uint32_t macStyle, bool hasOs2) {
    FontBuilder builder;
    SetU16(builder.tables["OS/2"], 62, selection);
    SetU16(builder.tables["head"], 44, macStyle);
    if (!hasOs2) builder.tables.erase("OS/2");
    const Font font(builder);
    const FreeTypeFace expected(builder.Build());
    EXPECT_EQ(font->IsBold(), expected.IsBold());
    EXPECT_EQ(font->IsItalic(), expected.IsItalic());
    return std::pair(font->IsBold(), font->IsItalic());
  };
  EXPECT_EQ(styles(0x21, 0, true), std::pair(true, true));
  EXPECT_EQ(styles(0x20, 2, true), std::pair(true, false));
  EXPECT_EQ(styles(0x01, 1, true), std::pair(false, true));
  EXPECT_EQ(styles(0x40, 3, true), std::pair(false, false));
  EXPECT_EQ(styles(0x40, 3, false), std::pair(true, true));
  EXPECT_EQ(styles(0x40, 1, false), std::pair(true, false));
  EXPECT_EQ(styles(0x40, 2, false), std::pair(false, true));
}

TEST(TrueTypeFontTables, WeightAndWidthAreThoseOfTheTableOS2) {
  FontBuilder font;
  SetU16(font.tables["OS/2"], 4, 900);
  SetU16(font.tables["OS/2"], 6, 3);
  EXPECT_EQ(Font(font)->Weight(), 900);
  EXPECT_EQ(Font(font)->Width(), 3);
}

TEST(TrueTypeFontTables, AFontThatDoesNotTellItsWeightIsNormalOrBold) {
  FontBuilder font;
  SetU32(font.tables["OS/2"], 4, 0);
  EXPECT_EQ(Font(font)->Weight(), 400);
  EXPECT_EQ(Font(font)->Width(), 5);
  SetU16(font.tables["OS/2"], 62, 0x20);
  EXPECT_EQ(Font(font)->Weight(), 700);
  font.tables.erase("OS/2");
  EXPECT_EQ(Font(font)->Weight(), 400);
  EXPECT_EQ(Font(font)->Width(), 5);
  SetU16(font.tables["head"], 44, 1);
  EXPECT_EQ(Font(font)->Weight(), 700);
}

TEST(TrueTypeFontTables, TheFamilyIsNamedInEnglishWhereItCanBe) {
  constexpr std::uint32_t kGerman = 0x0407;
  const FontName german = {.language = kGerman, .bytes = BigEndian(u"Pr\u00FCfung")};
  const FontName english = {.bytes = BigEndian(u"Trial")};
  const FontName unicode = {
      .platform = 0, .encoding = 3, .language = 0, .bytes = BigEndian(u"Unicode")};
  const FontName macintosh = {.platform = 1, .encoding = 0, .language = 0, .bytes = "Mac\x8A\xDB"};
  const FontName style = {.name = 2, .bytes = BigEndian(u"Regular")};
  EXPECT_EQ(Font(WithNames({macintosh, unicode, german, english, style}))->FamilyName(), "Trial");
  EXPECT_EQ(Font(WithNames({english, german, unicode, macintosh}))->FamilyName(), "Trial");
  EXPECT_EQ(Font(WithNames({macintosh, unicode, german}))->FamilyName(), u"Pr\u00FCfung");
  EXPECT_EQ(Font(WithNames({macintosh, unicode}))->FamilyName(), "Unicode");
  EXPECT_EQ(Font(WithNames({style, macintosh}))->FamilyName(), u"Mac\u00E4\u20AC");
}

// In the old Japanese, Chinese and Korean codes, which are bytes and pairs of bytes.
TEST(TrueTypeFontTables, NamesThatAreNotInUnicodeAreNotRead) {
  const FontName macintosh = {.platform = 1, .encoding = 0, .language = 0, .bytes = "Mac"};
  for (std::uint32_t encoding = 2; encoding <= 6; ++encoding) {
    const FontName old = {.encoding = encoding, .bytes = "Kanji"};
    EXPECT_EQ(Font(WithNames({macintosh, old}))->FamilyName(), "Mac") << encoding;
    EXPECT_EQ(Font(WithNames({old}))->FamilyName(), "");
  }
  const FontName allOfUnicode = {.encoding = 10, .bytes = BigEndian(u"Unicode")};
  EXPECT_EQ(Font(WithNames({macintosh, allOfUnicode}))->FamilyName(), "Unicode");
  const FontName symbols = {.encoding = 0, .bytes = BigEndian(u"Symbols")};
  EXPECT_EQ(Font(WithNames({macintosh, symbols}))->FamilyName(), "Symbols");
}

TEST(TrueTypeFontTables, CharacterMapsOfSegments) {
  const std::string map = SegmentsMap({
      {'A', 'B', 1},
      {'D', 'F', 0, {7, 0, 5}},
      {0xE9, 0xE9, 3},
      {0x2018, 0x20AC, 0, std::vector<std::uint32_t>(0x20AC - 0x2018 + 1, 6)},
  });
  // Bytes 0x80, 0x82 to 0x87, 0x8B, 0x91 to 0x95 and 0x9B are characters of the last segment.
  Widths expected = WidthsWith({{'A', 101}, {'B', 102}, {'D', 107}, {'F', 105}, {0xE9, 103}});
  for (const std::size_t code : {0x80U, 0x82U, 0x84U, 0x85U, 0x86U, 0x87U, 0x89U, 0x8BU, 0x91U,
                                 0x92U, 0x93U, 0x94U, 0x95U, 0x9BU}) {
    expected.at(code) = 106;
  }
  ExpectWidths(WithMaps({{3, 1, map}}), expected);
}

TEST(TrueTypeFontTables, CharacterMapsThatAreArrays) {
  std::string map = ArrayMap('x', {3, 0, 5, 6});
  SetU16(map, 8, 3);  // the fourth is not counted
  ExpectWidths(WithMaps({{3, 1, map}}), WidthsWith({{'x', 103}, {'z', 105}}));
}

TEST(TrueTypeFontTables, CharacterMapsOfGroups) {
  const std::string map =
      GroupsMap({{'A', 'B', 1}, {0xE9, 0xEA, 3}, {0x20AC, 0x20AC, 6}, {0x1F600, 0x1F600, 7}});
  ExpectWidths(WithMaps({{3, 10, map}}),
               WidthsWith({{'A', 101}, {'B', 102}, {0xE9, 103}, {0xEA, 104}, {0x80, 106}}));
}

TEST(TrueTypeFontTables, SymbolFontsHaveTheirCodesInThePrivateArea) {
  const FontBuilder font =
      WithMaps({{3, 0, SegmentsMap({{'b', 'b', 2}, {0xF041, 0xF042, 4}, {0xF080, 0xF080, 6}})}});
  ExpectWidths(font, WidthsWith({{'A', 104}, {'B', 105}, {'b', 102}, {0x80, 106}}));
}

TEST(TrueTypeFontTables, AFontOfTheSymbolCharacterSetIsMeasuredByItsSymbols) {
  const FontMap basic = {3, 1, SegmentsMap({{'A', 'A', 1}, {0xF041, 0xF041, 2}})};
  const FontMap symbols = {3, 0, SegmentsMap({{'B', 'B', 3}, {0xF041, 0xF041, 4}})};
  FontBuilder font = WithMaps({basic, symbols});
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({{'A', 101}}));
  SetU32(font.tables["OS/2"], 78, 0x80000000);
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({{'A', 104}, {'B', 103}}));
  font.tables["cmap"] = MapTable({basic});
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({{'A', 102}}));
  const FontMap unreadable = {3, 0, U16(99) + std::string(40, '\0')};
  font.tables["cmap"] = MapTable({unreadable, {1, 0, ArrayMap('A', {5})}});
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({{'A', 105}})) << "Macintosh's, as they are";
}

// Or a small file with many large maps would keep us reading for long.
TEST(TrueTypeFontTables, OfUselessMapsASmallNumberIsTried) {
  std::vector<FontMap> maps(16, {3, 10, U16(12) + U16(0) + U32(28) + U32(0) + U32(1)});
  maps.push_back({3, 1, SegmentsMap({{'A', 'A', 1}})});
  EXPECT_EQ(Font(WithMaps(maps))->Widths(), WidthsWith({}));
  maps.erase(maps.begin());
  EXPECT_EQ(Font(WithMaps(maps))->Widths(), WidthsWith({{'A', 101}}));
}

TEST(TrueTypeFontTables, TheMapWithTheMostCharactersCounts) {
  const FontMap all = {3, 10, GroupsMap({{'A', 'A', 5}})};
  const FontMap basic = {3, 1, SegmentsMap({{'A', 'A', 4}})};
  const FontMap unicode = {0, 3, SegmentsMap({{'A', 'A', 3}})};
  const FontMap symbols = {3, 0, SegmentsMap({{0xF041, 0xF041, 2}})};
  const FontMap macintosh = {1, 0, ArrayMap('A', {1})};
  const auto width = [](const std::vector<FontMap>& maps) {
    return Font(WithMaps(maps))->Widths()['A'];
  };
  EXPECT_EQ(width({unicode, macintosh, symbols, basic, all}), 105);
  EXPECT_EQ(width({unicode, macintosh, symbols, basic}), 104);
  EXPECT_EQ(width({unicode, macintosh, symbols}), 103);
  EXPECT_EQ(width({macintosh, symbols}), 102);
  EXPECT_EQ(width({macintosh}), 101);
}

// The numbers in a map may say anything: a code then has its own glyph or none.
TEST(TrueTypeFontTables, MapsThatLieAboutTheirLengthsLoseCharactersOnly) {
  struct Lie {
    std::string map;
    std::size_t offset;
    bool mayMixUp = false;  // other numbers of the map are taken for glyphs
  };
  const std::string segments = SegmentsMap({{'A', 'C', 1}, {'D', 'E', 0, {4, 5}}});
  const std::string array = ArrayMap('A', {1, 2, 3, 4, 5});
  const std::string groups = GroupsMap({{'A', 'C', 1}, {'D', 'E', 4}});
  const Lie lies[] = {
      {segments, 2},         // length
      {segments, 6, true},   // segments
      {segments, 36, true},  // where the second one's list is
      {array, 2},            // length
      {array, 8},            // entries
      {groups, 4},           // length, the high half
      {groups, 6},           // length, the low half
      {groups, 12},          // groups, the high half
      {groups, 14},          // groups, the low half
  };
  for (const Lie& lie : lies) {
    for (std::uint32_t value = 0; value <= 0xFFFF; value += value < 64 ? 1 : 4093) {
      SCOPED_TRACE(testing::Message() << U16In(lie.map, 0) << " " << lie.offset << " " << value);
      std::string map = lie.map;
      SetU16(map, lie.offset, value);
      const Widths widths = Font(WithMaps({{3, 1, map}}))->Widths();
      for (unsigned code = 'A'; code <= 'E'; ++code) {
        const std::int32_t width = widths.at(code);
        if (lie.mayMixUp) {
          EXPECT_TRUE(width >= 100 && width <= 107) << code;
        } else {
          EXPECT_TRUE(width == static_cast<std::int32_t>(100 + code - '@') || width == 100) << code;
        }
      }
    }
  }
}

TEST(TrueTypeFontTables, MapsThatAreCutShortLoseCharactersOnly) {
  const Widths whole = WidthsWith({{'A', 101}, {'B', 102}, {'C', 103}, {'D', 104}, {'E', 105}});
  for (const std::string& map :
       {SegmentsMap({{'A', 'C', 1}, {'D', 'E', 0, {4, 5}}}), ArrayMap('A', {1, 2, 3, 4, 5}),
        GroupsMap({{'A', 'C', 1}, {'D', 'E', 4}})}) {
    const FontBuilder sound = WithMaps({{3, 1, map}});
    EXPECT_EQ(Font(sound)->Widths(), whole);
    for (std::size_t size = 4; size < sound.tables.at("cmap").size(); ++size) {
      FontBuilder cut = sound;
      cut.tables["cmap"].resize(size);
      const Widths widths = Font(cut)->Widths();
      for (std::size_t code = 0; code < widths.size(); ++code) {
        EXPECT_TRUE(widths.at(code) == whole.at(code) || widths.at(code) == 100)
            << U16In(map, 0) << " " << size << " " << code;
      }
    }
  }
}

// Forms 8, 10, 13 and 14 are not read; the others say themselves that they are empty.
TEST(TrueTypeFontTables, AMapThatCannotBeReadDoesNotHideOneThatCan) {
  const std::string zeros(40, '\0');
  const std::string groupOfA = U32('A') + U32('A') + U32(7);
  const std::string useless[] = {
      U16(10) + U16(0) + U32(24) + U32(0) + U32('A') + U32(1) + U16(7),
      U16(13) + U16(0) + U32(28) + U32(0) + U32(1) + groupOfA,
      U16(8) + zeros,
      U16(14) + zeros,
      U16(99) + zeros,
      GroupsMap({}),
      U16(4) + zeros,
      ArrayMap('A', {}),
      SegmentsMap({}),
      U16(12) + U16(0) + U32(28) + U32(0) + U32(1),
      U16(0) + U16(262) + U16(0) + std::string(256, '\0'),
  };
  for (const std::string& map : useless) {
    SCOPED_TRACE(U16In(map, 0));
    const FontMap sound = {3, 1, SegmentsMap({{'A', 'B', 1}})};
    const Widths expected = WidthsWith({{'A', 101}, {'B', 102}});
    EXPECT_EQ(Font(WithMaps({{3, 10, map}, sound}))->Widths(), expected);
    EXPECT_EQ(Font(WithMaps({sound, {3, 10, map}}))->Widths(), expected);
    EXPECT_EQ(Font(WithMaps({{0, 4, map}, {3, 1, map}, {1, 0, ArrayMap('A', {1, 2})}}))->Widths(),
              expected);
    EXPECT_EQ(Font(WithMaps({{3, 1, map}}))->Widths(), WidthsWith({}));
  }
}

TEST(TrueTypeFontTables, AMacintoshMapIsReadAsMacintoshRoman) {
  // "A", "é" (0xE9 in Windows), the euro sign (0x80) and the bullet (0x95).
  std::string map = U16(0) + U16(262) + U16(0) + std::string(256, '\0');
  map[6 + 'A'] = 1;
  map[6 + 0x8E] = 2;
  map[6 + 0xDB] = 3;
  map[6 + 0xA5] = 4;
  map[6 + 0xD0] = 5;  // an en dash, 0x96; not Windows' 0xD0, which it lacks
  map[6 + 0x80] = 6;  // "Ä", 0xC4
  EXPECT_EQ(
      Font(WithMaps({{1, 0, map}}))->Widths(),
      WidthsWith({{'A', 101}, {0xE9, 102}, {0x80, 103}, {0x95, 104}, {0x96, 105}, {0xC4, 106}}));
}

TEST(TrueTypeFontTables, MapsOfOldEastAsianCodesHaveAscii) {
  // Format 2: a byte of 0x81 begins a pair, the others from 0x20 on stand alone; their glyphs come
  // behind the two subheaders, and a delta is added.
  std::string bytes = std::string(512, '\0');
  SetU16(bytes, 2 * 0x81, 8);
  std::string glyphs;
  for (std::uint32_t code = 0x20; code < 0x100; ++code) glyphs += U16(code == 'A' ? 1 : 0);
  const std::string alone = U16(0x20) + U16(0xE0) + U16(2) + U16(10);
  const std::string pairs = U16(0x40) + U16(0) + U16(0) + U16(2);
  const std::string mixed = U16(2) + U16(534 + 448) + U16(0) + bytes + alone + pairs + glyphs;
  for (std::uint32_t encoding = 2; encoding <= 6; ++encoding) {
    SCOPED_TRACE(encoding);
    EXPECT_EQ(Font(WithMaps({{3, encoding, mixed}}))->Widths(), WidthsWith({{'A', 103}}));
    // Beyond ASCII the codes are others.
    const std::string segments = SegmentsMap({{'A', 'A', 3}, {0xE9, 0xE9, 4}});
    EXPECT_EQ(Font(WithMaps({{3, encoding, segments}}))->Widths(), WidthsWith({{'A', 103}}));
    EXPECT_EQ(Font(WithMaps({{3, encoding, segments}, {1, 0, ArrayMap('A', {1})}}))->Widths()['A'],
              101)
        << "Macintosh's has more";
  }
  for (std::size_t size = 4; size < mixed.size(); ++size) {
    FontBuilder cut = WithMaps({{3, 2, mixed}});
    cut.tables["cmap"].resize(12 + size);
    const std::int32_t width = Font(cut)->Widths()['A'];
    EXPECT_TRUE(width == 100 || width == 103) << size;
  }
}

TEST(TrueTypeFontTables, AMapOfAnUnknownFormOrPlaceHasNoCharacters) {
  FontBuilder font = WithMaps({{3, 1, U16(14) + std::string(30, '\1')}});
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({}));
  font = FontBuilder();
  SetU32(font.tables["cmap"], 8, 0xFFFFFFFF);
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({}));
  SetU16(font.tables["cmap"], 2, 0);
  EXPECT_EQ(Font(font)->Widths(), WidthsWith({}));
}

TEST(TrueTypeFontTables, MoreMapsThanThereAreDoNoHarm) {
  FontBuilder font;
  SetU16(font.tables["cmap"], 2, 0xFFFF);
  EXPECT_EQ(Font(font)->Widths()['A'], 101);
}

TEST(TrueTypeFontTables, WidthsThatAreNotThereAreZero) {
  FontBuilder font;
  SetU16(font.tables["hhea"], 34, 0);
  EXPECT_EQ(Font(font)->Widths(), Widths{});
}

TEST(TrueTypeFontTables, PostScriptOutlinesAreNotTrueType) {
  FontBuilder font;
  font.tables.erase("glyf");
  font.tables.erase("loca");
  font.tables["CFF "] = std::string(4, '\0');
  EXPECT_FALSE(Font(font)->HasTrueTypeOutlines()) << "whatever the version says";
  EXPECT_TRUE(Font(font)->HasPostScriptOutlines());
  font.version = 0x4F54544F;
  EXPECT_FALSE(Font(font)->HasTrueTypeOutlines());
  EXPECT_EQ(Font(font)->FamilyName(), "Test Sans");
  font = FontBuilder();
  font.version = 0x4F54544F;
  EXPECT_FALSE(Font(font)->HasTrueTypeOutlines());
  EXPECT_FALSE(Font(font)->HasPostScriptOutlines());
  font.version = 0x74727565;  // "true"
  EXPECT_TRUE(Font(font)->HasTrueTypeOutlines());
}

TEST(TrueTypeFontTables, EveryFontOfACollectionIsReadFromItsPlace) {
  const FontBuilder sans(ReadBytes(PackagedFont("liberation/LiberationSans-Regular.ttf")));
  const FontBuilder serif(ReadBytes(PackagedFont("dejavu/DejaVuSerif-Bold.ttf")));
  const std::string file = BuildCollection({sans, FontBuilder(), serif});
  MemorySource source(file);
  ASSERT_EQ(TrueTypeFontTables::FontCount(source, "some.ttc"), 3U);
  EXPECT_EQ(Font(file, 0)->FamilyName(), "Liberation Sans");
  EXPECT_EQ(Font(file, 1)->FamilyName(), "Test Sans");
  EXPECT_EQ(Font(file, 2)->FamilyName(), "DejaVu Serif");
  EXPECT_TRUE(Font(file, 2)->IsBold());
  for (const int index : {0, 1, 2}) {
    EXPECT_EQ(Font(file, static_cast<std::uint32_t>(index))->Widths(),
              FreeTypeFace(file, index).Widths());
  }
  EXPECT_EQ(ErrorTextOf([&] { Font(file, 3); }), Damaged("it has no font 3"));
}

// What a reader of PDF files gets: the tables as they were, in a font file of one font.
void ExpectOnlyThisFont(const std::string& program, const FontBuilder& expected) {
  EXPECT_EQ(ChecksumOf(program), 0xB1B0AFBA);
  FontBuilder font(program);
  EXPECT_EQ(U16In(program, 4), expected.tables.size());
  for (const auto& [tag, table] : expected.tables) {
    SCOPED_TRACE(tag);
    const std::size_t record = RecordOf(program, tag);
    EXPECT_EQ(U32In(program, record + 8) % 4, 0U);
    std::string written = font.tables[tag];
    std::string original = table;
    if (tag == "head") {
      // This field makes the sum of the whole file come out.
      SetU32(written, 8, 0);
      SetU32(original, 8, 0);
    }
    EXPECT_EQ(U32In(program, record + 4), ChecksumOf(written));
    EXPECT_TRUE(written == original);
  }
}

TEST(TrueTypeFontTables, TheProgramOfACollectionsFontIsAFontFile) {
  const FontBuilder sans(ReadBytes(PackagedFont("liberation/LiberationSans-Regular.ttf")));
  // Shares all but its name and metrics.
  FontBuilder wide = sans;
  wide.tables["name"] = FontBuilder().tables["name"];
  for (std::size_t i = 0; i + 4 <= wide.tables["hmtx"].size() && i < 4 * 255; i += 4) {
    SetU16(wide.tables["hmtx"], i, 2048);
  }
  const std::string file = BuildCollection({sans, wide});
  EXPECT_LT(file.size(), 1.2 * static_cast<double>(sans.Build().size()));

  const std::string first = Font(file, 0)->Program();
  ExpectOnlyThisFont(first, sans);
  EXPECT_EQ(FreeTypeFace(first).Family(), "Liberation Sans");
  EXPECT_EQ(FreeTypeFace(first).Widths(), FreeTypeFace(sans.Build()).Widths());
  EXPECT_EQ(Font(first)->Widths(), FreeTypeFace(first).Widths());

  const std::string second = Font(file, 1)->Program();
  ExpectOnlyThisFont(second, wide);
  EXPECT_EQ(FreeTypeFace(second).Family(), "Test Sans");
  EXPECT_EQ(FreeTypeFace(second).Widths()['A'], 1000);
  EXPECT_EQ(Font(second)->Widths(), FreeTypeFace(second).Widths());
}

TEST(TrueTypeFontTables, TheProgramsSearchNumbersAreThoseOfItsTables) {
  FontBuilder font;
  for (const char* tag : {"aaaa", "bbbb", "cccc", "dddd", "eeee", "ffff", "gggg"}) {
    font.tables[tag] = tag;
    const std::string program = Font(BuildCollection({font}))->Program();
    // The same as in a file that FreeType and others accept, written by the test's own rules.
    EXPECT_EQ(program.substr(0, 12), font.Build().substr(0, 12)) << tag;
  }
}

TEST(TrueTypeFontTables, FilesThatEndEarlyAreDamaged) {
  EXPECT_EQ(RefusalOf(""), Damaged("it is cut short"));
  const std::string file = FontBuilder().Build();
  EXPECT_EQ(RefusalOf(file.substr(0, 11)), Damaged("it is cut short"));
  EXPECT_EQ(RefusalOf(file.substr(0, 12)), Damaged("it is cut short"));
  EXPECT_EQ(RefusalOf(file.substr(0, 12 + 16 * 10 - 1)), Damaged("it is cut short"));
}

TEST(TrueTypeFontTables, FilesCutAnywhereAreRefusedOrSoundButNeverMore) {
  const std::string file = FontBuilder().Build();
  const std::string collection = BuildCollection({FontBuilder(), FontBuilder()});
  std::size_t refused = 0;
  for (const std::string& whole : {file, collection}) {
    for (std::size_t size = 0; size < whole.size(); ++size) {
      try {
        const Font font(whole.substr(0, size));
        font->Metrics();
        font->Widths();
        font->FamilyName();
        font->Program();
      } catch (const Error& error) {
        EXPECT_EQ(error.Number(), Error::kInvalidFileFormat);
        EXPECT_EQ(std::string(error.what()).find(Damaged("")), 0U) << error.what();
        ++refused;
      }
    }
  }
  // Behind the tables that are needed are "name" and "post" only.
  EXPECT_GT(refused, file.size() + collection.size() - 100);
}

TEST(TrueTypeFontTables, WhatDoesNotBeginLikeAFontIsDamaged) {
  for (const std::uint32_t version : {0U, 0x00020000U, 0x74797031U, 0x774F4646U}) {
    FontBuilder font;
    font.version = version;
    EXPECT_EQ(RefusalOf(font.Build()), Damaged("it does not begin like a font")) << version;
  }
}

TEST(TrueTypeFontTables, ATableThatIsNeededAndMissingIsNamed) {
  for (const char* tag : {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp"}) {
    FontBuilder font;
    font.tables.erase(tag);
    if (std::string_view(tag) == "glyf") {
      EXPECT_FALSE(Font(font)->HasTrueTypeOutlines());
    } else {
      EXPECT_EQ(RefusalOf(font.Build()), Damaged("it has no table '" + std::string(tag) + "'"));
    }
  }
}

TEST(TrueTypeFontTables, ATableThatIsNeededAndTooShortIsNamed) {
  for (const auto& [tag, size] : std::map<std::string, std::size_t>{
           {"cmap", 4}, {"head", 54}, {"hhea", 36}, {"hmtx", 4}, {"loca", 4}, {"maxp", 6}}) {
    FontBuilder font;
    font.tables[tag].resize(size - 1);
    EXPECT_EQ(RefusalOf(font.Build()), Damaged("its table '" + tag + "' is too short"));
    font.tables[tag].resize(size);
    Font(font)->Widths();
  }
}

TEST(TrueTypeFontTables, ATableThatReachesBeyondTheEndIsNamed) {
  const std::string sound = FontBuilder().Build();
  const auto size = static_cast<std::uint32_t>(sound.size());
  for (const std::string tag :
       {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "OS/2", "name"}) {
    const std::size_t record = RecordOf(sound, tag);
    const std::uint32_t offset = U32In(sound, record + 8);
    const std::uint32_t length = U32In(sound, record + 12);
    for (const auto& [wrongOffset, wrongLength] :
         {std::pair(size + 1, length), std::pair(size - length + 1, length),
          std::pair(offset, size - offset + 1), std::pair(offset, 0xFFFFFFFFU),
          // Together they wrap around to a place in the file.
          std::pair(0xFFFFFFF0U, length), std::pair(0xFFFFFFFFU, 0xFFFFFFFFU)}) {
      std::string file = sound;
      SetU32(file, record + 8, wrongOffset);
      SetU32(file, record + 12, wrongLength);
      EXPECT_EQ(RefusalOf(file, [](const Font& font) { font->FamilyName(); }),
                Damaged("its table '" + tag + "' reaches beyond the end"));
    }
  }
}

TEST(TrueTypeFontTables, ATableThatNobodyReadsMayReachBeyondTheEnd) {
  FontBuilder font;
  font.tables["DSIG"] = "sign";
  std::string file = font.Build();
  SetU32(file, RecordOf(file, "DSIG") + 12, 0xFFFFFFFF);
  EXPECT_EQ(Font(file)->Widths()['A'], 101);
  EXPECT_EQ(Font(file)->Program(), file);
}

TEST(TrueTypeFontTables, AnEmOfNoUnitsIsDamaged) {
  FontBuilder font;
  SetU16(font.tables["head"], 18, 0);
  EXPECT_EQ(RefusalOf(font.Build()), Damaged("its table 'head' has an em of 0 units"));
}

TEST(TrueTypeFontTables, AFontWithoutATableOfNamesIsDamaged) {
  const auto refusal = [](const FontBuilder& font) {
    return RefusalOf(font.Build(), [](const Font& read) { read->FamilyName(); });
  };
  FontBuilder font;
  font.tables.erase("name");
  EXPECT_EQ(refusal(font), Damaged("it has no table 'name'"));
  font.tables["name"] = "12345";
  EXPECT_EQ(refusal(font), Damaged("its table 'name' is too short"));
}

TEST(TrueTypeFontTables, AFamilysNameThatIsNotThereIsEmpty) {
  EXPECT_EQ(Font(WithNames({}))->FamilyName(), "");
  EXPECT_EQ(Font(WithNames({{.bytes = ""}}))->FamilyName(), "");
  EXPECT_EQ(Font(WithNames({{.bytes = "x"}}))->FamilyName(), "") << "half a character";
  EXPECT_EQ(Font(WithNames({{.bytes = BigEndian(u"  ")}}))->FamilyName(), "");
  EXPECT_EQ(Font(WithNames({{.name = 2, .bytes = BigEndian(u"Bold")}}))->FamilyName(), "");
  FontBuilder font;
  SetU16(font.tables["name"], 6 + 8, 1000);
  EXPECT_EQ(Font(font)->FamilyName(), "") << "it reaches beyond the table";
  font = FontBuilder();
  SetU16(font.tables["name"], 6 + 10, 0xFFFF);
  EXPECT_EQ(Font(font)->FamilyName(), "") << "it begins beyond the table";
}

TEST(TrueTypeFontTables, MoreNamesThanThereAreDoNoHarm) {
  FontBuilder font;
  SetU16(font.tables["name"], 2, 0xFFFF);
  EXPECT_EQ(Font(font)->FamilyName(), "Test Sans");
}

TEST(TrueTypeFontTables, DamagedCollectionsAreRefused) {
  const std::string sound = BuildCollection({FontBuilder(), FontBuilder()});
  std::string file = sound;
  SetU32(file, 8, static_cast<std::uint32_t>(file.size()));
  EXPECT_EQ(RefusalOf(file), Damaged("it is cut short")) << "more fonts than fit";
  SetU32(file, 8, 0xFFFFFFFF);
  EXPECT_EQ(RefusalOf(file), Damaged("it is cut short"));
  SetU32(file, 8, 0);
  EXPECT_EQ(RefusalOf(file), Damaged("it has no font 0"));
  file = sound;
  SetU32(file, 12, static_cast<std::uint32_t>(file.size() - 11));
  EXPECT_EQ(RefusalOf(file), Damaged("it is cut short")) << "the font begins at the end";
  SetU32(file, 12, 0xFFFFFFFF);
  EXPECT_EQ(RefusalOf(file), Damaged("it is cut short"));
  SetU32(file, 12, 0);
  EXPECT_EQ(RefusalOf(file), Damaged("it does not begin like a font")) << "a loop";
}

TEST(TrueTypeFontTables, AFontOfACollectionWithATableOutsideHasNoProgram) {
  FontBuilder font;
  font.tables["zzzz"] = "1234";
  std::string file = BuildCollection({font});
  SetU32(file, file.find("zzzz") + 8, 0xFFFFFFFF);
  EXPECT_EQ(Font(file)->Widths()['A'], 101);
  EXPECT_EQ(RefusalOf(file, [](const Font& read) { read->Program(); }),
            Damaged("its table 'zzzz' reaches beyond the end"));
}

// Counts what is read, which bounds the memory that was asked for.
class CountingSource final : public ByteSource {
 public:
  explicit CountingSource(std::string_view bytes) : source_(bytes) {}
  std::uint64_t Size() const override { return source_.Size(); }
  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    asked += out.size();
    return source_.Read(offset, out);
  }

  std::uint64_t asked = 0;

 private:
  MemorySource source_;
};

// The sound font, with so many tables more that all are the whole file.
std::string WithTablesOfTheWholeFile(std::uint32_t count, bool isCollection) {
  FontBuilder font;
  const std::size_t ownCount = font.tables.size();
  for (std::uint32_t i = 0; i < count - ownCount; ++i) font.tables["z" + U32(i).substr(1)] = "";
  std::string file = isCollection ? BuildCollection({font}) : font.Build();
  for (std::size_t i = ownCount; i < count; ++i) {
    const std::size_t record = (isCollection ? 16 : 0) + 12 + 16 * i;
    SetU32(file, record + 8, 0);
    SetU32(file, record + 12, static_cast<std::uint32_t>(file.size()));
  }
  return file;
}

TEST(TrueTypeFontTables, TablesThatAreAllTheWholeFileAreRefusedBeforeTheyAreRead) {
  for (const bool isCollection : {false, true}) {
    const std::string file = WithTablesOfTheWholeFile(0xFFFF, isCollection);
    CountingSource source(file);
    const auto read = [&] { TrueTypeFontTables(source, "some.ttf", 0).Program(); };
    EXPECT_EQ(ErrorTextOf(read), Damaged("its tables overlap"));
    EXPECT_LT(source.asked, file.size() + 1000) << "the list of tables, once";
    EXPECT_EQ(ErrorNumberOf(read), Error::kInvalidFileFormat);
  }
}

TEST(TrueTypeFontTables, NumbersBeyondTheFileAreRefusedBeforeMemoryIsAskedFor) {
  std::string tables = FontBuilder().Build();
  SetU16(tables, 4, 0xFFFF);
  std::string table = FontBuilder().Build();
  SetU32(table, RecordOf(table, "hmtx") + 12, 0xFFFFFFFF);
  std::string collection = BuildCollection({FontBuilder()});
  SetU32(collection, 8, 0xFFFFFFFF);
  for (const std::string& file : {tables, table, collection}) {
    CountingSource source(file);
    EXPECT_EQ(ErrorNumberOf([&] { TrueTypeFontTables(source, "some.ttf", 0); }),
              Error::kInvalidFileFormat);
    EXPECT_LE(source.asked, file.size());
  }
}

// Nine thousand tables of 4 GiB each, which are not there.
TEST(TrueTypeFontTables, TablesOutsideTheFileCountForNothing) {
  FontBuilder font;
  for (int i = 1000; i < 10'000; ++i) font.tables[std::to_string(i)] = "";
  std::string file = BuildCollection({font});
  for (std::size_t i = 0; i < font.tables.size(); ++i) {
    const std::size_t record = 16 + 12 + 16 * i;
    if (file[record] <= '9') SetU32(file, record + 12, 0xFFFFFFFF);
  }
  EXPECT_EQ(RefusalOf(file, [](const Font& read) { read->Program(); }),
            Damaged("its table '1000' reaches beyond the end"));
}

// A file that goes on with zeros, up to any size.
class PaddedSource final : public ByteSource {
 public:
  PaddedSource(std::string_view bytes, std::uint64_t size) : bytes_(bytes), size_(size) {}
  std::uint64_t Size() const override { return size_; }
  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    asked += out.size();
    const std::string_view rest = offset < bytes_.size() ? bytes_.substr(offset) : "";
    const std::size_t copied = std::min(rest.size(), out.size());
    std::copy_n(rest.begin(), copied, out.begin());
    std::fill(out.begin() + static_cast<std::ptrdiff_t>(copied), out.end(), '\0');
    return out.size();
  }

  std::uint64_t asked = 0;

 private:
  std::string_view bytes_;
  std::uint64_t size_;
};

constexpr std::uint64_t kGiB = std::uint64_t{1} << 30;

TEST(TrueTypeFontTables, AProgramOfMoreThan1GiBRaises6BeforeItIsRead) {
  const std::string font = FontBuilder().Build();
  // A table of a collection's font is the program, padding is not.
  std::string collection = BuildCollection({FontBuilder()});
  SetU32(collection, collection.find("post") + 12, kGiB);
  for (const std::string& file : {font, collection}) {
    PaddedSource source(file, 5 * kGiB);
    const TrueTypeFontTables tables(source, "some.ttf", 0);
    const auto read = [&] { tables.Program(); };
    EXPECT_EQ(ErrorNumberOf(read), Error::kOverflow);
    EXPECT_EQ(ErrorTextOf(read), "file 'some.ttf': a font of more than 1 GiB cannot be embedded");
    EXPECT_LT(source.asked, 1000U);
  }
  collection = BuildCollection({FontBuilder()});
  PaddedSource padded(collection, 5 * kGiB);
  EXPECT_LT(TrueTypeFontTables(padded, "some.ttc", 0).Program().size(), 2000U);
}

// Each of the tables that are read whole says that it is 4 GiB long.
TEST(TrueTypeFontTables, OfATableIsReadWhatAFontCanUse) {
  for (const char* tag : {"cmap", "hmtx", "name"}) {
    std::string file = FontBuilder().Build();
    SetU32(file, RecordOf(file, tag) + 12, 0xFFFFFFFF);
    PaddedSource source(file, 5 * kGiB);
    const TrueTypeFontTables tables(source, "some.ttf", 0);
    EXPECT_EQ(tables.FamilyName(), "Test Sans");
    EXPECT_EQ(tables.Widths()['A'], 101);
    EXPECT_LT(source.asked, 20'000'000U) << tag;
  }
}

TEST(TrueTypeFontTables, ACollectionOfMoreThan65535FontsIsRefused) {
  std::string file = BuildCollection({FontBuilder()});
  PaddedSource source(file, kGiB);
  SetU32(file, 8, 0xFFFF);
  EXPECT_EQ(TrueTypeFontTables::FontCount(source, "some.ttc"), 0xFFFFU);
  SetU32(file, 8, 0x10000);
  EXPECT_EQ(ErrorTextOf([&] { TrueTypeFontTables::FontCount(source, "some.ttc"); }),
            "file 'some.ttc': damaged font: it has 65536 fonts");
}

// A file that lost its end since it was opened.
class ShrunkSource final : public ByteSource {
 public:
  ShrunkSource(std::string_view bytes, std::size_t left)
      : size_(bytes.size()), source_(bytes.substr(0, left)) {}
  std::uint64_t Size() const override { return size_; }
  std::size_t Read(std::uint64_t offset, std::span<char> out) override {
    return source_.Read(offset, out);
  }

 private:
  std::uint64_t size_;
  MemorySource source_;
};

TEST(TrueTypeFontTables, AFileThatBecameShorterIsDamaged) {
  const std::string file = FontBuilder().Build();
  ShrunkSource early(file, 100);
  EXPECT_EQ(ErrorTextOf([&] { TrueTypeFontTables(early, "some.ttf", 0); }),
            Damaged("it is cut short"));
  ShrunkSource late(file, file.size() - 1);
  EXPECT_EQ(ErrorTextOf([&] { TrueTypeFontTables(late, "some.ttf", 0).Program(); }),
            Damaged("it is cut short"));
}

TEST(TrueTypeFontTables, TablesMayShareSomeBytes) {
  FontBuilder font;
  font.tables["EBDT"] = std::string(100, 'x');
  font.tables["bdat"] = font.tables["EBDT"];
  std::string file = font.Build();
  SetU32(file, RecordOf(file, "bdat") + 8, U32In(file, RecordOf(file, "EBDT") + 8));
  EXPECT_EQ(Font(file)->Program(), file);
}

}  // namespace
}  // namespace folivar::test
