#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/navigation/PDFHyperLink.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

class PDFHyperLinkTest : public testing::Test {
 protected:
  // The lines between the rectangle and the end of the dictionary.
  std::string LinesBehindRect() {
    const std::string text = ObjectText();
    const std::string rect = " ]\n";
    const std::size_t start = text.find(rect, text.find("/Rect")) + rect.size();
    EXPECT_TRUE(text.ends_with(">>\n"));
    return text.substr(start, text.size() - start - 3);
  }

  std::string ObjectText() {
    return std::string(Save(*document_, "link.pdf", Check::kForm).pdf.Object(6));
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::shared_ptr<PDFHyperLink> link_ = page_->HyperLinks()->Add("key");
};

TEST_F(PDFHyperLinkTest, HasItsDefaults) {
  EXPECT_EQ(link_->Key(), "key");
  EXPECT_TRUE(link_->Tag().IsEmpty());
  EXPECT_EQ(link_->LinkHighlightAction(), lhaUserDefault);
  EXPECT_EQ(link_->BorderWidth(), 1);
  EXPECT_EQ(link_->BorderColor(), 0);
  EXPECT_EQ(link_->Destination(), link_->Destination());
  EXPECT_EQ(ObjectText(), "<< /Type /Annot\n/Subtype /Link\n/Rect [ 0  0  0  0  ]\n>>\n");
}

TEST_F(PDFHyperLinkTest, WithAllDefaultsAndADestinationWritesNothingElse) {
  link_->SetRegion(10, 10, 100, 20);
  link_->Destination()->SetPage(page_);
  EXPECT_EQ(ObjectText(),
            "<< /Type /Annot\n/Subtype /Link\n/Rect [ 10  10  110  30  ]\n"
            "/Dest [ 4 0 R /XYZ 0  0  0  ]\n>>\n");
}

TEST_F(PDFHyperLinkTest, WritesAllItsEntriesInTheirOrder) {
  link_->SetRegion(10, 10, 100, 20);
  link_->SetLinkHighlightAction(lhaInvert);
  link_->SetBorderWidth(2);
  link_->SetBorderDashPattern(3, 2);
  link_->SetBorderColor(0x0000FF);
  link_->Destination()->SetPage(page_);
  EXPECT_EQ(ObjectText(),
            "<< /Type /Annot\n/Subtype /Link\n/H /I\n/Rect [ 10  10  110  30  ]\n"
            "/Dest [ 4 0 R /XYZ 0  0  0  ]\n/Border [0 0 2  [3 2 ]]\n/C [1 0 0 ]\n>>\n");
}

TEST_F(PDFHyperLinkTest, HighlightsOneToFourAreWritten) {
  const std::string head = "<< /Type /Annot\n/Subtype /Link\n";
  const std::string tail = "/Rect [ 0  0  0  0  ]\n>>\n";
  const auto textFor = [&](int action) {
    link_->SetLinkHighlightAction(static_cast<PDFLinkHighlightAction>(action));
    EXPECT_EQ(link_->LinkHighlightAction(), action);
    return ObjectText();
  };
  EXPECT_EQ(textFor(1), head + "/H /N\n" + tail);
  EXPECT_EQ(textFor(2), head + "/H /I\n" + tail);
  EXPECT_EQ(textFor(3), head + "/H /O\n" + tail);
  EXPECT_EQ(textFor(4), head + "/H /P\n" + tail);
  for (const int none : {0, 5, -1, 99}) EXPECT_EQ(textFor(none), head + tail);
}

// Deliberate: a dash of 0 is how no border is expressed.
TEST_F(PDFHyperLinkTest, DeliberateInvisibleBorderIsADashOf0) {
  link_->SetBorderWidth(0);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 1 [0 1]]\n");
  link_->SetBorderDashPattern(3, 2);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 1 [0 1]]\n");
  link_->SetBorderWidth(7);
  link_->SetBorderDashPattern(0, 5);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 1 [0 1]]\n");
  link_->SetBorderDashPattern(0, 0);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 1 [0 1]]\n");
}

TEST_F(PDFHyperLinkTest, ABorderIsWrittenUnlessItIsSolidAndOfWidth1) {
  EXPECT_EQ(LinesBehindRect(), "");
  link_->SetBorderDashPattern(7, 0);
  EXPECT_EQ(LinesBehindRect(), "") << "without gaps the dash does not matter";
  link_->SetBorderWidth(2.5F);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 2.5  [7 0 ]]\n");
  link_->SetBorderWidth(1);
  link_->SetBorderDashPattern(3.25F, 2);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 1  [3.25 2 ]]\n");
  link_->SetBorderWidth(-1);
  EXPECT_EQ(LinesBehindRect(), "/Border [0 0 -1  [3.25 2 ]]\n") << "nothing is checked";
}

// Deliberate: black is 0, and 0 is the reader's own colour.
TEST_F(PDFHyperLinkTest, DeliberateBlackWritesNoColour) {
  link_->SetBorderColor(0);
  EXPECT_EQ(LinesBehindRect(), "");
  link_->SetBorderColor(0x808000);
  EXPECT_EQ(LinesBehindRect(), "/C [0 0.502 0.502 ]\n");
  link_->SetBorderColor(0x01000000);
  EXPECT_EQ(LinesBehindRect(), "/C [0 0 0 ]\n") << "the top byte is no part of a colour";
}

TEST_F(PDFHyperLinkTest, EdgesAreWrittenAsTheyAreKept) {
  link_->SetLeft(100);
  link_->SetRight(50);
  link_->SetTop(10);
  link_->SetBottom(20.5F);
  EXPECT_EQ(ObjectText(), "<< /Type /Annot\n/Subtype /Link\n/Rect [ 100  20.5  50  10  ]\n>>\n");
}

TEST_F(PDFHyperLinkTest, ANumberThatPdfCannotHoldNamesTheLink) {
  link_->SetTop(3e9F);
  EXPECT_EQ(ErrorTextOf([&] { ObjectText(); }),
            "PDFDocument.SavePDFFile: PDFHyperLink 'key': a value of 3e+09 cannot be written: PDF "
            "numbers are below 2^31");
  link_->SetTop(0);
  link_->SetBorderWidth(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(ErrorNumberOf([&] { ObjectText(); }), Error::kOverflow);
  link_->SetBorderWidth(1);
  link_->Destination()->SetPage(page_);
  link_->Destination()->SetZoom(-3e9F);
  EXPECT_EQ(ErrorTextOf([&] { ObjectText(); }),
            "PDFDocument.SavePDFFile: Destination of PDFHyperLink 'key': a value of -3e+09 cannot "
            "be written: PDF numbers are "
            "below 2^31");
  link_->Destination()->SetZoom(0);
  const auto other = page_->HyperLinks()->Add();
  other->SetLeft(3e9F);
  EXPECT_EQ(ErrorTextOf([&] { ObjectText(); }),
            "PDFDocument.SavePDFFile: PDFHyperLink without a key: a value of 3e+09 cannot be "
            "written: PDF numbers are below "
            "2^31");
  other->SetLeft(0);
  EXPECT_NE(ObjectText(), "") << "the failures changed nothing";
}

}  // namespace
}  // namespace folivar::test
