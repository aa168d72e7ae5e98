#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/navigation/PDFHyperLinks.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

class PDFHyperLinksTest : public testing::Test {
 protected:
  std::string Keys() const {
    std::string keys;
    for (const auto& link : *links_) keys += link->Key().IsEmpty() ? "-" : link->Key().Utf8();
    return keys;
  }

  // The page's dictionary behind its resources.
  std::string EndOfPage() {
    const SavedDocument saved = Save(*document_, "links.pdf");
    const std::string text(saved.pdf.Object(4));
    const std::string resources = " >>\n>>\n";
    return text.substr(text.find(resources) + resources.size());
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::shared_ptr<PDFHyperLinks> links_ = page_->HyperLinks();
};

TEST_F(PDFHyperLinksTest, AreTheSameObjectEachTimeAndEmptyAtFirst) {
  EXPECT_EQ(page_->HyperLinks(), links_);
  EXPECT_EQ(links_->count(), 0);
}

TEST_F(PDFHyperLinksTest, AddPutsALinkAtAPlace) {
  const auto first = links_->Add("a");
  links_->Add();
  links_->Add("c", 1);
  links_->Add("d", {}, "A");
  EXPECT_EQ(Keys(), "cad-");
  EXPECT_EQ(links_->Item("A"), first);
  EXPECT_TRUE(links_->KeyExists("D"));
  EXPECT_FALSE(links_->KeyExists(5));
  links_->Remove("c");
  EXPECT_EQ(Keys(), "ad-");
}

TEST_F(PDFHyperLinksTest, WhatIsWrongRaises) {
  links_->Add("a");
  EXPECT_EQ(ErrorTextOf([&] { links_->Add("A"); }), "PDFHyperLinks.Add: key 'A' is already in use");
  EXPECT_EQ(ErrorNumberOf([&] { links_->Add("b", 1, 1); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { links_->Add("b", 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { links_->Item("x"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { links_->Remove(2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(links_->count(), 1);
}

TEST_F(PDFHyperLinksTest, APageWithoutLinksWritesNone) {
  EXPECT_EQ(EndOfPage(), ">>\n");
  links_->Add("a");
  links_->Remove("a");
  EXPECT_EQ(EndOfPage(), ">>\n");
}

TEST_F(PDFHyperLinksTest, AreNumberedBehindTheirPagesContent) {
  document_->Pages()->Add()->HyperLinks()->Add();
  links_->Add();
  links_->Add();
  EXPECT_EQ(EndOfPage(), "/Annots [ 6 0 R 7 0 R ]\n>>\n");
  const SavedDocument saved = Save(*document_, "links.pdf", Check::kForm);
  EXPECT_EQ(saved.pdf.Object(3), "<< /Type /Pages\n/Kids [ 4 0 R 8 0 R]\n/Count 2\n>>\n");
  EXPECT_TRUE(saved.pdf.IsStream(5));
  EXPECT_TRUE(saved.pdf.IsStream(9));
  for (const std::size_t number : {6U, 7U, 10U}) {
    EXPECT_TRUE(saved.pdf.Object(number).starts_with("<< /Type /Annot\n")) << number;
  }
}

TEST_F(PDFHyperLinksTest, AreListedBeforeTheThumbnail) {
  const auto image = document_->Images()->Add();
  image->SetFileName(WriteBlankBmp("thumbnail.bmp", 4, 3).u8string());
  page_->SetThumbnail(image);
  links_->Add();
  EXPECT_EQ(EndOfPage(), "/Annots [ 6 0 R ]\n/Thumb 7 0 R\n>>\n");
}

TEST_F(PDFHyperLinksTest, AreWrittenInTheirOrder) {
  for (const float left : {10.0F, 20.0F, 30.0F}) links_->Add()->SetLeft(left);
  links_->Add("", 1)->SetLeft(5);
  const SavedDocument saved = Save(*document_, "links.pdf", Check::kForm);
  const std::string head = "<< /Type /Annot\n/Subtype /Link\n/Rect [ ";
  EXPECT_TRUE(saved.pdf.Object(6).starts_with(head + "5 "));
  EXPECT_TRUE(saved.pdf.Object(7).starts_with(head + "10 "));
  EXPECT_TRUE(saved.pdf.Object(9).starts_with(head + "30 "));
}

TEST_F(PDFHyperLinksTest, OfAPageThatIsRemovedStayUsable) {
  const auto link = links_->Add();
  const auto other = document_->Pages()->Add();
  link->Destination()->SetPage(other);
  document_->Pages()->Remove(1);
  EXPECT_EQ(link->Destination()->Page(), other);
  document_.reset();
  other->HyperLinks()->Add()->Destination()->SetPage(page_);
  links_->Add()->SetRegion(1, 2, 3, 4);
  EXPECT_EQ(links_->count(), 2);
}

TEST_F(PDFHyperLinksTest, APageMayLeadToItself) {
  const std::weak_ptr<PDFPage> watch = page_;
  links_->Add()->Destination()->SetPage(page_);
  EXPECT_EQ(EndOfPage(), "/Annots [ 6 0 R ]\n>>\n");
  document_.reset();
  links_.reset();
  page_.reset();
  EXPECT_TRUE(watch.expired()) << "a destination keeps no page alive";
}

}  // namespace
}  // namespace folivar::test
