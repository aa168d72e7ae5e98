#include <gtest/gtest.h>

#include <memory>
#include <string_view>
#include <vector>

#include "folivar/fonts/StandardFaces.h"
#include "folivar/fonts/StandardMetrics.h"
#include "tests/support/AfmFile.h"

namespace folivar::test {
namespace {

std::shared_ptr<PDFFontInfo> Loaded(std::string_view face) {
  return LoadStandardMetrics(FindStandardFace(face).value());
}

TEST(StandardMetrics, HelveticaHasItsPublishedMetrics) {
  const auto info = Loaded("Helvetica");
  EXPECT_EQ(info->m_FontFace, "Helvetica");
  EXPECT_EQ(info->m_CapHeight, 718);
  EXPECT_EQ(info->m_Ascender, 718);
  EXPECT_EQ(info->m_Descender, -207);
  EXPECT_EQ(info->FontBoxLeft(), -166);
  EXPECT_EQ(info->FontBoxBottom(), -225);
  EXPECT_EQ(info->FontBoxRight(), 1000);
  EXPECT_EQ(info->FontBoxTop(), 931);
  EXPECT_EQ(info->m_UnderlinePosition, -100);
  EXPECT_EQ(info->m_UnderlineSize, 50);
  EXPECT_EQ(info->m_StrikeoutSize, 50);
  EXPECT_EQ(info->m_StrikeoutPosition, 718.0F / 3);
}

// Deliberate: the files of these two say neither cap height nor ascender nor descender.
TEST(StandardMetrics, DeliberateSymbolAndZapfDingbatsHaveHeightsOf4Point1) {
  for (const char* face : {"Symbol", "ZapfDingbats"}) {
    const auto info = Loaded(face);
    EXPECT_EQ(info->m_CapHeight, 4.1F);
    EXPECT_EQ(info->m_Ascender, 4.1F);
    EXPECT_EQ(info->m_Descender, 4.1F);
    EXPECT_EQ(info->m_StrikeoutPosition, 4.1F / 3);
  }
}

TEST(StandardMetrics, EveryFaceHasTheSameSubAndSuperscript) {
  for (const std::string_view face : kStandardFaces) {
    const auto info = Loaded(face);
    EXPECT_EQ(info->m_SubscriptPosition, -100);
    EXPECT_EQ(info->m_SubscriptSize, 650);
    EXPECT_EQ(info->m_SuperscriptPosition, 350);
    EXPECT_EQ(info->m_SuperscriptSize, 650);
  }
}

TEST(StandardMetrics, AFaceHasNoStyleOfItsOwn) {
  for (const std::string_view face : kStandardFaces) {
    const auto info = Loaded(face);
    EXPECT_EQ(info->m_FontType, fontType1);
    EXPECT_EQ(info->m_ItalicAngle, 0) << "not read, whatever the file says";
    EXPECT_FALSE(info->m_EmbedFont);
    EXPECT_FALSE(info->m_Embeddable);
    EXPECT_FALSE(info->m_IsSymbolic);
    EXPECT_FALSE(info->m_IsItalic);
    EXPECT_FALSE(info->m_IsBold);
    EXPECT_EQ(info->BaseFontName(), face);
  }
}

TEST(StandardMetrics, RecordsOfOneFaceShareItsCharacters) {
  EXPECT_EQ(&Loaded("Courier")->Characters(), &Loaded("Courier")->Characters());
}

class StandardMetricsOf : public testing::TestWithParam<std::string_view> {};

TEST_P(StandardMetricsOf, AreTheHeadersOfTheFile) {
  const AfmFile expected = ReadAfmFile(GetParam());
  const auto info = Loaded(GetParam());
  EXPECT_EQ(info->m_FontFace, GetParam());
  const auto headerValue = [&](const char* key) {
    const auto row = expected.header.find(key);
    return row == expected.header.end() ? 4.1F : row->second.at(0);
  };
  EXPECT_EQ(info->m_CapHeight, headerValue("CapHeight"));
  EXPECT_EQ(info->m_Ascender, headerValue("Ascender"));
  EXPECT_EQ(info->m_Descender, headerValue("Descender"));
  EXPECT_EQ(info->m_StrikeoutPosition, headerValue("Ascender") / 3);
  EXPECT_EQ(info->m_UnderlinePosition, headerValue("UnderlinePosition"));
  EXPECT_EQ(info->m_UnderlineSize, headerValue("UnderlineThickness"));
  EXPECT_EQ(info->m_StrikeoutSize, headerValue("UnderlineThickness"));
  const std::vector<float>& box = expected.header.at("FontBBox");
  EXPECT_EQ(info->FontBoxLeft(), box.at(0));
  EXPECT_EQ(info->FontBoxBottom(), box.at(1));
  EXPECT_EQ(info->FontBoxRight(), box.at(2));
  EXPECT_EQ(info->FontBoxTop(), box.at(3));
}

INSTANTIATE_TEST_SUITE_P(Every, StandardMetricsOf, testing::ValuesIn(kStandardFaces), FaceTestName);

}  // namespace
}  // namespace folivar::test
