#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/page/PDFTemplate.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/Picture.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/Tools.h"

// Expected measures come from Helvetica's published metrics at size 10: box top 9.31, leading
// 11.56, "A" 6.67 wide, "(" 3.33, "\" 2.78, "l" 2.22; underline 1 below the baseline.

namespace folivar::test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kLargest = std::numeric_limits<float>::max();

using Edges = ClipBox;

Edges EdgesOf(const PDFTemplate& drawn) { return drawn.GetClipBox(); }

void ExpectEdges(const PDFTemplate& drawn, const Edges& expected) {
  const Edges edges = EdgesOf(drawn);
  EXPECT_FLOAT_EQ(edges.left, expected.left);
  EXPECT_FLOAT_EQ(edges.bottom, expected.bottom);
  EXPECT_FLOAT_EQ(edges.right, expected.right);
  EXPECT_FLOAT_EQ(edges.top, expected.top);
}

// The clip box of a template that starts inside out, so that every edge comes from the drawing.
Edges BoxAround(const std::function<void(PDFTemplate&)>& draw) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetClipBox(1e6F, 1e6F, -1e6F, -1e6F);
  draw(*drawn);
  return EdgesOf(*drawn);
}

void ExpectBoxAround(const std::function<void(PDFTemplate&)>& draw, const Edges& expected) {
  const Edges edges = BoxAround(draw);
  EXPECT_FLOAT_EQ(edges.left, expected.left);
  EXPECT_FLOAT_EQ(edges.bottom, expected.bottom);
  EXPECT_FLOAT_EQ(edges.right, expected.right);
  EXPECT_FLOAT_EQ(edges.top, expected.top);
}

std::shared_ptr<PDFFont> Decorated(PDFTemplate& drawn) {
  auto font = drawn.Font()->Clone();
  drawn.SetFont(font);
  return font;
}

TEST(PDFTemplate, StartsWithAnEmptyClipBoxThatGrows) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  ExpectEdges(*drawn, {0, 0, 0, 0});
  EXPECT_TRUE(drawn->AutoSizeClipBox());
  EXPECT_EQ(drawn->Key(), "");
}

TEST(PDFTemplate, EmptyTemplateIsOneObject) {
  const auto document = PDFDocument::Create();
  document->Templates()->Add();
  const SavedDocument saved = Save(*document, "empty.pdf");
  EXPECT_EQ(saved.pdf.Count(), 5);
  EXPECT_EQ(saved.pdf.Object(4),
            "<< /Type /XObject\n/Subtype /Form\n/FormType 1\n/BBox [ 0  0  0  0 ]\n"
            "/Resources << \n/Font << /F0 5 0 R\n >>\n>>\n/Length 0000000004 >>\n"
            "stream\nq\nQ\nendstream\n");
}

// Courier's box is from -250 to 805, and every character is 600 wide.
TEST(PDFTemplate, ClipBoxIsWrittenFromTheBottomLeftToTheTopRight) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetFont(document->Fonts()->Add("Courier"));
  drawn->DrawLine(-10.5F, 20, 30, 40.25F);
  drawn->DrawText("(x)", 1, 2);
  const SavedDocument saved = Save(*document, "line.pdf");
  EXPECT_EQ(saved.pdf.Object(4),
            "<< /Type /XObject\n/Subtype /Form\n/FormType 1\n/BBox [ -10.5  -8.55  31  40.25 ]\n"
            "/Resources << \n/Font << /F0 5 0 R\n /F1 6 0 R\n >>\n>>\n/Length 0000000069 >>\n"
            "stream\nq\n-10.5  20  m\n30  40.25  l\nS\n"
            "BT\n/F1 10  Tf\n1  2  Td\n(\\(x\\)) Tj\nET\nQ\nendstream\n");
}

TEST(PDFTemplate, EdgesAreReadAndWritten) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetTop(70);
  drawn->SetRight(50);
  drawn->SetLeft(10);
  drawn->SetBottom(20);
  EXPECT_EQ(drawn->Left(), 10);
  EXPECT_EQ(drawn->Bottom(), 20);
  EXPECT_EQ(drawn->Right(), 50);
  EXPECT_EQ(drawn->Top(), 70);
  EXPECT_EQ(drawn->Width(), 40);
  EXPECT_EQ(drawn->Height(), 50);
  ExpectEdges(*drawn, {10, 20, 50, 70});
}

TEST(PDFTemplate, RightBelowLeftSwapsTheTwo) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetClipBox(10, 0, 50, 0);
  drawn->SetRight(4);
  ExpectEdges(*drawn, {4, 0, 10, 0});
  drawn->SetRight(4);
  ExpectEdges(*drawn, {4, 0, 4, 0});
}

TEST(PDFTemplate, BottomAboveTopSwapsTheTwo) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetClipBox(0, 10, 0, 50);
  drawn->SetBottom(60);
  ExpectEdges(*drawn, {0, 50, 0, 60});
  drawn->SetBottom(60);
  ExpectEdges(*drawn, {0, 60, 0, 60});
}

// Deliberate: the other edges and the sizes put nothing in order.
TEST(PDFTemplate, DeliberateLeftTopWidthAndHeightSwapNothing) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetClipBox(10, 20, 30, 40);
  drawn->SetWidth(-5);
  drawn->SetHeight(-7);
  ExpectEdges(*drawn, {10, 20, 5, 13});
  EXPECT_EQ(drawn->Width(), -5);
  EXPECT_EQ(drawn->Height(), -7);
  drawn->SetLeft(100);
  drawn->SetTop(-100);
  ExpectEdges(*drawn, {100, 20, 5, -100});
  drawn->SetClipBox(4, 3, 2, 1);
  ExpectEdges(*drawn, {4, 3, 2, 1});
}

TEST(PDFTemplate, SizesAreComputedInSinglePrecision) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetClipBox(16777216, 16777216, 16777216, 16777216);
  drawn->SetWidth(1);  // halfway to the next single, which is odd
  drawn->SetHeight(3);
  ExpectEdges(*drawn, {16777216, 16777216, 16777216, 16777220});
  EXPECT_EQ(drawn->Right(), 16777216);
  EXPECT_EQ(drawn->Top(), 16777220);
}

TEST(PDFTemplate, SizeBeyondASingleRaises6AndChangesNothing) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetClipBox(-kLargest, -kLargest, kLargest, kLargest);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->Width(); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->Height(); }), Error::kOverflow);
  drawn->SetClipBox(kLargest, kLargest, 1, 2);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->SetWidth(kLargest); }), Error::kOverflow);
  EXPECT_EQ(ErrorTextOf([&] { drawn->SetHeight(kLargest); }),
            "PDFTemplate.Height: PDFTemplate /T1: a sum of coordinates is beyond a single");
  EXPECT_EQ(drawn->Right(), 1);
  EXPECT_EQ(drawn->Top(), 2);
}

TEST(PDFTemplate, BoxGrownFromTheStartHasTheOrigin) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->DrawLine(10, 20, 30, 40);
  ExpectEdges(*drawn, {0, 0, 30, 40});
  drawn->DrawLine(-1, 50, 5, -2);
  ExpectEdges(*drawn, {-1, -2, 30, 50});
}

TEST(PDFTemplate, LinesGrowTheBoxByTheirEnds) {
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawLine(30, 20, 10, 40); }, {10, 20, 30, 40});
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        drawn.SetCurPos(-3, 60);
        drawn.DrawLineTo(8, 5);
      },
      {-3, 5, 8, 60});
}

TEST(PDFTemplate, MovingThePenGrowsNothing) {
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        drawn.SetCurPos(1000, 1000);
        drawn.SetCurPos(2, 3);
        drawn.DrawLineTo(2, 3);
      },
      {2, 3, 2, 3});
}

TEST(PDFTemplate, RectanglesGrowTheBoxByTwoCorners) {
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawRect(10, 20, 100, 50); }, {10, 20, 110, 70});
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawRect(10, 20, -100, -50, Paint::kNone); },
                  {-90, -30, 10, 20});
}

// As they are placed at last: with the ratio kept, and with measures left out.
TEST(PDFTemplate, ImagesGrowTheBoxByTwoCorners) {
  const auto document = PDFDocument::Create();
  const auto image = document->Images()->Add();
  image->SetFileName(WriteBlankBmp("wide.bmp", 400, 100).u8string());
  const auto expectBox = [&](const std::function<void(PDFTemplate&)>& draw, const Edges& expected) {
    const auto drawn = document->Templates()->Add();
    drawn->SetClipBox(1e6F, 1e6F, -1e6F, -1e6F);
    draw(*drawn);
    ExpectEdges(*drawn, expected);
  };
  expectBox([&](PDFTemplate& drawn) { drawn.DrawImage(image, 10, 20); }, {10, 20, 410, 120});
  expectBox([&](PDFTemplate& drawn) { drawn.DrawImage(image, 10, 20, 200, 100); },
            {10, 20, 210, 70});
  expectBox(
      [&](PDFTemplate& drawn) {
        drawn.DrawImage(image, 10, 20, -200, 100.5, AspectRatio::kStretch);
      },
      {-190, 20, 10, 120.5F});
  expectBox(
      [&](PDFTemplate& drawn) { drawn.DrawImage(image, 0.1F, 0, 0.2, 0.2, AspectRatio::kStretch); },
      {0.1F, 0, 0.3F, 0.2F});
}

TEST(PDFTemplate, ImageIsListedAndGrowsTheBoxUnlessItFails) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  const auto image = document->Images()->Add();
  image->SetFileName(WriteBlankBmp("wide.bmp", 400, 100).u8string());
  drawn->DrawImage(image, 72, 600, 200, 100);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawImage(nullptr, -500, 0); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawImage(image, -500, 0, 3e9, 3e9); }), Error::kOverflow);
  const SavedDocument saved = Save(*document, "image.pdf", Check::kForm);
  EXPECT_EQ(saved.pdf.Stream(4), "q\nq\n200 0 0 50 72 600  cm\n/I1 Do\nQ\nQ\n");
  EXPECT_NE(saved.pdf.Object(4).find("/BBox [ 0  0  272  650 ]\n"), std::string_view::npos);
  EXPECT_NE(saved.pdf.Object(4).find("\n/XObject << /I1 5 0 R\n >>\n"), std::string_view::npos);
  EXPECT_TRUE(saved.pdf.Object(5).starts_with("<< /Type /XObject\n/Subtype /Image\n"));
}

TEST(PDFTemplate, TextGrowsTheBoxFromTheFontsTopToALeadingBelow) {
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawText("A", 100, 200); },
                  {100, 188.44F, 106.67F, 209.31F});
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawText("", 100, 200); },
                  {100, 188.44F, 100, 209.31F});
}

TEST(PDFTemplate, TextGrowsTheBoxOverItsWidestLineAndAllLines) {
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawText("A\r\nAAA\nA\n", 100, 200); },
                  {100, 153.76F, 120.01F, 209.31F});
}

// Deliberate: the backslashes count, as they do for decorations.
TEST(PDFTemplate, DeliberateTextGrowsTheBoxByTheEscapedLine) {
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawText("(", 0, 0); },
                  {0, -11.56F, 6.11F, 9.31F});
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawText("A\\\nA", 0, 0); },
                  {0, -23.12F, 12.23F, 9.31F});
  // "ll" is 4.44 wide, but "(" is written with a backslash and comes to 6.11.
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawText("ll\n(", 0, 0); },
                  {0, -23.12F, 6.11F, 9.31F});
}

// TextWidth is that of the size shown, 0.65 of the full one; the heights are those of the full one.
TEST(PDFTemplate, SubscriptGrowsTheBoxByItsReducedWidthAndFullHeight) {
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        Decorated(drawn)->SetSubscript(true);
        drawn.DrawText("AA", 0, 0);
      },
      {0, -11.56F, 8.671F, 9.31F});
}

// The underline is as wide as the text in full size.
TEST(PDFTemplate, DecorationsGrowTheBoxAgain) {
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        const auto font = Decorated(drawn);
        font->SetSuperscript(true);
        font->SetUnderline(true);
        drawn.DrawText("AA", 0, 0);
      },
      {0, -11.56F, 13.34F, 9.31F});
}

// A size below zero turns the text round: widths, tops and leadings change their side.
TEST(PDFTemplate, TextOfANegativeSizeGrowsTheBoxToTheOtherSide) {
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        Decorated(drawn)->SetSize(-10);
        drawn.DrawText("A\nAA", 0, 0);
      },
      {-6.67F, -9.31F, 0, 23.12F});
}

TEST(PDFTemplate, AlignedTextGrowsTheBoxByTheBoxPassed) {
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        drawn.DrawTextAligned("far wider than the box\nand higher", 10, 20, 5, 6, htaRight, vtaTop);
      },
      {10, 20, 15, 26});
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawTextAligned("x", 10, 20, -5, -6); },
                  {5, 14, 10, 20});
}

TEST(PDFTemplate, EmptyAlignedTextGrowsNothing) {
  ExpectBoxAround([](PDFTemplate& drawn) { drawn.DrawTextAligned("", 10, 20, 5, 6); },
                  {1e6F, 1e6F, -1e6F, -1e6F});
}

TEST(PDFTemplate, TransformationsAndLineWidthsDoNotCountForTheBox) {
  ExpectBoxAround(
      [](PDFTemplate& drawn) {
        drawn.GraphicsState()->SetLineWidth(50);
        drawn.GraphicsState()->Translate(1000, 1000);
        drawn.DrawLine(1, 2, 3, 4);
      },
      {1, 2, 3, 4});
}

TEST(PDFTemplate, BoxGrowsOnlyWhileAutoSizeClipBoxIsOn) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetAutoSizeClipBox(false);
  EXPECT_FALSE(drawn->AutoSizeClipBox());
  const auto font = Decorated(*drawn);
  font->SetUnderline(true);
  drawn->DrawText("A", 100, 100);
  drawn->DrawTextAligned("A", 100, 100, 50, 50);
  drawn->DrawLine(100, 100, 200, 200);
  drawn->DrawLineTo(300, 300);
  drawn->DrawRect(100, 100, 500, 500);
  const auto image = document->Images()->Add();
  image->SetFileName(WriteBlankBmp("image.bmp", 4, 3).u8string());
  drawn->DrawImage(image, 100, 100);
  ExpectEdges(*drawn, {0, 0, 0, 0});
  drawn->SetAutoSizeClipBox(true);
  ExpectEdges(*drawn, {0, 0, 0, 0});
  drawn->DrawLine(1, 2, 3, 4);
  ExpectEdges(*drawn, {0, 0, 3, 4});
}

TEST(PDFTemplate, FailedDrawingAppendsNothingAndGrowsNothing) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetCurPos(7, 8);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawLine(50, 50, kInfinity, 0); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawLineTo(kNotANumber, 0); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawRect(kLargest, 0, kLargest, 0); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawRect(0, 0, 3e9F, 0); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawText("A", 3e9F, 0); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawTextAligned("A", 3e9F, 0, 1, 1); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawText("\xFF", 50, 50); }), Error::kInvalidArgument);
  Decorated(*drawn)->SetUnderline(true);
  // The text itself can be written here, the end of its underline not.
  EXPECT_EQ(ErrorNumberOf([&] { drawn->DrawText("AAAAAAAAAAAAAAAAAAAAAAA", 2147483520.0F, -500); }),
            Error::kOverflow);
  ExpectEdges(*drawn, {0, 0, 0, 0});
  EXPECT_EQ(drawn->GetCurPos().x, 7);
  EXPECT_EQ(drawn->GetCurPos().y, 8);
  EXPECT_EQ(Save(*document, "nothing.pdf", Check::kForm).pdf.Stream(4), "q\nQ\n");
}

TEST(PDFTemplate, BoxThatCannotBeWrittenFailsTheSaveAndNamesTheTemplate) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add("logo");
  drawn->SetTop(kNotANumber);
  EXPECT_EQ(ErrorNumberOf([&] { Save(*document, "broken"); }), Error::kOverflow);
  EXPECT_EQ(ErrorTextOf([&] { Save(*document, "broken"); }),
            "PDFDocument.SavePDFFile: clip box of PDFTemplate 'logo': a value of nan cannot be "
            "written: PDF numbers "
            "are below 2^31");
  drawn->SetTop(1);
  document->Templates()->Add()->SetLeft(-3e9F);
  EXPECT_EQ(ErrorTextOf([&] { Save(*document, "broken"); }),
            "PDFDocument.SavePDFFile: clip box of PDFTemplate /T2: a value of -3e+09 cannot be "
            "written: PDF numbers "
            "are below 2^31");
}

TEST(PDFTemplate, WhatIsDrawnOnATemplateIsNotOnThePage) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto drawn = document->Templates()->Add();
  drawn->SetFont(document->Fonts()->Add("Courier"));
  drawn->GraphicsState()->SetFillColor(0xFF);
  drawn->DrawText("in the template", 0, 0);
  page->DrawTemplate(drawn, 72, 700);
  EXPECT_EQ(ContentOf(*page), "q\n1 0 0 1 72 700  cm\n/T1 Do\nQ\n");
  EXPECT_EQ(page->GraphicsState()->FillColor(), 0);
  const SavedDocument saved = Save(*document, "separate.pdf");
  EXPECT_NE(saved.pdf.Object(4).find("/Font << /F0 7 0 R\n >>\n/XObject << /T1 6 0 R\n >>\n"),
            std::string_view::npos);
  EXPECT_NE(saved.pdf.Object(6).find("/Font << /F0 7 0 R\n /F1 8 0 R\n >>\n>>\n/Length"),
            std::string_view::npos);
  EXPECT_EQ(TextOf(saved.path), "in the template\n\f");
}

TEST(PDFTemplate, DrawnAThousandTimesItIsWrittenOnce) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add("letterhead");
  drawn->DrawText("letterhead", 0, 0);
  for (int i = 0; i < 10; ++i) {
    const auto page = document->Pages()->Add();
    for (int j = 0; j < 100; ++j) page->DrawTemplate(drawn, 5 * i, 7 * j);
  }
  const SavedDocument saved = Save(*document, "thousand.pdf");
  ASSERT_EQ(saved.pdf.Count(), 3 + 2 * 10 + 1 + 1);
  std::size_t written = 0;
  for (std::size_t at = 0; (at = saved.bytes.find("(letterhead)", at)) != std::string::npos; ++at) {
    ++written;
  }
  EXPECT_EQ(written, 1);
  for (std::size_t page = 0; page < 10; ++page) {
    const std::string object(saved.pdf.Object(4 + 2 * page));
    EXPECT_NE(object.find("/XObject << /T1 24 0 R\n >>\n"), std::string::npos) << object;
  }
  std::string shown;
  for (int i = 0; i < 1000; ++i) shown += i % 100 == 99 ? "letterhead\n\f" : "letterhead\n";
  EXPECT_EQ(TextOf(saved.path), shown);
}

TEST(PDFTemplate, ShowsAsItIsWhenSaved) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  document->Pages()->Add()->DrawTemplate(drawn, 72, 700);
  drawn->DrawText("drawn later", 0, 0);
  EXPECT_EQ(TextOf(Save(*document, "one.pdf").path), "drawn later\n\f");
  drawn->DrawText("after a save", 0, -20);
  EXPECT_EQ(TextOf(Save(*document, "two.pdf").path), "drawn later\nafter a save\n\f");
}

// A drawing with a bit of everything, within 0, 0 and 200, 150.
template <class Target>
void DrawCard(Target& target, PDFDocument& document) {
  const auto state = target.GraphicsState();
  state->Push();
  state->SetFillColor(0xC0E0FF);
  state->SetStrokeColor(0x802000);
  state->SetLineWidth(3);
  target.DrawRect(4, 4, 190, 140, Paint::kStrokeAndFill);
  state->Pop();
  target.DrawRect(0, 0, 200, 150, Paint::kNone);  // room for the thick line
  const auto font = document.Fonts()->Add("Times-Italic");
  font->SetSize(20);
  font->SetUnderline(true);
  target.SetFont(font);
  target.DrawText("Text (italic)\nand more", 20, 110);
  target.DrawTextAligned("aligned", 10, 10, 170, 30, htaRight, vtaCenter);
  state->Push();
  state->Translate(100, 40);
  state->Rotate(20);
  state->SetLineDashPattern(6, 2);
  target.DrawRect(0, 0, 40, 20);
  target.DrawLineTo(70, 5);
  state->Pop();
  target.DrawLine(20, 20, 60.5F, 40.25F);
}

void ExpectSamePictures(const SavedDocument& a, const SavedDocument& b, const SavedDocument& blank,
                        int dotsPerInch) {
  const auto picturesOfA = PicturesOf(a.path, dotsPerInch);
  const auto picturesOfB = PicturesOf(b.path, dotsPerInch);
  const auto blanks = PicturesOf(blank.path, dotsPerInch);
  for (std::size_t i = 0; i < picturesOfA.size(); ++i) {
    EXPECT_TRUE(picturesOfA[i].pixels == picturesOfB[i].pixels) << picturesOfA[i].program;
    EXPECT_FALSE(picturesOfA[i].pixels == blanks[i].pixels) << picturesOfA[i].program;
  }
}

class PDFTemplatePictures : public testing::Test {
 protected:
  SavedDocument Drawn(const char* name, const std::function<void(PDFPage&, PDFDocument&)>& draw) {
    const auto document = PDFDocument::Create();
    const auto page = document->Pages()->Add();
    page->SetPageExtents(300, 250);
    draw(*page, *document);
    return Save(*document, name);
  }
  SavedDocument Blank() {
    return Drawn("blank.pdf", [](PDFPage&, PDFDocument&) {});
  }
};

TEST_F(PDFTemplatePictures, TemplateLooksLikeTheSameDrawingOnThePage) {
  const SavedDocument placed = Drawn("placed.pdf", [](PDFPage& page, PDFDocument& document) {
    const auto card = document.Templates()->Add();
    DrawCard(*card, document);
    page.DrawTemplate(card);
  });
  const SavedDocument direct =
      Drawn("direct.pdf", [](PDFPage& page, PDFDocument& document) { DrawCard(page, document); });
  ExpectSamePictures(placed, direct, Blank(), 144);
}

TEST_F(PDFTemplatePictures, PlacedTemplatesLookLikeMovedDrawings) {
  const std::array<std::array<float, 2>, 3> places = {{{0, 0}, {70, 80}, {95.5F, 33.25F}}};
  const SavedDocument placed = Drawn("placed.pdf", [&](PDFPage& page, PDFDocument& document) {
    const auto card = document.Templates()->Add();
    DrawCard(*card, document);
    for (const auto& [x, y] : places) page.DrawTemplate(card, x, y);
  });
  const SavedDocument direct = Drawn("direct.pdf", [&](PDFPage& page, PDFDocument& document) {
    for (const auto& [x, y] : places) {
      page.GraphicsState()->Push();
      page.GraphicsState()->Translate(x, y);
      DrawCard(page, document);
      page.GraphicsState()->Pop();
    }
  });
  ExpectSamePictures(placed, direct, Blank(), 144);
}

// The colour that the page has set does not show through a template that sets its own, and what the
// template sets is gone behind it.
TEST_F(PDFTemplatePictures, TemplateTakesThePagesStateAndLeavesItAsItWas) {
  const SavedDocument placed = Drawn("placed.pdf", [](PDFPage& page, PDFDocument& document) {
    const auto squares = document.Templates()->Add();
    squares->DrawRect(10, 10, 50, 50, Paint::kFill);
    squares->GraphicsState()->SetFillColor(0x00FF00);
    squares->DrawRect(70, 10, 50, 50, Paint::kFill);
    page.GraphicsState()->SetFillColor(0x0000FF);
    page.DrawTemplate(squares);
    page.DrawRect(130, 10, 50, 50, Paint::kFill);
  });
  const SavedDocument direct = Drawn("direct.pdf", [](PDFPage& page, PDFDocument&) {
    page.GraphicsState()->SetFillColor(0x0000FF);
    page.DrawRect(10, 10, 50, 50, Paint::kFill);
    page.DrawRect(130, 10, 50, 50, Paint::kFill);
    page.GraphicsState()->SetFillColor(0x00FF00);
    page.DrawRect(70, 10, 50, 50, Paint::kFill);
  });
  ExpectSamePictures(placed, direct, Blank(), 72);
}

// The box lies at 70, 80 to 110, 140 of the page; at 72 dots an inch a dot is a point. The dots at
// its edges, inside and outside, are not looked at: programs differ in them.
TEST_F(PDFTemplatePictures, NothingShowsOutsideTheClipBox) {
  const SavedDocument placed = Drawn("placed.pdf", [](PDFPage& page, PDFDocument& document) {
    const auto square = document.Templates()->Add();
    square->DrawRect(0, 0, 100, 100, Paint::kFill);
    square->SetClipBox(20, 30, 60, 90);
    page.DrawTemplate(square, 50, 50);
  });
  for (const Picture& picture : PicturesOf(placed.path, 72)) {
    ASSERT_EQ(picture.pixels.rgb.size(), 300U * 250 * 3);
    for (std::size_t row = 0; row < 250; ++row) {
      for (std::size_t column = 0; column < 300; ++column) {
        const std::string_view dot = picture.pixels.At(column, row);
        const std::size_t above = 249 - row;  // points from the bottom
        if (column < 69 || column > 110 || above < 79 || above > 140) {
          ASSERT_EQ(dot, "\xFF\xFF\xFF") << picture.program << " at " << column << ", " << above;
        } else if (column > 70 && column < 109 && above > 80 && above < 139) {
          ASSERT_EQ(dot, std::string_view("\0\0\0", 3))
              << picture.program << " at " << column << ", " << above;
        }
      }
    }
  }
}

TEST(PDFTemplate, ExpandsItsClipBoxToItsTextBoxes) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->SetAutoSizeClipBox(false);
  drawn->ExpandClipBoxToFitTextBoxes();
  drawn->TextBoxes()->Add()->Move(-10, 30, 20, 40);
  drawn->TextBoxes()->Add()->Move(50, 5, 20, 1);
  ExpectEdges(*drawn, {0, 0, 0, 0});
  Save(*document, "boxes.pdf", Check::kForm);
  ExpectEdges(*drawn, {0, 0, 0, 0});
  drawn->ExpandClipBoxToFitTextBoxes();
  ExpectEdges(*drawn, {-10, -10, 70, 30});
}

TEST(PDFTemplate, AClipBoxThatCannotBeExpandedStaysAsItIs) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  drawn->TextBoxes()->Add()->Move(-10, 30, 20, 40);
  drawn->TextBoxes()->Add()->Move(kLargest, 0, kLargest, 1);
  EXPECT_EQ(ErrorNumberOf([&] { drawn->ExpandClipBoxToFitTextBoxes(); }), Error::kOverflow);
  EXPECT_EQ(ErrorTextOf([&] { drawn->ExpandClipBoxToFitTextBoxes(); }),
            "PDFTemplate.ExpandClipBoxToFitTextBoxes: PDFTextBox without a key: a sum of "
            "coordinates is beyond a single");
  drawn->SetAutoSizeClipBox(true);
  EXPECT_EQ(ErrorTextOf([&] { Save(*document, "broken"); }),
            "PDFDocument.SavePDFFile: PDFTextBox without a key of PDFTemplate /T1: a sum of "
            "coordinates is beyond a single");
  ExpectEdges(*drawn, {0, 0, 0, 0});
}

TEST(PDFTemplate, TextBoxesAreDrawnBehindTheTemplatesOwnContent) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  const auto box = drawn->TextBoxes()->Add();
  box->Move(10, 20, 30, 40);
  box->SetText("a");
  box->SetSelStart(0);
  box->SetSelLength(1);
  box->SetSelFont(document->Fonts()->Add("Courier"));
  box->SetBorderWidth(0);
  document->Pages()->Add()->DrawTemplate(drawn);
  const SavedDocument saved = Save(*document, "boxes.pdf");
  // Courier's leading is 10.55.
  EXPECT_EQ(saved.pdf.Object(6),
            "<< /Type /XObject\n/Subtype /Form\n/FormType 1\n/BBox [ 0  -20  40  20 ]\n"
            "/Resources << \n/Font << /F0 7 0 R\n /F1 8 0 R\n >>\n>>\n/Length 0000000115 >>\n"
            "stream\nq\nQ\n% Begin Textbox \nq\n10  20  m\n10  20  30  -40  re\nW\nn\n"
            "BT\n12 7  Td\n0 0 0 rg\n/F1 10  Tf\n(a) Tj\nET\nQ\n% End Textbox\nendstream\n");
}

// Deliberate: the clip box is grown first, and the box is sized when it is drawn.
TEST(PDFTemplate, DeliberateATextBoxThatSizesItselfIsCountedAsItWasBefore) {
  const auto document = PDFDocument::Create();
  const auto drawn = document->Templates()->Add();
  const auto box = drawn->TextBoxes()->Add();
  box->Move(0, 20, 30, 10);
  box->SetText("a\nb");
  box->SetAutoSize(true);
  Save(*document, "boxes.pdf");
  ExpectEdges(*drawn, {0, 0, 30, 20});
  EXPECT_EQ(box->Width(), 34);
  Save(*document, "boxes.pdf");
  ExpectEdges(*drawn, {0, 20 - 2 * 11.56F - 2.25F - 4, 34, 20});
}

}  // namespace
}  // namespace folivar::test
