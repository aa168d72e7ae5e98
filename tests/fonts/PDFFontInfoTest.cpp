#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/StandardFaces.h"
#include "tests/support/AfmFile.h"

namespace folivar::test {
namespace {

std::shared_ptr<PDFFontInfo> Loaded(std::string_view face) {
  auto info = std::make_shared<PDFFontInfo>();
  info->LoadStandardMetrics(*FindStandardFace(face));
  return info;
}

TEST(PDFFontInfo, HelveticaHasItsPublishedMetrics) {
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
  EXPECT_EQ(info->MeasureHeight(), 1156);
}

// Deliberate: the files of these two say neither cap height nor ascender nor descender.
TEST(PDFFontInfo, DeliberateSymbolAndZapfDingbatsHaveHeightsOf4Point1) {
  for (const char* face : {"Symbol", "ZapfDingbats"}) {
    const auto info = Loaded(face);
    EXPECT_EQ(info->m_CapHeight, 4.1F);
    EXPECT_EQ(info->m_Ascender, 4.1F);
    EXPECT_EQ(info->m_Descender, 4.1F);
    EXPECT_EQ(info->m_StrikeoutPosition, 4.1F / 3);
  }
}

TEST(PDFFontInfo, EveryFaceHasTheSameSubAndSuperscript) {
  for (const std::string_view face : kStandardFaces) {
    const auto info = Loaded(face);
    EXPECT_EQ(info->m_SubscriptPosition, -100);
    EXPECT_EQ(info->m_SubscriptSize, 650);
    EXPECT_EQ(info->m_SuperscriptPosition, 350);
    EXPECT_EQ(info->m_SuperscriptSize, 650);
  }
}

TEST(PDFFontInfo, AStandardFaceHasNoStyleOfItsOwn) {
  for (const std::string_view face : kStandardFaces) {
    const auto info = Loaded(face);
    EXPECT_EQ(info->m_FontType, fontType1);
    EXPECT_EQ(info->m_ItalicAngle, 0) << "not read, whatever the file says";
    EXPECT_FALSE(info->m_EmbedFont);
    EXPECT_FALSE(info->m_Embeddable);
    EXPECT_FALSE(info->m_IsSymbolic);
    EXPECT_FALSE(info->m_IsItalic);
    EXPECT_FALSE(info->m_IsBold);
  }
}

TEST(PDFFontInfo, MeasuresNothingOfAnEmptyText) {
  const auto info = Loaded("Helvetica");
  EXPECT_EQ(info->MeasureWidth(""), 0);
  EXPECT_EQ(info->MeasureHeight(""), 0);
  float width = 1;
  float height = 1;
  info->MeasureExtents("", width, height);
  EXPECT_EQ(width, 0);
  EXPECT_EQ(height, 0);
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

TEST_P(PDFFontInfos, HaveTheHeadersOfTheirFiles) {
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
  EXPECT_EQ(info->MeasureHeight(), box.at(3) - box.at(1));
}

TEST_P(PDFFontInfos, MeasureEveryGlyphAsInTheirFiles) {
  const AfmFile expected = ReadAfmFile(GetParam());
  const auto info = Loaded(GetParam());
  for (int code = 0; code < 256; ++code) {
    const auto row = expected.glyphs.find(code);
    const AfmFile::Glyph glyph =
        row == expected.glyphs.end() ? AfmFile::Glyph{0, {0, 0, 0, 0}} : row->second;
    const std::string text(1, static_cast<char>(code));
    float width = 0;
    float height = 0;
    info->MeasureExtents(text, width, height);
    EXPECT_EQ(width, glyph.width) << code;
    EXPECT_EQ(height, std::max(0.0F, glyph.box[3]) - std::min(0.0F, glyph.box[1])) << code;
    EXPECT_EQ(info->MeasureWidth(text), width) << code;
    EXPECT_EQ(info->MeasureHeight(text), height) << code;
  }
}

INSTANTIATE_TEST_SUITE_P(StandardFaces, PDFFontInfos, testing::ValuesIn(kStandardFaces),
                         FaceTestName);

class StringSink final : public ByteSink {
 public:
  void Write(std::string_view bytes) override { bytes_ += bytes; }
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

TEST(PDFFontInfo, TakesOneNumberAndWritesOneObject) {
  const auto info = Loaded("Times-BoldItalic");
  info->m_PDFName = "/F3";
  ObjectNumbers numbers;
  info->NumberObjects(numbers);
  EXPECT_EQ(info->ObjectNumber(), 1);
  EXPECT_EQ(numbers.NextObjectNumber(), 2);

  StringSink sink;
  SaveFile file(sink);
  info->WriteObjects(file);
  EXPECT_EQ(file.ObjectCount(), 1U);
  file.Finish(1);
  EXPECT_NE(sink.Bytes().find("\n1 0 obj\n<< /Type /Font\n/Subtype /Type1\n/Name /F3\n"
                              "/BaseFont /Times-BoldItalic\n>>\nendobj\n"),
            std::string::npos)
      << sink.Bytes();
}

}  // namespace
}  // namespace folivar::test
