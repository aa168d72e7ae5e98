#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/fonts/AfmReader.h"
#include "tests/support/AfmFile.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

constexpr std::string_view kSmallFile =
    "StartFontMetrics 4.1\r\n"
    "Comment CapHeight 1 Ascender 2\r\n"
    "FontBBox -166 -225 1000 931 \r\n"
    "CapHeight 718\r\n"
    "Ascender 719.5\r\n"
    "Descender -207\r\n"
    "UnderlinePosition -100\r\n"
    "UnderlineThickness 50\r\n"
    "StartCharMetrics 4\r\n"
    "C 32 ; WX 278 ; N space ; B 0 0 0 0 ;\r\n"
    "C 65 ; WX 667 ; N A ; B 14 -1 654 718 ;\r\n"
    "C 102 ; WX 278 ; N f ; B 14 0 262 728 ; L i fi ; L l fl ;\r\n"
    "C -1 ; WX 999 ; N Aacute ; B 9 9 9 999 ;\r\n"
    "EndCharMetrics\r\n"
    "C 66 ; WX 1 ; N B ; B 1 1 1 1 ;\r\n"
    "EndFontMetrics\r\n";

std::string With(std::string_view old, std::string_view replacement) {
  std::string file(kSmallFile);
  const std::size_t place = file.find(old);
  EXPECT_NE(place, std::string::npos) << old;
  return file.replace(place, old.size(), replacement);
}

bool IsUnfilled(const CharacterMetrics& character) {
  return character.width == 0 && character.left == 0 && character.bottom == 0 &&
         character.right == 0 && character.top == 0;
}

TEST(AfmReader, ReadsTheHeader) {
  const AfmMetrics metrics = ReadAfm(kSmallFile);
  EXPECT_EQ(metrics.capHeight, 718);
  EXPECT_EQ(metrics.ascender, 719.5F);
  EXPECT_EQ(metrics.descender, -207);
  EXPECT_EQ(metrics.box.left, -166);
  EXPECT_EQ(metrics.box.bottom, -225);
  EXPECT_EQ(metrics.box.right, 1000);
  EXPECT_EQ(metrics.box.top, 931);
  EXPECT_EQ(metrics.underlinePosition, -100);
  EXPECT_EQ(metrics.underlineThickness, 50);
}

TEST(AfmReader, ReadsWidthAndBoxOfEncodedGlyphs) {
  const AfmMetrics metrics = ReadAfm(kSmallFile);
  const CharacterMetrics& a = metrics.characters['A'];
  EXPECT_EQ(a.width, 667);
  EXPECT_EQ(a.left, 14);
  EXPECT_EQ(a.bottom, -1);
  EXPECT_EQ(a.right, 654);
  EXPECT_EQ(a.top, 718);
  EXPECT_EQ(metrics.characters[' '].width, 278);
  EXPECT_EQ(metrics.characters['f'].top, 728) << "ligatures do not matter";
}

TEST(AfmReader, LeavesOtherCharactersAt0) {
  const AfmMetrics metrics = ReadAfm(kSmallFile);
  for (std::size_t code = 0; code < 256; ++code) {
    if (code == ' ' || code == 'A' || code == 'f') continue;
    EXPECT_TRUE(IsUnfilled(metrics.characters[code])) << code;
  }
}

TEST(AfmReader, AGlyphWithoutACodeFillsNothing) {
  const AfmMetrics metrics = ReadAfm(kSmallFile);
  for (const CharacterMetrics& character : metrics.characters) EXPECT_NE(character.width, 999);
}

TEST(AfmReader, ReadsCharactersOnlyUpToTheEndOfTheirBlock) {
  EXPECT_TRUE(IsUnfilled(ReadAfm(kSmallFile).characters['B']));
}

// Deliberate: the line of a key that is missing is the file's first, whose second word is 4.1.
TEST(AfmReader, DeliberateAMissingKeyIs4Point1) {
  EXPECT_EQ(ReadAfm(With("CapHeight 718", "Capheight 718")).capHeight, 4.1F);
  EXPECT_EQ(ReadAfm(With("\nAscender", "\n Ascender")).ascender, 4.1F);
  EXPECT_EQ(ReadAfm(With("Descender -207\r\n", "")).descender, 4.1F);
  EXPECT_EQ(ReadAfm(With("UnderlineThickness", "Underlinethickness")).underlineThickness, 4.1F);
}

TEST(AfmReader, TakesTheFirstOfTwoLinesWithAKey) {
  EXPECT_EQ(ReadAfm(With("CapHeight 718\r\n", "CapHeight 1\r\nCapHeight 2\r\n")).capHeight, 1);
}

TEST(AfmReader, TakesTheCodes0And255) {
  const AfmMetrics metrics = ReadAfm(With("C 32 ", "C 0 "));
  EXPECT_EQ(metrics.characters[0].width, 278);
  EXPECT_EQ(ReadAfm(With("C 32 ", "C 255 ")).characters[255].width, 278);
}

TEST(AfmReader, Raises9ForACodeOutside0To255) {
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With("C 32 ", "C 256 ")); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With("C 32 ", "C -2 ")); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With("C 32 ", "C 99999999999 ")); }),
            Error::kSubscriptOutOfRange);
}

TEST(AfmReader, Raises13ForANumberThatIsNone) {
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With("CapHeight 718", "CapHeight high")); }),
            Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With("WX 278", "WX")); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With("B 14 -1 654 718", "B 14 -1 654")); }),
            Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(With(" -166 -225 1000 931 ", " -166")); }),
            Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([] { ReadAfm(""); }), Error::kTypeMismatch);
}

TEST(AfmReader, AFileWithoutCharactersHasNone) {
  const AfmMetrics metrics = ReadAfm(With("StartCharMetrics", "StartNothing"));
  EXPECT_TRUE(std::all_of(metrics.characters.begin(), metrics.characters.end(), IsUnfilled));
}

class AfmFiles : public testing::TestWithParam<std::string_view> {};

float HeaderValue(const AfmFile& file, const char* key, std::size_t index = 0) {
  const auto row = file.header.find(key);
  if (row == file.header.end()) return 4.1F;  // for Symbol and ZapfDingbats
  return row->second.at(index);
}

TEST_P(AfmFiles, HeaderIsReadAsInTheFile) {
  const AfmFile expected = ReadAfmFile(GetParam());
  const AfmMetrics found = ReadAfm(AfmBytes(GetParam()));
  EXPECT_EQ(found.capHeight, HeaderValue(expected, "CapHeight"));
  EXPECT_EQ(found.ascender, HeaderValue(expected, "Ascender"));
  EXPECT_EQ(found.descender, HeaderValue(expected, "Descender"));
  EXPECT_EQ(found.box.left, expected.header.at("FontBBox").at(0));
  EXPECT_EQ(found.box.bottom, expected.header.at("FontBBox").at(1));
  EXPECT_EQ(found.box.right, expected.header.at("FontBBox").at(2));
  EXPECT_EQ(found.box.top, expected.header.at("FontBBox").at(3));
  EXPECT_EQ(found.underlinePosition, expected.header.at("UnderlinePosition").at(0));
  EXPECT_EQ(found.underlineThickness, expected.header.at("UnderlineThickness").at(0));
  const bool isSymbolic = GetParam() == "Symbol" || GetParam() == "ZapfDingbats";
  EXPECT_EQ(expected.header.contains("CapHeight"), !isSymbolic);
  EXPECT_EQ(expected.header.contains("Ascender"), !isSymbolic);
  EXPECT_EQ(expected.header.contains("Descender"), !isSymbolic);
}

TEST_P(AfmFiles, EveryGlyphIsReadAsInTheFile) {
  const AfmFile expected = ReadAfmFile(GetParam());
  const AfmMetrics found = ReadAfm(AfmBytes(GetParam()));
  EXPECT_GE(expected.glyphs.size(), 149U);
  for (int code = 0; code < 256; ++code) {
    const CharacterMetrics& character = found.characters[static_cast<std::size_t>(code)];
    const auto glyph = expected.glyphs.find(code);
    if (glyph == expected.glyphs.end()) {
      EXPECT_TRUE(IsUnfilled(character)) << code;
      continue;
    }
    EXPECT_EQ(character.width, glyph->second.width) << code;
    EXPECT_EQ(character.left, glyph->second.box[0]) << code;
    EXPECT_EQ(character.bottom, glyph->second.box[1]) << code;
    EXPECT_EQ(character.right, glyph->second.box[2]) << code;
    EXPECT_EQ(character.top, glyph->second.box[3]) << code;
  }
}

INSTANTIATE_TEST_SUITE_P(StandardFaces, AfmFiles, testing::ValuesIn(kStandardFaces), FaceTestName);

}  // namespace
}  // namespace folivar::test
