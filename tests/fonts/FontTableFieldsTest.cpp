#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "folivar/fonts/FontTableFields.h"
#include "tests/support/FontBuilder.h"

namespace folivar::test {
namespace {

// A font of one table.
struct OneTable {
  void ReadTable(std::string_view wanted, std::span<unsigned char> out) const {
    if (wanted != tag) return;
    std::copy_n(bytes.begin(), std::min(bytes.size(), out.size()), out.begin());
  }

  std::string_view tag;
  std::string bytes;
};

template <class Table>
Table With(const std::string& bytes) {
  const OneTable font{Table::kTag, bytes};
  return TableOf<Table>(font);
}

// In the tables below a field is written for each that the format lists, in its order and of its
// size; what the library does not read is `None`.
std::string None(std::size_t size) { return std::string(size, '\xEE'); }

struct HeadFields {
  std::uint32_t macStyle = 0;
};

std::string Head(const HeadFields& fields) {
  return None(4) + None(4) + None(4) + None(4) +  // version, revision, adjustment, magic number
         None(2) + U16(2048) +                    // flags, units per em
         None(8) + None(8) +                      // made, changed
         U16(0xFF01) + U16(0xFF02) + U16(1003) + U16(1004) +  // the box
         U16(fields.macStyle) + None(2) + None(2) +           // style, smallest size, direction
         None(2) + None(2);                                   // index format, glyph format
}

TEST(FontTableFields, HeadHasEmBoxAndStyle) {
  ASSERT_EQ(Head({}).size(), HeadTable::kSize);
  const auto head = With<HeadTable>(Head({}));
  EXPECT_EQ(head.UnitsPerEm(), 2048);
  EXPECT_EQ(head.XMin(), -255);
  EXPECT_EQ(head.YMin(), -254);
  EXPECT_EQ(head.XMax(), 1003);
  EXPECT_EQ(head.YMax(), 1004);
  EXPECT_FALSE(head.IsBold());
  EXPECT_FALSE(head.IsItalic());
  EXPECT_TRUE(With<HeadTable>(Head({.macStyle = 1})).IsBold());
  EXPECT_TRUE(With<HeadTable>(Head({.macStyle = 2})).IsItalic());
  // Underlined, outlined, with a shadow, condensed, extended.
  const auto others = With<HeadTable>(Head({.macStyle = 0x7C}));
  EXPECT_FALSE(others.IsBold());
  EXPECT_FALSE(others.IsItalic());
}

TEST(FontTableFields, TheAdjustmentOfHeadIsBehindVersionAndRevision) {
  EXPECT_EQ(HeadTable::kChecksumAdjustment, 4U + 4U);
}

TEST(FontTableFields, HheaHasHeightsAndTheNumberOfWidths) {
  const std::string bytes = None(4) +                                // version
                            U16(905) + U16(0xFF2C) +                 // ascender, descender
                            None(2) + None(2) +                      // gap, greatest width
                            None(2) + None(2) + None(2) +            // bearings, extent
                            None(2) + None(2) + None(2) + None(8) +  // caret, unused
                            None(2) + U16(668);                      // format, number of widths
  ASSERT_EQ(bytes.size(), HheaTable::kSize);
  const auto hhea = With<HheaTable>(bytes);
  EXPECT_EQ(hhea.Ascender(), 905);
  EXPECT_EQ(hhea.Descender(), -212);
  EXPECT_EQ(hhea.WidthCount(), 668);
}

TEST(FontTableFields, MaxpHasTheNumberOfGlyphs) {
  const std::string bytes = None(4) + U16(0xFFFF);  // version, number of glyphs
  ASSERT_EQ(bytes.size(), MaxpTable::kSize);
  EXPECT_EQ(With<MaxpTable>(bytes).GlyphCount(), 65535);
}

struct OS2Fields {
  std::uint32_t fsType = 0;
  std::uint32_t familyClass = 0;
  std::uint32_t fsSelection = 0;
  std::uint32_t codePages = 0;
};

std::string OS2(const OS2Fields& fields) {
  return None(2) + None(2) +                   // version, average width
         U16(900) + U16(3) +                   // weight, width
         U16(fields.fsType) +                  // licence
         None(8) + None(8) +                   // subscript, superscript
         U16(0xFFCE) + None(2) +               // thickness and place of the strike-out
         U16(fields.familyClass) + None(10) +  // class, Panose
         None(16) + None(4) +                  // ranges of Unicode, vendor
         U16(fields.fsSelection) +             // style
         U16(0x0020) + U16(0xFFFC) +           // first and last character
         None(2) + None(2) + None(2) +         // typographic heights
         U16(0x8001) + U16(0x8002) +           // heights for Windows
         U32(fields.codePages) + None(4);      // code pages
}

TEST(FontTableFields, OS2HasHeightsAndCharacters) {
  ASSERT_EQ(OS2({}).size(), OS2Table::kSize);
  const auto os2 = With<OS2Table>(OS2({}));
  EXPECT_EQ(os2.StrikeoutSize(), -50);
  EXPECT_EQ(os2.FirstCharacter(), 0x0020);
  EXPECT_EQ(os2.LastCharacter(), 0xFFFC);
  EXPECT_EQ(os2.WinAscent(), 0x8001) << "without a sign";
  EXPECT_EQ(os2.WinDescent(), 0x8002);
}

TEST(FontTableFields, OS2HasWeightAndWidth) {
  const auto os2 = With<OS2Table>(OS2({}));
  EXPECT_EQ(os2.Weight(), 900);
  EXPECT_EQ(os2.Width(), 3);
}

TEST(FontTableFields, OS2HasTheLicence) {
  EXPECT_EQ(With<OS2Table>(OS2({.fsType = 0x0102})).Licence(), 0x0102);
}

TEST(FontTableFields, TheClassOfSymbolsIs12WhateverTheSubclass) {
  EXPECT_TRUE(With<OS2Table>(OS2({.familyClass = 0x0C00})).IsSymbolic());
  EXPECT_TRUE(With<OS2Table>(OS2({.familyClass = 0x0CFF})).IsSymbolic());
  for (const std::uint32_t familyClass : {0x0000U, 0x000CU, 0x0B00U, 0x0D00U, 0x1C00U}) {
    EXPECT_FALSE(With<OS2Table>(OS2({.familyClass = familyClass})).IsSymbolic()) << familyClass;
  }
}

TEST(FontTableFields, OS2HasTheStyle) {
  const auto italic = With<OS2Table>(OS2({.fsSelection = 0x0001}));
  EXPECT_TRUE(italic.IsItalic());
  EXPECT_FALSE(italic.IsBold());
  const auto bold = With<OS2Table>(OS2({.fsSelection = 0x0020}));
  EXPECT_FALSE(bold.IsItalic());
  EXPECT_TRUE(bold.IsBold());
  const auto others = With<OS2Table>(OS2({.fsSelection = 0xFFDE}));
  EXPECT_FALSE(others.IsItalic());
  EXPECT_FALSE(others.IsBold());
}

TEST(FontTableFields, TheSymbolCharacterSetIsTheOnlyCodePage) {
  EXPECT_TRUE(With<OS2Table>(OS2({.codePages = 0x80000000})).HasSymbolCharacterSet());
  EXPECT_FALSE(With<OS2Table>(OS2({.codePages = 0x80000001})).HasSymbolCharacterSet());
  EXPECT_FALSE(With<OS2Table>(OS2({.codePages = 0x00000001})).HasSymbolCharacterSet());
}

TEST(FontTableFields, PCLTHasTheHeightOfCapitals) {
  const std::string bytes = None(4) + None(4) +            // version, font number
                            None(2) + None(2) + None(2) +  // pitch, height of "x", style
                            None(2) + U16(1409) +          // type family, height of capitals
                            None(2) + None(16) + None(8) + None(6) +  // character set, names
                            None(1) + None(1) + None(1) + None(1);    // weight, width, serifs
  ASSERT_EQ(bytes.size(), PCLTTable::kSize);
  EXPECT_EQ(With<PCLTTable>(bytes).CapHeight(), 1409);
}

TEST(FontTableFields, WhatIsMissingReadsAsZeros) {
  const OneTable none{"none", ""};
  EXPECT_EQ(TableOf<HeadTable>(none).UnitsPerEm(), 0);
  EXPECT_EQ(TableOf<OS2Table>(none).Licence(), 0);
  EXPECT_FALSE(TableOf<OS2Table>(none).IsSymbolic());
  const auto head = With<HeadTable>(Head({.macStyle = 3}).substr(0, 40));  // ends within the box
  EXPECT_EQ(head.YMin(), -254);
  EXPECT_EQ(head.XMax(), 0);
  EXPECT_FALSE(head.IsBold());
}

}  // namespace
}  // namespace folivar::test
