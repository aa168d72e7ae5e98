#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/page/PDFTemplates.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

// The templates' keys in order, "-" for a template without one.
std::string KeysOf(PDFTemplates& templates) {
  std::string keys;
  for (const auto& member : templates) keys += member->Key().IsEmpty() ? "-" : member->Key().Utf8();
  return keys;
}

class PDFTemplatesOfThree : public testing::Test {
 protected:
  PDFTemplatesOfThree() {
    for (const char* key : {"a", "b", "c"}) templates_->Add(key);
  }

  int AddError(const char* key, const Value& before, const Value& after) {
    return ErrorNumberOf([&] { templates_->Add(key, before, after); });
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFTemplates> templates_ = document_->Templates();
};

TEST_F(PDFTemplatesOfThree, AddWithoutArgumentsAppendsATemplateWithoutAKey) {
  const auto added = templates_->Add();
  EXPECT_EQ(templates_->count(), 4);
  EXPECT_EQ(templates_->Item(4), added);
  EXPECT_TRUE(added->Key().IsEmpty());
  EXPECT_FALSE(templates_->KeyExists(""));
}

TEST_F(PDFTemplatesOfThree, AddTakesPlacesByPositionAndByKey) {
  templates_->Add("d", 1);
  templates_->Add("e", {}, "B");
  EXPECT_EQ(KeysOf(*templates_), "dabec");
}

TEST_F(PDFTemplatesOfThree, AddChecksBothPlacesThenTheKeyThenThePlace) {
  EXPECT_EQ(AddError("A", 99, 1), Error::kInvalidArgument);
  EXPECT_EQ(AddError("A", 99, {}), Error::kKeyInUse);
  EXPECT_EQ(AddError("new", 99, {}), Error::kSubscriptOutOfRange);
  EXPECT_EQ(AddError("new", {}, "x"), Error::kInvalidArgument);
  EXPECT_EQ(KeysOf(*templates_), "abc");
  EXPECT_EQ(ErrorTextOf([&] { templates_->Add("A"); }),
            "PDFTemplates.Add: key 'A' is already in use");
}

TEST_F(PDFTemplatesOfThree, ItemTakesAPositionOrAKeyInAnyCase) {
  EXPECT_EQ(templates_->Item(2), templates_->Item("B"));
  EXPECT_EQ(templates_->Item(2)->Key(), "b");
  EXPECT_TRUE(templates_->KeyExists("C"));
  EXPECT_TRUE(templates_->KeyExists(3));
  EXPECT_FALSE(templates_->KeyExists(4));
  EXPECT_EQ(ErrorNumberOf([&] { templates_->Item("2"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { templates_->Item(4); }), Error::kSubscriptOutOfRange);
}

// What the page lists for each template placed: "/T1 6 0 R" for the one that is object 6.
std::string Listed(std::string_view pageObject) {
  const auto start = pageObject.find("/XObject <<");
  return std::string(pageObject.substr(start, pageObject.find(" >>", start) - start));
}

// A name counts the templates that there are when it is given; numbers follow the order.
TEST_F(PDFTemplatesOfThree, NamesFollowTheAddingAndNumbersTheOrder) {
  const auto page = document_->Pages()->Add();
  const auto first = templates_->Add("first", 1);
  EXPECT_EQ(AddError("a", {}, {}), Error::kKeyInUse);
  const auto last = templates_->Add();
  page->DrawTemplate(templates_->Item("a"));
  page->DrawTemplate(first);
  page->DrawTemplate(last);
  EXPECT_EQ(ContentOf(*page), "/T1 Do\n/T4 Do\n/T5 Do\n");
  const SavedDocument saved = Save(*document_, "names.pdf");
  EXPECT_EQ(Listed(saved.pdf.Object(4)), "/XObject << /T1 7 0 R\n /T4 6 0 R\n /T5 10 0 R\n");
}

TEST_F(PDFTemplatesOfThree, StandBetweenPagesAndFontsAndAreAllWritten) {
  document_->Pages()->Add();
  const SavedDocument saved = Save(*document_, "all.pdf");
  ASSERT_EQ(saved.pdf.Count(), 9);
  EXPECT_TRUE(saved.pdf.Object(5).starts_with("<< /Length"));
  for (std::size_t number = 6; number <= 8; ++number) {
    EXPECT_TRUE(saved.pdf.Object(number).starts_with("<< /Type /XObject\n/Subtype /Form\n"));
  }
  EXPECT_TRUE(saved.pdf.Object(9).starts_with("<< /Type /Font\n"));
}

TEST_F(PDFTemplatesOfThree, AreNumberedAnewByEverySave) {
  const auto page = document_->Pages()->Add();
  page->DrawTemplate(templates_->Item("c"));
  EXPECT_EQ(Listed(Save(*document_, "one.pdf").pdf.Object(4)), "/XObject << /T3 8 0 R\n");
  document_->Pages()->Add();
  templates_->Add("new", 1);
  EXPECT_EQ(Listed(Save(*document_, "two.pdf").pdf.Object(4)), "/XObject << /T3 11 0 R\n");
}

TEST_F(PDFTemplatesOfThree, LoopSeesTheTemplatesAsTheyWere) {
  std::string seen;
  for (const auto& member : *templates_) {
    seen += member->Key().Utf8();
    templates_->Add("", 1);
  }
  EXPECT_EQ(seen, "abc");
  EXPECT_EQ(KeysOf(*templates_), "---abc");
}

TEST(PDFTemplates, IsEmptyAtFirstAndTheSameObjectEachTime) {
  const auto document = PDFDocument::Create();
  EXPECT_EQ(document->Templates()->count(), 0);
  EXPECT_EQ(document->Templates(), document->Templates());
}

TEST(PDFTemplates, EveryTemplateStartsWithTheDefaultFont) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  EXPECT_EQ(document->Templates()->Add()->Font(), page->Font());
}

}  // namespace
}  // namespace folivar::test
