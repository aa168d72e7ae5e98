#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

class PDFTextBoxesTest : public testing::Test {
 protected:
  std::string Keys() const {
    std::string keys;
    for (const auto& box : *boxes_) keys += box->Key().IsEmpty() ? "-" : box->Key().Utf8();
    return keys;
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPage> page_ = document_->Pages()->Add();
  std::shared_ptr<PDFTextBoxes> boxes_ = page_->TextBoxes();
};

TEST_F(PDFTextBoxesTest, AreTheSameObjectEachTimeAndEmptyAtFirst) {
  EXPECT_EQ(page_->TextBoxes(), boxes_);
  EXPECT_EQ(boxes_->count(), 0);
}

TEST_F(PDFTextBoxesTest, AddPutsABoxAtAPlace) {
  const auto first = boxes_->Add("a");
  boxes_->Add();
  boxes_->Add("c", 1);
  boxes_->Add("d", {}, "A");
  EXPECT_EQ(Keys(), "cad-");
  EXPECT_EQ(boxes_->Item(2), first);
  EXPECT_EQ(boxes_->Item("A"), first);
  EXPECT_EQ(boxes_->count(), 4);
}

TEST_F(PDFTextBoxesTest, AKeyInUseRaises457AndTheFirstKeepsIt) {
  const auto first = boxes_->Add("key");
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Add("KEY"); }), Error::kKeyInUse);
  EXPECT_EQ(boxes_->count(), 1);
  EXPECT_EQ(boxes_->Item("key"), first);
  EXPECT_EQ(first->Key(), "key");
}

TEST_F(PDFTextBoxesTest, PlacesThatNameNoBoxRaise) {
  boxes_->Add("a");
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Add("b", 1, 1); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Add("b", 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Add("b", "x"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Item("x"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Remove(2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(boxes_->count(), 1);
}

TEST_F(PDFTextBoxesTest, KeyExistsNeverRaises) {
  boxes_->Add("a");
  EXPECT_TRUE(boxes_->KeyExists("A"));
  EXPECT_TRUE(boxes_->KeyExists(1));
  EXPECT_FALSE(boxes_->KeyExists(2));
  EXPECT_FALSE(boxes_->KeyExists(""));
  EXPECT_FALSE(boxes_->KeyExists(Value::Null()));
}

TEST_F(PDFTextBoxesTest, ARemovedBoxIsNotDrawnAndStaysUsable) {
  const auto box = boxes_->Add("a");
  box->SetText("gone");
  boxes_->Remove("a");
  EXPECT_EQ(Keys(), "");
  box->SetSelText(" and used");
  EXPECT_EQ(box->Text(), "gone and used");
  EXPECT_EQ(ContentOf(*page_), "");
}

TEST_F(PDFTextBoxesTest, ReOrderMovesABox) {
  boxes_->Add("a");
  boxes_->Add("b");
  boxes_->Add("c");
  boxes_->ReOrder("a");
  EXPECT_EQ(Keys(), "bca");
  boxes_->ReOrder("A", "b");
  EXPECT_EQ(Keys(), "abc");
  EXPECT_TRUE(boxes_->KeyExists("a"));
}

TEST_F(PDFTextBoxesTest, DeliberateReOrderIgnoresAfterWhenBothPlacesAreGiven) {
  boxes_->Add("a");
  boxes_->Add("b");
  boxes_->Add("c");
  boxes_->ReOrder("c", 1, 2);
  EXPECT_EQ(Keys(), "cab");
}

TEST_F(PDFTextBoxesTest, ReOrderNeverRaises) {
  boxes_->Add("a");
  boxes_->Add("b");
  boxes_->ReOrder("x");
  EXPECT_EQ(Keys(), "ab");
  boxes_->ReOrder("a", 2);
  EXPECT_EQ(Keys(), "b") << "there is one box left, so place 2 is none";
}

TEST_F(PDFTextBoxesTest, BoxesOfATemplateHaveItAsTheirParent) {
  const auto drawn = document_->Templates()->Add();
  EXPECT_EQ(drawn->TextBoxes()->Add()->Parent(), drawn);
  EXPECT_EQ(boxes_->Add()->Parent(), page_);
}

TEST_F(PDFTextBoxesTest, AFontTooLargeToMeasureRaises6AndAddsNothing) {
  page_->Font()->SetSize(1e38F);
  EXPECT_EQ(ErrorNumberOf([&] { boxes_->Add(); }), Error::kOverflow);
  EXPECT_EQ(boxes_->count(), 0);
}

}  // namespace
}  // namespace folivar::test
