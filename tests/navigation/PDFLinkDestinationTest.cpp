#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "folivar/folivar.h"
#include "folivar/navigation/PDFLinkDestination.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

class PDFLinkDestinationTest : public testing::Test {
 protected:
  // The line that the destination makes in its bookmark, the document being saved.
  std::string Line() {
    const SavedDocument saved = Save(*document_, "destination.pdf", Check::kForm);
    const std::string text(saved.pdf.Object(3));
    const std::string head = "<< /Title ()\n/Parent 2 0 R\n";
    EXPECT_TRUE(text.starts_with(head)) << text;
    EXPECT_TRUE(text.ends_with(">>\n")) << text;
    return text.substr(head.size(), text.size() - head.size() - 3);
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPages> pages_ = document_->Pages();
  std::shared_ptr<PDFPage> page_ = pages_->Add("page");  // object 5
  std::shared_ptr<PDFBookmark> bookmark_ = document_->Bookmarks()->Add();
  std::shared_ptr<PDFLinkDestination> destination_ = bookmark_->Destination();
};

TEST_F(PDFLinkDestinationTest, LeadsNowhereAtFirst) {
  EXPECT_EQ(destination_->Page(), nullptr);
  EXPECT_EQ(destination_->DestinationMode(), dsXYZ);
  EXPECT_EQ(destination_->Zoom(), 0);
  EXPECT_EQ(destination_->Left(), 0);
  EXPECT_EQ(destination_->Top(), 0);
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, WritesAllItsModes) {
  destination_->SetPage(page_);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /XYZ 0  0  0  ]\n");
  destination_->SetTop(792);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /XYZ 0  792  0  ]\n");
  destination_->SetRegion(100.5F, 200, -50, -20);
  destination_->SetZoom(1.25F);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /XYZ 50.5  200  1.25  ]\n");
  destination_->SetDestinationMode(dsFit);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /Fit ]\n");
  destination_->SetDestinationMode(dsFitHorz);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /FitH 200  ]\n");
  destination_->SetDestinationMode(dsFitVert);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /FitV 50.5  ]\n");
  destination_->SetDestinationMode(dsFitRect);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /FitR 50.5  180  100.5  200  ]\n");
}

TEST_F(PDFLinkDestinationTest, AnUnknownModeIsKeptAndWritesNothing) {
  destination_->SetPage(page_);
  for (const int mode : {7, 5, -1}) {
    destination_->SetDestinationMode(static_cast<PDFDestinationStyle>(mode));
    EXPECT_EQ(destination_->DestinationMode(), mode);
    EXPECT_EQ(Line(), "");
  }
}

TEST_F(PDFLinkDestinationTest, MeasuresLeftOutAre0) {
  destination_->SetRegion(1, 2);
  EXPECT_EQ(destination_->Right(), 1);
  EXPECT_EQ(destination_->Top(), 2);
  destination_->SetRegion(1, 2, 3);
  EXPECT_EQ(destination_->Right(), 4);
  EXPECT_EQ(destination_->Top(), 2);
}

TEST_F(PDFLinkDestinationTest, LosesItsPageWhenThatIsRemoved) {
  destination_->SetPage(page_);
  EXPECT_EQ(destination_->Page(), page_);
  pages_->Remove(1);
  EXPECT_EQ(destination_->Page(), nullptr);
  pages_->Add();
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, ListensToItsPageAlone) {
  const auto other = pages_->Add("other");
  destination_->SetPage(page_);
  destination_->SetPage(other);
  pages_->Remove("page");
  EXPECT_EQ(destination_->Page(), other);
  destination_->SetPage(nullptr);
  EXPECT_EQ(destination_->Page(), nullptr);
  EXPECT_EQ(Line(), "");
  destination_->SetPage(other);
  destination_->SetPage(other);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /XYZ 0  0  0  ]\n");
}

// Deliberate: moving a page removes it first.
TEST_F(PDFLinkDestinationTest, DeliberateReOrderOfItsPageClearsIt) {
  pages_->Add("other");
  destination_->SetPage(page_);
  pages_->ReOrder("other", 1);
  EXPECT_EQ(destination_->Page(), page_);
  pages_->ReOrder("page", 1);
  EXPECT_EQ(destination_->Page(), nullptr);
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, APageThatIsGoneIsNotWritten) {
  const auto removed = pages_->Add();
  Save(*document_, "before.pdf", Check::kForm);  // it has had a number
  pages_->Remove(2);
  destination_->SetPage(removed);
  EXPECT_EQ(destination_->Page(), removed);
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, APageMovedBackToItsPlaceIsWrittenAgain) {
  pages_->ReOrder("page");
  destination_->SetPage(page_);
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /XYZ 0  0  0  ]\n");
}

TEST_F(PDFLinkDestinationTest, APageSavedInTheMidstOfItsRemovalIsNotWrittenLater) {
  const auto subscription = page_->PageRemoved().Subscribe([this](PDFPage&) {
    Save(*document_, "midst.pdf", Check::kForm);  // the page is still there, and gets a number
    destination_->SetPage(page_);                 // too late to be told
  });
  pages_->Remove(1);
  pages_->Add();
  EXPECT_EQ(destination_->Page(), page_);
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, APageOfAnotherDocumentIsNotWritten) {
  const auto other = PDFDocument::Create();
  destination_->SetPage(other->Pages()->Add());
  EXPECT_NE(destination_->Page(), nullptr);
  EXPECT_EQ(Line(), "");
  Save(*other, "other.pdf", Check::kForm);  // now it has a number there
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, APageWhoseDocumentIsGoneIsNotWritten) {
  std::shared_ptr<PDFPage> page;
  {
    const auto other = PDFDocument::Create();
    page = other->Pages()->Add();
    Save(*other, "other.pdf", Check::kForm);
  }
  destination_->SetPage(page);
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, DoesNotKeepItsPageAlive) {
  {
    const auto other = PDFDocument::Create();
    destination_->SetPage(other->Pages()->Add());
  }
  EXPECT_EQ(destination_->Page(), nullptr);
  EXPECT_EQ(Line(), "");
}

TEST_F(PDFLinkDestinationTest, LivesAsLongAsItsOwnerWhichItKeeps) {
  EXPECT_EQ(bookmark_->Destination(), destination_);
  const std::weak_ptr<PDFBookmark> watch = bookmark_;
  bookmark_.reset();
  document_->Bookmarks()->Remove(1);
  EXPECT_FALSE(watch.expired());
  destination_->SetPage(page_);
  destination_.reset();
  EXPECT_TRUE(watch.expired());
  pages_->Remove(1);
}

TEST_F(PDFLinkDestinationTest, ANumberThatPdfCannotHoldNamesTheBookmark) {
  destination_->SetPage(page_);
  destination_->SetTop(3e9F);
  bookmark_->SetTitle("High");
  EXPECT_EQ(ErrorTextOf([&] { Line(); }),
            "PDFDocument.SavePDFFile: Destination of PDFBookmark 'High': a value of 3e+09 cannot "
            "be written: PDF numbers are "
            "below 2^31");
  destination_->SetDestinationMode(dsFit);
  bookmark_->SetTitle("");
  EXPECT_EQ(Line(), "/Dest [ 5 0 R /Fit ]\n") << "what the mode does not need is not written";
}

}  // namespace
}  // namespace folivar::test
