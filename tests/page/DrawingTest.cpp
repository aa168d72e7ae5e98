#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "folivar/folivar.h"
#include "tests/support/Content.h"

// Expected numbers come from Helvetica's published metrics: box bottom -225 and top 931 (leading
// 1156), ascender 718, descender -207, underline -100 and 50 thick, strikeout at 718 / 3.

namespace folivar::test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

std::shared_ptr<PDFFont> Decorated(PDFPage& page) {
  auto font = page.Font()->Clone();
  page.SetFont(font);
  return font;
}

TEST(DrawText, WritesOneTextObject) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawText("Hello", 72, 700.5F); }),
            "BT\n/F0 10  Tf\n72  700.5  Td\n(Hello) Tj\nET\n");
}

TEST(DrawText, EscapesBackslashesAndParentheses) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawText("a(b)\\c", 72, 700); }),
            "BT\n/F0 10  Tf\n72  700  Td\n(a\\(b\\)\\\\c) Tj\nET\n");
}

TEST(DrawText, EmptyTextIsOneEmptyLine) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawText("", 0, 0); }),
            "BT\n/F0 10  Tf\n0  0  Td\n() Tj\nET\n");
}

TEST(DrawText, EveryKindOfLineEndBeginsALine) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawText("one\r\ntwo\rthree\n\nfive\n", 1, 2); }),
            "BT\n/F0 10  Tf\n1  2  Td\n11.56  TL\n(one) Tj\nT*\n(two) Tj\nT*\n(three) Tj\nT*\n"
            "() Tj\nT*\n(five) Tj\nT*\n() Tj\nET\n");
}

TEST(DrawText, WritesOneByteForEachUtf16Unit) {
  // U+00E9, U+20AC, U+2019, U+0085, U+03B1 (not in the code page) and a surrogate pair.
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawText(u"\u00E9\u20AC\u2019\u0085\u03B1\U0001F600", 0, 0);
            }),
            "BT\n/F0 10  Tf\n0  0  Td\n(\xE9\x80\x92\x85"
            "?"
            "?"
            "?) Tj\nET\n");
}

TEST(DrawText, Utf8AndUtf16GiveTheSameBytes) {
  const auto utf8 =
      ContentAfter([](PDFPage& page) { page.DrawText("\xC3\xA9 \xE2\x82\xAC", 0, 0); });
  const auto utf16 = ContentAfter([](PDFPage& page) { page.DrawText(u"\u00E9 \u20AC", 0, 0); });
  EXPECT_EQ(utf8, utf16);
  EXPECT_NE(utf8.find("(\xE9 \x80)"), std::string::npos);
}

TEST(DrawText, SubscriptIsSmallerAndLower) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              Decorated(page)->SetSubscript(true);
              page.DrawText("x", 10, 20);
            }),
            "BT\n/F0 6.5  Tf\n10  20  Td\n-1  Ts\n(x) Tj\n0 Ts\nET\n");
}

TEST(DrawText, SuperscriptIsSmallerAndHigher) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              Decorated(page)->SetSuperscript(true);
              page.DrawText("x\ny", 10, 20);
            }),
            "BT\n/F0 6.5  Tf\n10  20  Td\n3.5  Ts\n11.56  TL\n(x) Tj\nT*\n(y) Tj\n0 Ts\nET\n");
}

TEST(DrawText, SubscriptWinsOverSuperscript) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto font = Decorated(page);
              font->SetSubscript(true);
              font->SetSuperscript(true);
              page.DrawText("x", 10, 20);
            }),
            "BT\n/F0 6.5  Tf\n10  20  Td\n-1  Ts\n(x) Tj\n0 Ts\nET\n");
}

// "A" is 667 wide. The strikeout lies at 718 / 3 = 239.333 thousandths.
TEST(DrawText, StrikeoutComesBeforeUnderlineForEachLine) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto font = Decorated(page);
              font->SetStrikeOut(true);
              font->SetUnderline(true);
              page.DrawText("A\nAA", 100, 200);
            }),
            "BT\n/F0 10  Tf\n100  200  Td\n11.56  TL\n(A) Tj\nT*\n(AA) Tj\nET\n"
            "q\n0.5  w\n"
            "100  202.3933  m\n106.67  202.3933  l\nS\n"
            "100  199  m\n106.67  199  l\nS\n"
            "100  190.8333  m\n113.34  190.8333  l\nS\n"
            "100  187.44  m\n113.34  187.44  l\nS\n"
            "Q\n");
}

// Deliberate: the backslash that escaping adds (278) and the parenthesis (333) are both measured.
TEST(DrawText, DeliberateDecorationMeasuresTheEscapedLine) {
  EXPECT_NE(ContentAfter([](PDFPage& page) {
              Decorated(page)->SetUnderline(true);
              page.DrawText("(", 0, 0);
            }).find("0  -1  m\n6.11  -1  l\nS\n"),
            std::string::npos);
}

// Deliberate: decorations of sub- and superscript are as wide as the text in full size, and the
// rise does not move them.
TEST(DrawText, DeliberateDecorationIgnoresSizeAndRiseOfSubscript) {
  EXPECT_NE(ContentAfter([](PDFPage& page) {
              const auto font = Decorated(page);
              font->SetUnderline(true);
              font->SetSubscript(true);
              page.DrawText("A", 0, 0);
            }).find("q\n0.5  w\n0  -1  m\n6.67  -1  l\nS\nQ\n"),
            std::string::npos);
}

TEST(DrawText, DecorationsLeaveThePenAtTheirEnd) {
  ContentAfter([](PDFPage& page) {
    page.SetCurPos(1, 2);
    page.DrawText("plain", 50, 60);
    float x = 0;
    float y = 0;
    page.GetCurPos(x, y);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    Decorated(page)->SetUnderline(true);
    page.DrawText("A", 100, 200);
    page.GetCurPos(x, y);
    EXPECT_FLOAT_EQ(x, 106.67F);
    EXPECT_EQ(y, 199);
  });
}

TEST(DrawText, FailedDecorationLeavesNothingBehind) {
  EXPECT_EQ(
      ContentAfter([](PDFPage& page) {
        Decorated(page)->SetUnderline(true);
        page.SetCurPos(3, 4);
        // The text itself can be written here, the end of its line not.
        EXPECT_EQ(
            ErrorNumberOf([&] { page.DrawText("AAAAAAAAAAAAAAAAAAAAAAA", 2147483520.0F, 0); }), 6);
        float x = 0;
        float y = 0;
        page.GetCurPos(x, y);
        EXPECT_EQ(x, 3);
        EXPECT_EQ(y, 4);
        EXPECT_EQ(page.GraphicsState()->LineWidth(), 1);
      }),
      "");
}

TEST(DrawText, WhatCannotBeWrittenAppendsNothing) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("a", kNotANumber, 0); }), 6);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("a", 0, kInfinity); }), 6);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("a", 0, -2147483648.0F); }), 6);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("\xFF", 0, 0); }), 5);
            }),
            "");
}

TEST(DrawText, ErrorNamesTheMemberAndTheValue) {
  ContentAfter([](PDFPage& page) {
    EXPECT_EQ(ErrorTextOf([&] { page.DrawText("a", kInfinity, 0); }),
              "PDFPage.DrawText: a value of inf cannot be written: PDF numbers are below 2^31");
  });
}

TEST(DrawTextAligned, EmptyTextDrawsNothing) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawTextAligned("", 0, 0, 10, 10); }), "");
}

TEST(DrawTextAligned, LeftNeedsNoOffset) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawTextAligned("A(\nB", 10, 20, 100, 50); }),
            "BT\n/F0 10  Tf\n10  20  Td\n11.56  TL\n(A\\() Tj\nT*\n(B) Tj\nET\n");
}

// "A" is 6.67 wide: 100 - 6.67 to the right edge, half of that to the middle.
TEST(DrawTextAligned, EachLineIsAlignedAndTheOffsetTakenBack) {
  EXPECT_EQ(
      ContentAfter([](PDFPage& page) { page.DrawTextAligned("A\nAA", 10, 20, 100, 50, htaRight); }),
      "BT\n/F0 10  Tf\n10  20  Td\n11.56  TL\n93.33  0 Td\n(A) Tj\n-93.33  0 Td\nT*\n"
      "86.66  0 Td\n(AA) Tj\n-86.66  0 Td\nET\n");
  EXPECT_EQ(
      ContentAfter([](PDFPage& page) { page.DrawTextAligned("A", 10, 20, 100, 50, htaCenter); }),
      "BT\n/F0 10  Tf\n10  20  Td\n46.665  0 Td\n(A) Tj\n-46.665  0 Td\nET\n");
}

TEST(DrawTextAligned, EdgesInWrongOrderAreSwapped) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawTextAligned("A", 110, 70, -100, -50, htaRight, vtaBaseline);
            }),
            "BT\n/F0 10  Tf\n10  20  Td\n93.33  0 Td\n(A) Tj\n-93.33  0 Td\nET\n");
}

// "A" is 718 high and "g" reaches from -220 to 538. Box from 20 to 70.
TEST(DrawTextAligned, VerticalPlaces) {
  const auto baseline = [](const char* text, PDFVertTextAlignment alignment) {
    const std::string content = ContentAfter(
        [&](PDFPage& page) { page.DrawTextAligned(text, 0, 20, 100, 50, htaLeft, alignment); });
    const auto start = content.find("Tf\n0  ") + 6;
    return content.substr(start, content.find("  Td") - start);
  };
  EXPECT_EQ(baseline("A", vtaBaseline), "20");
  EXPECT_EQ(baseline("A", vtaTop), "62.82");           // 70 - 7.18
  EXPECT_EQ(baseline("A", vtaBottom), "22.07");        // 20 + 2.07
  EXPECT_EQ(baseline("A\nA\nA", vtaBottom), "45.19");  // 20 + 2 * 11.56 + 2.07
  EXPECT_EQ(baseline("A", vtaCenter), "41.41");        // 7.18 / 2 + 45 - 7.18
  EXPECT_EQ(baseline("A\nA", vtaCenter), "47.19");     // (11.56 + 7.18) / 2 + 45 - 7.18
  EXPECT_EQ(baseline("g", vtaTop), "62.42");           // 70 - 7.58
  EXPECT_EQ(baseline("A", static_cast<PDFVertTextAlignment>(4)), "20");
  EXPECT_EQ(baseline("A", static_cast<PDFVertTextAlignment>(-1)), "20");
}

TEST(DrawTextAligned, UnknownHorizontalAlignmentShiftsNothing) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawTextAligned("A", 10, 20, 100, 50, static_cast<PDFHorzTextAlignment>(3));
            }),
            "BT\n/F0 10  Tf\n10  20  Td\n(A) Tj\nET\n");
}

// Deliberate: lines of sub- and superscript are measured as reduced twice: 6.67 * 0.65 * 0.65; the
// vertical place is that of the full size, 7.18 below the top.
TEST(DrawTextAligned, DeliberateSubscriptIsMeasuredAsReducedTwiceAndPlacedInFullSize) {
  EXPECT_EQ(
      ContentAfter([](PDFPage& page) {
        Decorated(page)->SetSubscript(true);
        page.DrawTextAligned("A", 0, 20, 100, 50, htaRight, vtaTop);
      }),
      "BT\n/F0 6.5  Tf\n0  62.82  Td\n-1  Ts\n97.1819  0 Td\n(A) Tj\n-97.1819  0 Td\n0 Ts\nET\n");
}

TEST(DrawTextAligned, DrawsNoDecorations) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto font = Decorated(page);
              font->SetUnderline(true);
              font->SetStrikeOut(true);
              page.DrawTextAligned("A", 10, 20, 100, 50);
            }),
            "BT\n/F0 10  Tf\n10  20  Td\n(A) Tj\nET\n");
}

TEST(DrawTextAligned, WhatOverflowsAppendsNothing) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawTextAligned("A", 3e38F, 0, 3e38F, 0); }), 6);
              EXPECT_EQ(
                  ErrorNumberOf([&] { page.DrawTextAligned("A\nB", 0, 0, 3e9F, 10, htaRight); }),
                  6);
            }),
            "");
}

TEST(DrawLine, StrokesAndMovesThePen) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawLine(10, 20, 30, 40);
              page.DrawLineTo(50, 60);
            }),
            "10  20  m\n30  40  l\nS\n30  40  m\n50  60  l\nS\n");
}

TEST(DrawLineTo, StartsAtTheOriginOfANewPage) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawLineTo(5, 6); }), "0  0  m\n5  6  l\nS\n");
}

TEST(DrawLine, FailureDoesNotMoveThePen) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.SetCurPos(1, 2);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawLine(0, 0, kInfinity, 0); }), 6);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawLineTo(0, kNotANumber); }), 6);
              page.DrawLineTo(3, 4);
            }),
            "1  2  m\n3  4  l\nS\n");
}

TEST(SetCurPos, AppendsNothingAndIsRead) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.SetCurPos(7.5F, -3);
              float x = 0;
              float y = 0;
              page.GetCurPos(x, y);
              EXPECT_EQ(x, 7.5F);
              EXPECT_EQ(y, -3);
            }),
            "");
}

// Deliberate: the "m" before "re" and the "n" after "f" change nothing.
TEST(DrawRect, DeliberateMoveBeforeTheRectangleAndEndAfterFilling) {
  const auto paint = [](bool stroke, bool fill) {
    const std::string content =
        ContentAfter([&](PDFPage& page) { page.DrawRect(1, 2, 30, 40, stroke, fill); });
    EXPECT_TRUE(content.starts_with("1  2  m\n1  2  30  40  re\n")) << content;
    return content.substr(content.find("re\n") + 3);
  };
  EXPECT_EQ(paint(true, true), "b\n");
  EXPECT_EQ(paint(true, false), "s\n");
  EXPECT_EQ(paint(false, true), "f n\n");
  EXPECT_EQ(paint(false, false), "n\n");
}

TEST(DrawRect, StrokesByDefault) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) { page.DrawRect(0, 0, 100, 50); }),
            "0  0  m\n0  0  100  50  re\ns\n");
}

TEST(DrawRect, MovesThePenToTheOppositeCorner) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawRect(10, 20, 100, -50);
              page.DrawLineTo(0, 0);
            }),
            "10  20  m\n10  20  100  -50  re\ns\n110  -30  m\n0  0  l\nS\n");
}

TEST(DrawRect, SumThatOverflowsDrawsNothing) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawRect(3e38F, 0, 3e38F, 1); }), 6);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawRect(0, 0, 1, kNotANumber); }), 6);
            }),
            "");
}

}  // namespace
}  // namespace folivar::test
