#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/page/PDFPage.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

TEST(PDFPage, StartsAsLetterWithoutAClipBox) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  EXPECT_EQ(page->Width(), 612);
  EXPECT_EQ(page->Height(), 792);
  EXPECT_EQ(page->Key(), "");
  EXPECT_EQ(page->ParentDocument(), document);
  const auto [left, bottom, right, top] = page->GetClipBox();
  EXPECT_EQ(left, -1);
  EXPECT_EQ(bottom, -1);
  EXPECT_EQ(right, -1);
  EXPECT_EQ(top, -1);
}

TEST(PDFPage, EmptyPageIsTwoObjects) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add();
  const SavedDocument saved = Save(*document, "empty.pdf");
  EXPECT_EQ(saved.pdf.Object(4),
            "<< /Type /Page\n/Parent 3 0 R\n/MediaBox [ 0 0 612  792 ]\n/Contents 5 0 R\n"
            "/Resources << \n/Font << /F0 6 0 R\n >>\n>>\n>>\n");
  EXPECT_EQ(saved.pdf.Object(5), "<< /Length 0000000004 >>\nstream\nq\nQ\nendstream\n");
  EXPECT_EQ(saved.pdf.Count(), 6);
}

TEST(PDFPage, ExtentsAndClipBoxAreWritten) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->SetPageExtents(595.28F, 841.89F);
  page->SetClipBox(10, 20, 300, 400);
  const SavedDocument saved = Save(*document, "clip.pdf");
  EXPECT_EQ(saved.pdf.Object(4),
            "<< /Type /Page\n/Parent 3 0 R\n/MediaBox [ 0 0 595.28  841.89 ]\n"
            "/CropBox [ 10  20  300  400 ]\n/Contents 5 0 R\n"
            "/Resources << \n/Font << /F0 6 0 R\n >>\n>>\n>>\n");
}

TEST(PDFPage, ClipBoxWithATopBelowZeroIsNotWritten) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->SetClipBox(10, 20, 300, -1);
  const SavedDocument saved = Save(*document, "noclip.pdf", Check::kForm);
  EXPECT_EQ(saved.pdf.Object(4).find("/CropBox"), std::string::npos);
  page->SetClipBox(10, -20, 300, 0);
  EXPECT_NE(Save(*document, "clip0.pdf", Check::kForm)
                .pdf.Object(4)
                .find("/CropBox [ 10  -20  300  0 ]\n"),
            std::string::npos);
}

TEST(PDFPage, FontChosenIsListedEvenWhenNothingIsDrawn) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->SetFont(document->Fonts()->Add("Times-Roman"));
  page->SetFont(document->Fonts()->Add("Helvetica"));
  page->SetFont(document->Fonts()->Add("times-roman"));
  const SavedDocument saved = Save(*document, "fonts.pdf");
  EXPECT_NE(saved.pdf.Object(4).find("/Font << /F0 6 0 R\n /F1 7 0 R\n >>\n"), std::string::npos);
}

TEST(PDFPage, SizeThatCannotBeWrittenFailsTheSaveAndNamesThePage) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add("cover");
  page->SetWidth(std::numeric_limits<float>::infinity());
  EXPECT_EQ(ErrorNumberOf([&] { Save(*document, "broken"); }), Error::kOverflow);
  EXPECT_EQ(ErrorTextOf([&] { Save(*document, "broken"); }),
            "PDFDocument.SavePDFFile: extents or clip box of PDFPage 'cover': a value of inf "
            "cannot be written: "
            "PDF numbers are below 2^31");
  page->SetWidth(100);
  Save(*document, "mended.pdf");
}

TEST(PDFPage, NegativeAndZeroSizesAreWrittenAsGiven) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add()->SetPageExtents(0, -5.5F);
  const SavedDocument saved = Save(*document, "negative", Check::kForm);
  EXPECT_NE(saved.pdf.Object(4).find("/MediaBox [ 0 0 0  -5.5 ]\n"), std::string::npos);
}

TEST(PDFPage, ThumbnailIsWrittenWhenItIsSet) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  EXPECT_EQ(page->Thumbnail(), nullptr);
  const auto image = document->Images()->Add();
  image->SetFileName(WriteBlankBmp("thumbnail.bmp", 76, 98).u8string());
  page->SetThumbnail(image);
  EXPECT_EQ(page->Thumbnail(), image);
  const SavedDocument saved = Save(*document, "thumbnail.pdf");
  EXPECT_EQ(saved.pdf.Object(4),
            "<< /Type /Page\n/Parent 3 0 R\n/MediaBox [ 0 0 612  792 ]\n/Contents 5 0 R\n"
            "/Resources << \n/Font << /F0 7 0 R\n >>\n>>\n/Thumb 6 0 R\n>>\n");

  page->SetThumbnail(nullptr);
  EXPECT_EQ(page->Thumbnail(), nullptr);
  EXPECT_EQ(Save(*document, "none.pdf").pdf.Object(4).find("/Thumb"), std::string_view::npos);
}

TEST(PDFPage, ThumbnailOfAnotherDocumentIsRefused) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto image = document->Images()->Add();
  page->SetThumbnail(image);
  const auto other = PDFDocument::Create()->Images()->Add();
  EXPECT_EQ(ErrorNumberOf([&] { page->SetThumbnail(other); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([&] { page->SetThumbnail(other); }),
            "PDFPage.Thumbnail: PDFImage /I1: belongs to another document");
  EXPECT_EQ(page->Thumbnail(), image);
}

TEST(PDFPage, TextBoxesAreDrawnBehindThePagesOwnContentInTheirOrder) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto first = page->TextBoxes()->Add("first");
  page->TextBoxes()->Add("second")->SetBorderWidth(0);
  first->Move(10, 20, 30, 40);
  first->SetText("a");
  first->GraphicsState()->SetLineWidth(3);
  page->DrawLine(1, 2, 3, 4);
  const SavedDocument saved = Save(*document, "boxes.pdf");
  // Helvetica: leading 11.56, so the baseline is at 20 - 11.56 - 2, rounded.
  EXPECT_EQ(saved.pdf.Stream(5),
            "q\n1  2  m\n3  4  l\nS\nQ\n"
            "% Begin Textbox \nq\n3  w\n0 0 0 RG\n[1 0 ] 0 d\n"
            "10  20  m\n10  20  30  -40  re\nW\ns\n"
            "BT\n12 6  Td\n0 0 0 rg\n/F0 10  Tf\n(a) Tj\nET\n"
            "[1 0 ] 0 d\n10  20  m\n10  20  30  -40  re\ns\nQ\n% End Textbox\n"
            "% Begin Textbox \nq\n"
            "0  0  m\n0  0  9.44  -6.07  re\nW\nn\nBT\nET\nQ\n% End Textbox\n");
  page->TextBoxes()->ReOrder("first");
  const std::string reordered(Save(*document, "boxes.pdf").pdf.Stream(5));
  EXPECT_GT(reordered.find("(a) Tj"), reordered.find("9.44"));
}

}  // namespace
}  // namespace folivar::test
