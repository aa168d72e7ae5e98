#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

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
    EXPECT_EQ(page.GetCurPos().x, 1);
    EXPECT_EQ(page.GetCurPos().y, 2);
    Decorated(page)->SetUnderline(true);
    page.DrawText("A", 100, 200);
    EXPECT_FLOAT_EQ(page.GetCurPos().x, 106.67F);
    EXPECT_EQ(page.GetCurPos().y, 199);
  });
}

TEST(DrawText, FailedDecorationLeavesNothingBehind) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              Decorated(page)->SetUnderline(true);
              page.SetCurPos(3, 4);
              // The text itself can be written here, the end of its line not.
              EXPECT_EQ(ErrorNumberOf(
                            [&] { page.DrawText("AAAAAAAAAAAAAAAAAAAAAAA", 2147483520.0F, 0); }),
                        Error::kOverflow);
              const auto [x, y] = page.GetCurPos();
              EXPECT_EQ(x, 3);
              EXPECT_EQ(y, 4);
              EXPECT_EQ(page.GraphicsState()->LineWidth(), 1);
            }),
            "");
}

TEST(DrawText, WhatCannotBeWrittenAppendsNothing) {
  EXPECT_EQ(
      ContentAfter([](PDFPage& page) {
        EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("a", kNotANumber, 0); }), Error::kOverflow);
        EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("a", 0, kInfinity); }), Error::kOverflow);
        EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("a", 0, -2147483648.0F); }), Error::kOverflow);
        EXPECT_EQ(ErrorNumberOf([&] { page.DrawText("\xFF", 0, 0); }), Error::kInvalidArgument);
      }),
      "");
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
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawTextAligned("A", 3e38F, 0, 3e38F, 0); }),
                        Error::kOverflow);
              EXPECT_EQ(
                  ErrorNumberOf([&] { page.DrawTextAligned("A\nB", 0, 0, 3e9F, 10, htaRight); }),
                  Error::kOverflow);
            }),
            "");
}

TEST(DrawTemplate, WithoutAPlaceWritesOnlyTheDoLine) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawTemplate(page.ParentDocument()->Templates()->Add());
            }),
            "/T1 Do\n");
}

TEST(DrawTemplate, WithAPlaceIsMovedThere) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawTemplate(page.ParentDocument()->Templates()->Add(), 10, 20);
            }),
            "q\n1 0 0 1 10 20  cm\n/T1 Do\nQ\n");
}

TEST(DrawTemplate, LoneCoordinateIsIgnored) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto drawn = page.ParentDocument()->Templates()->Add();
              page.DrawTemplate(drawn, 10);
              page.DrawTemplate(drawn, {}, 20);
              page.DrawTemplate(drawn, Value::Null());
            }),
            "/T1 Do\n/T1 Do\n/T1 Do\n");
}

// The first would be 16777216 as a single, the others 0.1 and 3 with other digits behind.
TEST(DrawTemplate, PlaceIsNotRoundedToSingle) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto drawn = page.ParentDocument()->Templates()->Add();
              page.DrawTemplate(drawn, 16777217.25, -123456.7891);
              page.DrawTemplate(drawn, std::int64_t{2147483647}, 0.1F);
            }),
            "q\n1 0 0 1 16777217.25 -123456.7891  cm\n/T1 Do\nQ\n"
            "q\n1 0 0 1 2147483647 0.1  cm\n/T1 Do\nQ\n");
}

TEST(DrawTemplate, DoesNotMoveThePen) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.SetCurPos(1, 2);
              page.DrawTemplate(page.ParentDocument()->Templates()->Add(), 10, 20);
              page.DrawLineTo(3, 4);
            }),
            "q\n1 0 0 1 10 20  cm\n/T1 Do\nQ\n1  2  m\n3  4  l\nS\n");
}

TEST(DrawTemplate, WhatCannotBePlacedAppendsAndListsNothing) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto drawn = document->Templates()->Add();
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawTemplate(nullptr, 1, 2); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawTemplate(nullptr); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawTemplate(drawn, 1, 3e9); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawTemplate(drawn, kNotANumber, 1); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawTemplate(drawn, "1", 1); }), Error::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawTemplate(drawn, 1, Value::Null()); }),
            Error::kInvalidNull);
  const SavedDocument saved = Save(*document, "nothing.pdf");
  EXPECT_EQ(saved.pdf.Stream(5), "q\nQ\n");
  EXPECT_EQ(saved.pdf.Object(4).find("/XObject"), std::string_view::npos);
}

TEST(DrawTemplate, TemplateOfAnotherDocumentIsRefusedByName) {
  const auto other = PDFDocument::Create();
  const auto named = other->Templates()->Add("logo");
  const auto unnamed = other->Templates()->Add();
  EXPECT_EQ(ContentAfter([&](PDFPage& page) {
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawTemplate(named, 1, 2); }),
                        Error::kInvalidArgument);
              EXPECT_EQ(ErrorTextOf([&] { page.DrawTemplate(named, 1, 2); }),
                        "PDFPage.DrawTemplate: PDFTemplate 'logo': belongs to another document");
              EXPECT_EQ(ErrorTextOf([&] { page.DrawTemplate(unnamed); }),
                        "PDFPage.DrawTemplate: PDFTemplate /T2: belongs to another document");
              EXPECT_EQ(ErrorTextOf([&] { page.DrawTemplate(nullptr); }),
                        "PDFPage.DrawTemplate: no PDFTemplate is given");
            }),
            "");
}

TEST(DrawTemplate, TemplatePlacedTwiceIsListedOnce) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto first = document->Templates()->Add();
  const auto second = document->Templates()->Add();
  page->DrawTemplate(second);
  page->DrawTemplate(first, 1, 2);
  page->DrawTemplate(second, 3, 4);
  const SavedDocument saved = Save(*document, "twice.pdf");
  EXPECT_NE(saved.pdf.Object(4).find(
                "/Resources << \n/Font << /F0 8 0 R\n >>\n/XObject << /T2 7 0 R\n /T1 6 0 R\n >>\n"
                ">>\n"),
            std::string_view::npos);
}

TEST(DrawLine, StrokesAndMovesThePen) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.DrawLine(10, 20, 30, 40);
              page.DrawLineTo(50, 60);
            }),
            "10  20  m\n30  40  l\nS\n30  40  m\n50  60  l\nS\n");
}

TEST(DrawLine, FailureDoesNotMoveThePen) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              page.SetCurPos(1, 2);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawLine(0, 0, kInfinity, 0); }),
                        Error::kOverflow);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawLineTo(0, kNotANumber); }), Error::kOverflow);
              page.DrawLineTo(3, 4);
            }),
            "1  2  m\n3  4  l\nS\n");
}

// Deliberate: the "m" before "re" and the "n" after "f" change nothing.
TEST(DrawRect, DeliberateMoveBeforeTheRectangleAndEndAfterFilling) {
  const auto operators = [](Paint paint) {
    const std::string content =
        ContentAfter([&](PDFPage& page) { page.DrawRect(1, 2, 30, 40, paint); });
    EXPECT_TRUE(content.starts_with("1  2  m\n1  2  30  40  re\n")) << content;
    return content.substr(content.find("re\n") + 3);
  };
  EXPECT_EQ(operators(Paint::kStrokeAndFill), "b\n");
  EXPECT_EQ(operators(Paint::kStroke), "s\n");
  EXPECT_EQ(operators(Paint::kFill), "f n\n");
  EXPECT_EQ(operators(Paint::kNone), "n\n");
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
  EXPECT_EQ(
      ContentAfter([](PDFPage& page) {
        EXPECT_EQ(ErrorNumberOf([&] { page.DrawRect(3e38F, 0, 3e38F, 1); }), Error::kOverflow);
        EXPECT_EQ(ErrorNumberOf([&] { page.DrawRect(0, 0, 1, kNotANumber); }), Error::kOverflow);
      }),
      "");
}

// An image of 400 by 100 pixels in the page's document.
std::shared_ptr<PDFImage> WideImage(PDFPage& page) {
  auto image = page.ParentDocument()->Images()->Add();
  image->SetFileName(WriteBlankBmp("wide.bmp", 400, 100).u8string());
  return image;
}

std::string ContentWithImage(
    const std::function<void(PDFPage&, const std::shared_ptr<PDFImage>&)>& draw) {
  return ContentAfter([&](PDFPage& page) { draw(page, WideImage(page)); });
}

TEST(DrawImage, IsAsLargeAsItsPixelsByDefault) {
  EXPECT_EQ(ContentWithImage([](PDFPage& page, const auto& image) {
              page.DrawImage(image, 72, 600.5F);
              page.DrawImage(image, 0, 0, {}, {}, AspectRatio::kStretch);
            }),
            "q\n400 0 0 100 72 600.5  cm\n/I1 Do\nQ\n"
            "q\n400 0 0 100 0 0  cm\n/I1 Do\nQ\n");
}

TEST(DrawImage, FitsIntoTheMeasuresGiven) {
  EXPECT_EQ(ContentWithImage([](PDFPage& page, const auto& image) {
              page.DrawImage(image, 1, 2, 200, 100);
              page.DrawImage(image, 1, 2, 1000, 100);
              page.DrawImage(image, 1, 2, 800, 1000);
            }),
            "q\n200 0 0 50 1 2  cm\n/I1 Do\nQ\n"
            "q\n400 0 0 100 1 2  cm\n/I1 Do\nQ\n"
            "q\n800 0 0 200 1 2  cm\n/I1 Do\nQ\n");
}

TEST(DrawImage, SquareOf400PixelsIn200By100) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto image = page.ParentDocument()->Images()->Add();
              image->SetFileName(WriteBlankBmp("square.bmp", 400, 400).u8string());
              page.DrawImage(image, 0, 0, 200, 100);
              page.DrawImage(image, 0, 0, 200, 100, AspectRatio::kStretch);
            }),
            "q\n100 0 0 100 0 0  cm\n/I1 Do\nQ\n"
            "q\n200 0 0 100 0 0  cm\n/I1 Do\nQ\n");
}

// With the ratio kept, the measure left out is a limit of one point a pixel.
TEST(DrawImage, OneMeasureMayBeLeftOut) {
  EXPECT_EQ(ContentWithImage([](PDFPage& page, const auto& image) {
              page.DrawImage(image, 0, 0, 200);
              page.DrawImage(image, 0, 0, 2000);
              page.DrawImage(image, 0, 0, {}, 25);
              page.DrawImage(image, 0, 0, 200, {}, AspectRatio::kStretch);
              page.DrawImage(image, 0, 0, {}, 25, AspectRatio::kStretch);
            }),
            "q\n200 0 0 50 0 0  cm\n/I1 Do\nQ\n"
            "q\n400 0 0 100 0 0  cm\n/I1 Do\nQ\n"
            "q\n100 0 0 25 0 0  cm\n/I1 Do\nQ\n"
            "q\n200 0 0 100 0 0  cm\n/I1 Do\nQ\n"
            "q\n400 0 0 25 0 0  cm\n/I1 Do\nQ\n");
}

// As singles 5000.0002 and 5000.0004 would be 5000 and 5000.0005.
TEST(DrawImage, MeasuresAreNotRoundedToSingles) {
  EXPECT_EQ(ContentWithImage([](PDFPage& page, const auto& image) {
              page.DrawImage(image, 0, 0, 5000.0002, 5000.0004, AspectRatio::kStretch);
              page.DrawImage(image, 0, 0, 5000.0004, 9000);
            }),
            "q\n5000.0002 0 0 5000.0004 0 0  cm\n/I1 Do\nQ\n"
            "q\n5000.0004 0 0 1250.0001 0 0  cm\n/I1 Do\nQ\n");
}

TEST(DrawImage, MeasuresOf0AndBelowAreTakenAsTheyAre) {
  EXPECT_EQ(ContentWithImage([](PDFPage& page, const auto& image) {
              page.DrawImage(image, 0, 0, 0, 0);
              page.DrawImage(image, 0, 0, 200, -100);
              page.DrawImage(image, 0, 0, -200, 100, AspectRatio::kStretch);
            }),
            "q\n0 0 0 0 0 0  cm\n/I1 Do\nQ\n"
            "q\n-400 0 0 -100 0 0  cm\n/I1 Do\nQ\n"
            "q\n-200 0 0 100 0 0  cm\n/I1 Do\nQ\n");
}

TEST(DrawImage, DoesNotMoveThePen) {
  EXPECT_EQ(ContentWithImage([](PDFPage& page, const auto& image) {
              page.SetCurPos(1, 2);
              page.DrawImage(image, 50, 60);
              page.DrawLineTo(3, 4);
            }),
            "q\n400 0 0 100 50 60  cm\n/I1 Do\nQ\n1  2  m\n3  4  l\nS\n");
}

TEST(DrawImage, ListsTheImageOnceAmongTheResources) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto image = WideImage(*page);
  for (int i = 0; i < 3; ++i) page->DrawImage(image, 0, 0);
  document->Pages()->Add();
  const SavedDocument saved = Save(*document, "listed.pdf");
  EXPECT_NE(saved.pdf.Object(4).find("\n/XObject << /I1 8 0 R\n >>\n"), std::string_view::npos);
  EXPECT_EQ(saved.pdf.Object(6).find("/XObject"), std::string_view::npos);
}

TEST(DrawImage, WhatCannotBeDrawnIsNeitherWrittenNorListed) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto image = WideImage(*page);
  const auto number = [&](const Value& width, const Value& height, float x = 0) {
    return ErrorNumberOf([&] { page->DrawImage(image, x, 0, width, height); });
  };
  EXPECT_EQ(number({}, {}, kInfinity), Error::kOverflow);
  EXPECT_EQ(number(3e9, 3e9), Error::kOverflow);
  EXPECT_EQ(number(kNotANumber, 1), Error::kOverflow);
  EXPECT_EQ(number(1, kNotANumber), Error::kOverflow);
  EXPECT_EQ(number(kInfinity, 1), Error::kOverflow);
  EXPECT_EQ(number(1, -kInfinity), Error::kOverflow);
  EXPECT_EQ(number("100", {}), Error::kTypeMismatch);
  EXPECT_EQ(number(true, {}), Error::kTypeMismatch);
  EXPECT_EQ(number(Value::Empty(), {}), Error::kTypeMismatch);
  EXPECT_EQ(number({}, Value::Null()), Error::kInvalidNull);
  EXPECT_EQ(ErrorNumberOf([&] { page->DrawImage(nullptr, 0, 0); }), Error::kObjectNotSet);
  EXPECT_EQ(ContentOf(*page), "");
  const SavedDocument saved = Save(*document, "nothing.pdf");
  EXPECT_EQ(saved.pdf.Object(4).find("/XObject"), std::string_view::npos);
}

TEST(DrawImage, ImageOfAnotherDocumentIsRefused) {
  const auto other = PDFDocument::Create();
  const auto page = other->Pages()->Add();
  const auto image = WideImage(*page);
  const auto keyed = other->Images()->Add("logo");
  EXPECT_EQ(ContentAfter([&](PDFPage& mine) {
              EXPECT_EQ(ErrorNumberOf([&] { mine.DrawImage(image, 0, 0); }),
                        Error::kInvalidArgument);
              EXPECT_EQ(ErrorTextOf([&] { mine.DrawImage(image, 0, 0); }),
                        "PDFPage.DrawImage: PDFImage /I1: belongs to another document");
              EXPECT_EQ(ErrorTextOf([&] { mine.DrawImage(keyed, 0, 0); }),
                        "PDFPage.DrawImage: PDFImage 'logo': belongs to another document");
            }),
            "");
}

// The ratio of nothing cannot be kept; a size can be given before the file.
TEST(DrawImage, ImageWithoutAFileHasNoRatio) {
  EXPECT_EQ(ContentAfter([](PDFPage& page) {
              const auto image = page.ParentDocument()->Images()->Add();
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawImage(image, 0, 0); }),
                        Error::kDivisionByZero);
              EXPECT_EQ(ErrorNumberOf([&] { page.DrawImage(image, 0, 0, 10, 10); }),
                        Error::kDivisionByZero);
              page.DrawImage(image, 0, 0, 10, 20, AspectRatio::kStretch);
              image->SetFileName(WriteBlankBmp("late.bmp", 1, 1).u8string());
            }),
            "q\n10 0 0 20 0 0  cm\n/I1 Do\nQ\n");
}

}  // namespace
}  // namespace folivar::test
