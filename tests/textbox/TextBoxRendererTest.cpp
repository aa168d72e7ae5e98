#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/AnsiText.h"
#include "folivar/base/Error.h"
#include "folivar/file/PDFText.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/textbox/RunList.h"
#include "folivar/textbox/TextBoxRenderer.h"
#include "tests/support/Content.h"
#include "tests/support/StandardFont.h"

// Expected measures come from Courier's published metrics: every character 600 wide, box from -250
// to 805, underline 100 below the baseline and 50 thick, ascender 629, of which a third is the
// height of a strikeout.

namespace folivar::test {
namespace {

class TextBoxRendererTest : public testing::Test {
 protected:
  TextBoxRendererTest() {
    geometry_.left = 72;
    geometry_.top = 720;
    geometry_.width = 100;
    geometry_.height = 50;
  }

  // Adds text in a run of its own, in the colour and alignment of the run before.
  TEXT_FORMAT_RANGE& Add(const std::string& text) {
    text_ += text;
    TEXT_FORMAT_RANGE added = runs_.empty() ? TEXT_FORMAT_RANGE() : runs_.back();
    added.Font = RunFont::CloneOf(*font_);
    added.Length = static_cast<std::int32_t>(text.size());
    return runs_.emplace_back(std::move(added));
  }

  std::string Rendered(const std::string& own = "") const {
    PDFText content;
    const AnsiText ansi{TextView(text_)};
    RunList list{TEXT_FORMAT_RANGE()};
    std::vector<TEXT_FORMAT_RANGE> runs = runs_;
    if (!runs.empty()) list.Replace(0, 1, runs);
    TextBoxRenderer(content, geometry_, frame_).Render(own, ansi, list);
    return std::string(content.Bytes());
  }

  // What is between "BT" and "ET", and what follows up to the border.
  std::string Text() const {
    const std::string all = Rendered();
    const std::size_t start = all.find("BT\n") + 3;
    return all.substr(start, all.find("ET\n") - start);
  }
  std::string Decorations() const {
    const std::string all = Rendered();
    const std::size_t start = all.find("ET\n") + 3;
    return all.substr(start, all.find("Q\n% End", start) - start);
  }

  std::shared_ptr<PDFFont> font_ = StandardFont("Courier", 10, "/F3");
  std::vector<TEXT_FORMAT_RANGE> runs_;
  std::string text_;
  TextBoxGeometry geometry_;
  TextBoxFrame frame_;
};

TEST_F(TextBoxRendererTest, AnEmptyBoxIsItsFrame) {
  EXPECT_EQ(Rendered(),
            "% Begin Textbox \nq\n"
            "0 0 0 RG\n[1 0 ] 0 d\n"
            "72  720  m\n72  720  100  -50  re\nW\ns\n"
            "BT\nET\n"
            "[1 0 ] 0 d\n72  720  m\n72  720  100  -50  re\ns\n"
            "Q\n% End Textbox\n");
}

TEST_F(TextBoxRendererTest, WhatTheGraphicsStateWroteComesFirst) {
  EXPECT_TRUE(Rendered("3  w\n").starts_with("% Begin Textbox \nq\n3  w\n0 0 0 RG\n"));
}

TEST_F(TextBoxRendererTest, ABoxWithoutBorderOnlyClips) {
  frame_.borderWidth = 0;
  EXPECT_EQ(Rendered(),
            "% Begin Textbox \nq\n"
            "72  720  m\n72  720  100  -50  re\nW\nn\n"
            "BT\nET\nQ\n% End Textbox\n");
}

TEST_F(TextBoxRendererTest, ADashOfGapsAloneIsNoBorder) {
  frame_.dashOn = 0;
  frame_.dashOff = 3;
  EXPECT_EQ(Rendered(),
            "% Begin Textbox \nq\n"
            "72  720  m\n72  720  100  -50  re\nW\nn\n"
            "BT\nET\nQ\n% End Textbox\n");
}

TEST_F(TextBoxRendererTest, ADashOfNothingIsABorder) {
  frame_.dashOn = 0;
  EXPECT_NE(Rendered().find("[0 0 ] 0 d\n"), std::string::npos);
}

TEST_F(TextBoxRendererTest, AnOpaqueBoxIsFilledBehindItsText) {
  frame_.backStyle = bsOpaque;
  frame_.backColor = 0x0000FF;
  frame_.borderColor = 0x00FF00;
  frame_.borderWidth = 2.5F;
  frame_.dashOn = 3;
  frame_.dashOff = 1.5F;
  EXPECT_EQ(Rendered(),
            "% Begin Textbox \nq\n"
            "0 1 0 RG\n[3 1.5 ] 0 d\n"
            "1 0 0 rg\n"
            "72  720  m\n72  720  100  -50  re\nW\ns\n"
            "72  720  m\n72  720  100  -50  re\nf\n"
            "BT\nET\n"
            "2.5  w\n[3 1.5 ] 0 d\n72  720  m\n72  720  100  -50  re\ns\n"
            "Q\n% End Textbox\n");
}

TEST_F(TextBoxRendererTest, DeliberateTheClipPathOfABoxWithBorderIsStroked) {
  frame_.backStyle = bsOpaque;
  EXPECT_NE(Rendered().find("re\nW\ns\n72  720  m\n72  720  100  -50  re\nf\n"), std::string::npos);
  frame_.borderWidth = 0;
  EXPECT_NE(Rendered().find("re\nW\nn\n72  720  m\n72  720  100  -50  re\nf\n"), std::string::npos);
}

TEST_F(TextBoxRendererTest, ABackStyleNotListedIsTransparent) {
  frame_.backStyle = static_cast<PDFBackGroundStyle>(2);
  EXPECT_EQ(Rendered().find("rg\n"), std::string::npos);
  EXPECT_EQ(Rendered().find("f\n"), std::string::npos);
}

TEST_F(TextBoxRendererTest, LinesFollowEachOtherByTheirLeadings) {
  Add("one\ntwo");
  Add(" large").Font.Own().SetSize(20);
  // 720 - 10.55 - 2 is 707.45.
  EXPECT_EQ(Text(),
            "74 707  Td\n"
            "0 0 0 rg\n/F3 10  Tf\n(one) Tj\n"
            "21.1  TL\nT*\n"
            "0 0 0 rg\n/F3 10  Tf\n(two) Tj\n"
            "0 0 0 rg\n/F3 20  Tf\n( large) Tj\n");
}

TEST_F(TextBoxRendererTest, TheFirstBaselineIsRoundedToWholePointsHalvesToEven) {
  Add("a");
  geometry_.left = 70.5F;
  geometry_.marginLeft = 2;
  geometry_.top = 720.05F;
  EXPECT_TRUE(Text().starts_with("72 708  Td\n")) << Text();
  geometry_.left = 71.5F;
  EXPECT_TRUE(Text().starts_with("74 708  Td\n")) << Text();
}

TEST_F(TextBoxRendererTest, AnAlignedLineIsShiftedAndShiftedBack) {
  Add("one\n").Alignment = alignRight;
  Add("two\n").Alignment = alignCenter;
  Add("three").Alignment = alignLeft;
  EXPECT_EQ(Text(),
            "74 707  Td\n"
            "82  0 Td\n0 0 0 rg\n/F3 10  Tf\n(one) Tj\n-82  0 Td\n"
            "10.55  TL\nT*\n"
            "41  0 Td\n0 0 0 rg\n/F3 10  Tf\n(two) Tj\n-41  0 Td\n"
            "10.55  TL\nT*\n"
            "0 0 0 rg\n/F3 10  Tf\n(three) Tj\n");
}

TEST_F(TextBoxRendererTest, AnEmptyLineIsAStepDown) {
  Add("\n\na");
  EXPECT_EQ(Text(),
            "74 707  Td\n"
            "10.55  TL\nT*\n10.55  TL\nT*\n"
            "0 0 0 rg\n/F3 10  Tf\n(a) Tj\n");
}

TEST_F(TextBoxRendererTest, ALineEndInARunOfItsOwnIsNoSegment) {
  Add("a");
  Add("\n").Color = 7;
  Add("b").Color = 0;
  EXPECT_EQ(Text(),
            "74 707  Td\n"
            "0 0 0 rg\n/F3 10  Tf\n(a) Tj\n"
            "10.55  TL\nT*\n"
            "0 0 0 rg\n/F3 10  Tf\n(b) Tj\n");
}

TEST_F(TextBoxRendererTest, SegmentsHaveTheirColourFontAndRise) {
  TEXT_FORMAT_RANGE& first = Add("H");
  first.Color = 0xFF0000;
  Add("2").Font.Own().SetSubscript(true);
  Add("3").Font.Own().SetSuperscript(true);
  TEXT_FORMAT_RANGE& both = Add("4");
  both.Font.Own().SetSubscript(true);
  both.Font.Own().SetSuperscript(true);
  EXPECT_EQ(Text(),
            "74 707  Td\n"
            "0 0 1 rg\n/F3 10  Tf\n(H) Tj\n"
            "0 0 1 rg\n/F3 6.5  Tf\n-1  Ts\n(2) Tj\n0 Ts\n"
            "0 0 1 rg\n/F3 6.5  Tf\n3.5  Ts\n(3) Tj\n0 Ts\n"
            "0 0 1 rg\n/F3 6.5  Tf\n-1  Ts\n(4) Tj\n0 Ts\n");
}

TEST_F(TextBoxRendererTest, TextIsEscapedAndInWindows1252) {
  Add("a\\(b)");
  EXPECT_NE(Text().find("(a\\\\\\(b\\)) Tj\n"), std::string::npos);
}

TEST_F(TextBoxRendererTest, DecorationsAreStrokesBehindTheText) {
  Add("ab");
  Add("cd").Font.Own().SetUnderline(true);
  TEXT_FORMAT_RANGE& both = Add("e ");
  both.Font.Own().SetStrikeOut(true);
  both.Font.Own().SetUnderline(true);
  frame_.borderWidth = 0;
  // Baseline 707; underlines at 706, strikeouts at 707 + 6.29 / 3.
  EXPECT_EQ(Decorations(),
            "q\n"
            "0.5  w\n86  706  m\n98  706  l\nS\n"
            "0.5  w\n98  706  m\n110  706  l\nS\n"
            "0.5  w\n98  709.0967  m\n110  709.0967  l\nS\n"
            "Q\n");
}

// Four characters of 6 from 74 on; escaping adds none that is seen.
TEST_F(TextBoxRendererTest, DecorationsAreAsLongAsTheTextWithoutItsEscapes) {
  font_->SetUnderline(true);
  Add("(a\\)");
  frame_.borderWidth = 0;
  EXPECT_EQ(Decorations(), "q\n0.5  w\n74  706  m\n98  706  l\nS\nQ\n");
}

TEST_F(TextBoxRendererTest, DecorationsFollowTheLinesAndTheirShift) {
  font_->SetUnderline(true);
  Add("one\n");
  Add("two").Alignment = alignRight;
  frame_.borderWidth = 0;
  // Baselines 707 and 696.45; the second line begins at 74 + 82.
  EXPECT_EQ(Decorations(),
            "q\n"
            "0.5  w\n74  706  m\n92  706  l\nS\n"
            "0.5  w\n156  695.45  m\n174  695.45  l\nS\n"
            "Q\n");
}

TEST_F(TextBoxRendererTest, SubscriptNarrowsItsDecorationAndDoesNotMoveIt) {
  font_->SetUnderline(true);
  Add("ab").Font.Own().SetSubscript(true);
  frame_.borderWidth = 0;
  EXPECT_EQ(Decorations(), "q\n0.5  w\n74  706  m\n81.8  706  l\nS\nQ\n");
}

TEST_F(TextBoxRendererTest, AnUnderlinedLineEndIsNoStroke) {
  Add("a");
  Add("\n").Font.Own().SetUnderline(true);
  frame_.borderWidth = 0;
  EXPECT_EQ(Decorations(), "");
}

TEST_F(TextBoxRendererTest, NumbersThatPdfCannotHoldRaise6) {
  Add("text");
  geometry_.left = 3e9F;
  EXPECT_EQ(ErrorNumberOf([&] { Rendered(); }), Error::kOverflow);
  geometry_.left = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(ErrorNumberOf([&] { Rendered(); }), Error::kOverflow);
  geometry_.left = 0;
  geometry_.marginLeft = 3e9F;
  EXPECT_EQ(ErrorNumberOf([&] { Rendered(); }), Error::kOverflow);
}

}  // namespace
}  // namespace folivar::test
