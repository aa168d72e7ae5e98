#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/fonts/PDFFont.h"
#include "tests/support/AfmFile.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

class PDFFontOfHelvetica : public testing::Test {
 protected:
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFFont> font_ = document_->Fonts()->Add("Helvetica");
};

TEST_F(PDFFontOfHelvetica, HasSize10AndNoDecorationsAtFirst) {
  EXPECT_EQ(font_->Size(), 10);
  EXPECT_FALSE(font_->Underline());
  EXPECT_FALSE(font_->StrikeOut());
  EXPECT_FALSE(font_->Subscript());
  EXPECT_FALSE(font_->Superscript());
  EXPECT_EQ(font_->FontFace(), "Helvetica");
  EXPECT_EQ(font_->FontType(), fontType1);
}

TEST_F(PDFFontOfHelvetica, MeasuresItsFace) {
  EXPECT_EQ(font_->Ascender(), 7.18F);
  EXPECT_EQ(font_->Descender(), -2.07F);
  EXPECT_EQ(font_->Leading(), 11.56F);
  EXPECT_EQ(font_->FontBoxTop(), 9.31F);
  EXPECT_EQ(font_->FontBoxLeft(), -1.66F);
  EXPECT_EQ(font_->FontBoxRight(), 10.0F);
  EXPECT_EQ(font_->FontBoxBottom(), -2.25F);
}

TEST_F(PDFFontOfHelvetica, MeasuresText) {
  EXPECT_EQ(font_->TextWidth("A"), 6.67F);
  EXPECT_EQ(font_->TextWidth("AV"), 13.34F);
  EXPECT_EQ(font_->TextHeight("Ag"), 9.38F);  // -220 to 718
  const auto [width, height] = font_->GetTextExtents("Ag");
  EXPECT_EQ(width, (667.0F + 556.0F) * 10 / 1000);
  EXPECT_EQ(height, 9.38F);
}

TEST_F(PDFFontOfHelvetica, AnEmptyTextHasNoExtents) {
  EXPECT_EQ(font_->TextWidth(""), 0);
  EXPECT_EQ(font_->TextHeight(""), 0);
  const auto [width, height] = font_->GetTextExtents("");
  EXPECT_EQ(width, 0);
  EXPECT_EQ(height, 0);
}

TEST_F(PDFFontOfHelvetica, TextHeightWithoutATextIsTheHeightOfTheFacesBox) {
  EXPECT_EQ(font_->TextHeight(), 11.56F);
  font_->SetSubscript(true);
  EXPECT_EQ(font_->TextHeight(), (1156.0F - 1) * 6.5F / 1000);
  font_->SetSubscript(false);
  font_->SetSuperscript(true);
  EXPECT_EQ(font_->TextHeight(), (1156.0F + 3.5F) * 6.5F / 1000);
}

TEST_F(PDFFontOfHelvetica, TextIsMeasuredAsItGoesIntoTheFile) {
  // "?" is 556 wide. Characters of code page 1252 are bytes that the face's own table knows or not.
  EXPECT_EQ(font_->TextWidth("\u0394"), 5.56F);
  EXPECT_EQ(font_->TextWidth("\U0001F600"), 11.12F) << "one for each half of the pair";
  EXPECT_EQ(font_->TextWidth(u"\u0394"), 5.56F);
  EXPECT_EQ(font_->TextWidth("\u20AC"), 0) << "byte 0x80, which the table does not have";
  EXPECT_EQ(font_->TextWidth("\u00A3"), 5.56F) << "byte 0xA3, sterling";
}

TEST_F(PDFFontOfHelvetica, SubscriptIs65PercentAsWide) {
  font_->SetSubscript(true);
  EXPECT_EQ(font_->TextWidth("A"), 667.0F * 6.5F / 1000);
  EXPECT_FLOAT_EQ(font_->TextWidth("A"), 0.65F * 6.67F);
}

// Deliberate: the rise is in points, the height in thousandths of the em.
TEST_F(PDFFontOfHelvetica, DeliberateTheRiseIsAddedToTheHeightBeforeScaling) {
  font_->SetSubscript(true);
  const TextExtents lowered = font_->GetTextExtents("A");
  EXPECT_EQ(lowered.width, 667.0F * 6.5F / 1000);
  EXPECT_EQ(lowered.height, (718.0F - 1) * 6.5F / 1000);
  EXPECT_EQ(font_->TextHeight("A"), lowered.height);
  font_->SetSubscript(false);
  font_->SetSuperscript(true);
  const TextExtents raised = font_->GetTextExtents("A");
  EXPECT_EQ(raised.width, 667.0F * 6.5F / 1000);
  EXPECT_EQ(raised.height, (718.0F + 3.5F) * 6.5F / 1000);
  EXPECT_EQ(font_->TextHeight("A"), raised.height);
  const TextExtents empty = font_->GetTextExtents("");
  EXPECT_EQ(empty.width, 0);
  EXPECT_EQ(empty.height, 3.5F * 6.5F / 1000) << "an empty text too";
}

TEST_F(PDFFontOfHelvetica, BothSubAndSuperscriptMeasureAsSubscript) {
  font_->SetSubscript(true);
  const float height = font_->TextHeight("A");
  font_->SetSuperscript(true);
  EXPECT_EQ(font_->TextHeight("A"), height);
}

TEST_F(PDFFontOfHelvetica, TheFacesMeasuresIgnoreSubAndSuperscript) {
  for (const bool isSubscript : {true, false}) {
    font_->SetSubscript(isSubscript);
    font_->SetSuperscript(!isSubscript);
    EXPECT_EQ(font_->Ascender(), 7.18F);
    EXPECT_EQ(font_->Descender(), -2.07F);
    EXPECT_EQ(font_->Leading(), 11.56F);
    EXPECT_EQ(font_->FontBoxTop(), 9.31F);
    EXPECT_EQ(font_->FontBoxBottom(), -2.25F);
  }
}

TEST_F(PDFFontOfHelvetica, UnderlineAndStrikeOutDoNotChangeMeasures) {
  font_->SetUnderline(true);
  font_->SetStrikeOut(true);
  EXPECT_TRUE(font_->Underline());
  EXPECT_TRUE(font_->StrikeOut());
  EXPECT_EQ(font_->TextWidth("A"), 6.67F);
  EXPECT_EQ(font_->TextHeight("A"), 7.18F);
}

TEST_F(PDFFontOfHelvetica, AnySizeIsTaken) {
  font_->SetSize(0);
  EXPECT_EQ(font_->TextWidth("A"), 0);
  EXPECT_EQ(font_->Leading(), 0);
  font_->SetSize(-10);
  EXPECT_EQ(font_->Size(), -10);
  EXPECT_EQ(font_->TextWidth("A"), -6.67F);
  EXPECT_EQ(font_->TextHeight("A"), -7.18F);
  font_->SetSize(1000);
  EXPECT_EQ(font_->TextWidth("A"), 667);
}

TEST_F(PDFFontOfHelvetica, AMeasureBeyondASingleRaises6) {
  for (const float size :
       {std::numeric_limits<float>::max(), std::numeric_limits<float>::lowest(),
        std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
    font_->SetSize(size);
    EXPECT_EQ(ErrorNumberOf([&] { font_->GetTextExtents("A"); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->TextWidth("A"); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->TextHeight("A"); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->TextHeight(); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->Ascender(); }), Error::kOverflow) << size;
    EXPECT_TRUE(ErrorTextOf([&] {
                  font_->Ascender();
                }).starts_with("PDFFont.Ascender: font 'Helvetica': a measure at size "));
    EXPECT_TRUE(ErrorTextOf([&] {
                  font_->TextWidth("A");
                }).starts_with("PDFFont.TextWidth: font 'Helvetica': a measure at size "));
    EXPECT_EQ(ErrorNumberOf([&] { font_->Descender(); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->Leading(); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->FontBoxTop(); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->FontBoxLeft(); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->FontBoxRight(); }), Error::kOverflow) << size;
    EXPECT_EQ(ErrorNumberOf([&] { font_->FontBoxBottom(); }), Error::kOverflow) << size;
  }
}

TEST_F(PDFFontOfHelvetica, AHeightAloneBeyondASingleRaises6) {
  // A blank is 278 wide and has no height; with superscript the rise alone is the height.
  font_->SetSuperscript(true);
  font_->SetSize(4e19F);  // 0.65 * 0.35 * size^2 is beyond a single, 278 * 0.65 * size is not
  EXPECT_EQ(ErrorNumberOf([&] { font_->GetTextExtents(" "); }), Error::kOverflow);
}

TEST_F(PDFFontOfHelvetica, ATextThatIsNotUtf8Raises5) {
  EXPECT_EQ(ErrorNumberOf([&] { font_->GetTextExtents("a\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { font_->TextWidth("a\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { font_->TextHeight("a\xFF"); }), Error::kInvalidArgument);
}

TEST_F(PDFFontOfHelvetica, ACloneHasTheSameFaceSizeAndDecorationsAndIsAFontOfItsOwn) {
  font_->SetSize(12.5F);
  font_->SetUnderline(true);
  font_->SetSuperscript(true);
  const auto clone = font_->Clone();
  EXPECT_NE(clone, font_);
  EXPECT_EQ(clone->FontFace(), "Helvetica");
  EXPECT_EQ(clone->Size(), 12.5F);
  EXPECT_TRUE(clone->Underline());
  EXPECT_FALSE(clone->StrikeOut());
  EXPECT_FALSE(clone->Subscript());
  EXPECT_TRUE(clone->Superscript());
  font_->SetStrikeOut(true);
  font_->SetSubscript(true);
  EXPECT_TRUE(font_->Clone()->StrikeOut());
  EXPECT_TRUE(font_->Clone()->Subscript());
  EXPECT_FALSE(clone->StrikeOut());
  clone->SetSize(1);
  EXPECT_EQ(font_->Size(), 12.5F);
  EXPECT_EQ(document_->Fonts()->count(fontType1), 1) << "a clone is no new face";
}

TEST_F(PDFFontOfHelvetica, BoldAndItalicOfAStandardFaceReadFalseAndChangeNothing) {
  const auto bold = document_->Fonts()->Add("Helvetica-BoldOblique");
  for (const auto& font : {font_, bold}) {
    const Text face = font->FontFace();
    EXPECT_FALSE(font->Bold());
    EXPECT_FALSE(font->Italic());
    font->SetBold(true);
    font->SetItalic(true);
    EXPECT_EQ(font->FontFace(), face);
    EXPECT_FALSE(font->Bold());
    EXPECT_FALSE(font->Italic());
  }
}

TEST_F(PDFFontOfHelvetica, MeasuresAfterTheDocumentIsGone) {
  document_.reset();
  EXPECT_EQ(font_->TextWidth("A"), 6.67F);
  EXPECT_EQ(font_->Clone()->FontFace(), "Helvetica");
}

class PDFFontsOfEveryFace : public testing::TestWithParam<std::string_view> {};

TEST_P(PDFFontsOfEveryFace, MeasureEveryGlyphAtSize1000AsInTheFile) {
  const AfmFile expected = ReadAfmFile(GetParam());
  const auto document = PDFDocument::Create();
  const auto font = document->Fonts()->Add(GetParam());
  font->SetSize(1000);
  EXPECT_EQ(font->FontFace(), GetParam());
  for (int code = 0; code < 256; ++code) {
    const auto row = expected.glyphs.find(code);
    const AfmFile::Glyph glyph =
        row == expected.glyphs.end() ? AfmFile::Glyph{0, {0, 0, 0, 0}} : row->second;
    const std::u16string text(1, static_cast<char16_t>(code));
    EXPECT_EQ(font->TextWidth(text), glyph.width) << code;
    EXPECT_EQ(font->TextHeight(text), std::max(0.0F, glyph.box[3]) - std::min(0.0F, glyph.box[1]))
        << code;
  }
}

INSTANTIATE_TEST_SUITE_P(StandardFaces, PDFFontsOfEveryFace, testing::ValuesIn(kStandardFaces),
                         FaceTestName);

}  // namespace
}  // namespace folivar::test
