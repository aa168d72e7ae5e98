#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/StandardFaces.h"
#include "folivar/fonts/StandardMetrics.h"
#include "tests/support/AfmFile.h"

namespace folivar::test {
namespace {

std::shared_ptr<PDFFontInfo> Loaded(std::string_view face) {
  return LoadStandardMetrics(FindStandardFace(face).value());
}

TEST(PDFFontInfo, MeasuresNothingOfAnEmptyText) {
  const auto info = Loaded("Helvetica");
  EXPECT_EQ(info->MeasureWidth(""), 0);
  EXPECT_EQ(info->MeasureHeight(""), 0);
  const TextExtents extents = info->MeasureExtents("");
  EXPECT_EQ(extents.width, 0);
  EXPECT_EQ(extents.height, 0);
}

TEST(PDFFontInfo, TheFacesHeightIsThatOfItsBox) {
  EXPECT_EQ(Loaded("Helvetica")->MeasureHeight(), 931 + 225);
}

TEST(PDFFontInfo, SumsWidths) {
  const auto info = Loaded("Helvetica");
  EXPECT_EQ(info->MeasureWidth("A"), 667);
  EXPECT_EQ(info->MeasureWidth("AV "), 667 + 667 + 278) << "without kerning";
}

TEST(PDFFontInfo, MeasuresFromTheLowestToTheHighestPointAndTheBaseline) {
  const auto info = Loaded("Helvetica");
  EXPECT_EQ(info->MeasureHeight("A"), 718);        // 0 to 718
  EXPECT_EQ(info->MeasureHeight("g"), 538 + 220);  // -220 to 538
  EXPECT_EQ(info->MeasureHeight("Ag"), 718 + 220);
  EXPECT_EQ(info->MeasureHeight("gAx"), 718 + 220);
  EXPECT_EQ(info->MeasureHeight("_"), 125) << "lies below the baseline, which counts";
  EXPECT_EQ(info->MeasureHeight("\""), 718) << "lies above the baseline, which counts";
  EXPECT_EQ(info->MeasureHeight(" "), 0);
}

TEST(PDFFontInfo, CharactersThatTheFaceDoesNotHaveMeasureNothing) {
  const auto info = Loaded("Helvetica");
  EXPECT_EQ(info->MeasureWidth("\x01\x80\x9F"), 0);
  EXPECT_EQ(info->MeasureHeight("\x01\x80\x9F"), 0);
}

// Beyond 2^24 single precision cannot hold every whole number.
TEST(PDFFontInfo, SumsWidthsInSinglePrecision) {
  const auto info = Loaded("Helvetica");
  const std::string text(40'000, 'A');
  float expected = 0;
  for (std::size_t i = 0; i < text.size(); ++i) expected += 667.0F;
  EXPECT_NE(expected, 667.0F * 40'000);
  EXPECT_EQ(info->MeasureWidth(text), expected);
}

class PDFFontInfos : public testing::TestWithParam<std::string_view> {};

TEST_P(PDFFontInfos, MeasureEveryGlyphAsInTheirFiles) {
  const AfmFile expected = ReadAfmFile(GetParam());
  const auto info = Loaded(GetParam());
  for (int code = 0; code < 256; ++code) {
    const auto row = expected.glyphs.find(code);
    const AfmFile::Glyph glyph =
        row == expected.glyphs.end() ? AfmFile::Glyph{0, {0, 0, 0, 0}} : row->second;
    const std::string text(1, static_cast<char>(code));
    const auto [width, height] = info->MeasureExtents(text);
    EXPECT_EQ(width, glyph.width) << code;
    EXPECT_EQ(height, std::max(0.0F, glyph.box[3]) - std::min(0.0F, glyph.box[1])) << code;
    EXPECT_EQ(info->MeasureWidth(text), width) << code;
    EXPECT_EQ(info->MeasureHeight(text), height) << code;
  }
}

INSTANTIATE_TEST_SUITE_P(StandardFaces, PDFFontInfos, testing::ValuesIn(kStandardFaces),
                         FaceTestName);

TEST(PDFFontInfo, HasANumberForTheSave) {
  const auto info = Loaded("Courier");
  EXPECT_TRUE(info->ObjectNumber().IsNone());
  info->SetObjectNumber(Reference(7));
  EXPECT_EQ(info->ObjectNumber().Number(), 7);
}

TEST(PDFFontInfo, BaseFontNamesHaveNoBlanksAndEndWithTheStyle) {
  EXPECT_EQ(BaseFontNameOf(Text("Times New Roman"), false, false), "TimesNewRoman");
  EXPECT_EQ(BaseFontNameOf(Text("Times New Roman"), true, false), "TimesNewRoman,Bold");
  EXPECT_EQ(BaseFontNameOf(Text("Times New Roman"), false, true), "TimesNewRoman,Italic");
  EXPECT_EQ(BaseFontNameOf(Text("Times New Roman"), true, true), "TimesNewRoman,BoldItalic");
  EXPECT_EQ(BaseFontNameOf(Text("  "), false, false), "");
}

}  // namespace
}  // namespace folivar::test
