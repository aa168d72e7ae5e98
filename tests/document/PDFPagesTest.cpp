#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/document/PDFPages.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/KeyedModel.h"
#include "tests/support/Random.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

// The pages' keys in order, "-" for a page without one.
std::string KeysOf(PDFPages& pages) {
  std::string keys;
  for (const auto& page : pages) keys += page->Key().IsEmpty() ? "-" : page->Key().Utf8();
  return keys;
}

class PDFPagesOfThree : public testing::Test {
 protected:
  PDFPagesOfThree() {
    for (const char* key : {"a", "b", "c"}) pages_->Add(key);
  }

  int AddError(const char* key, const Value& before, const Value& after) {
    return ErrorNumberOf([&] { pages_->Add(key, before, after); });
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPages> pages_ = document_->Pages();
};

TEST_F(PDFPagesOfThree, AddWithoutArgumentsAppendsAPageWithoutAKey) {
  const auto page = pages_->Add();
  EXPECT_EQ(pages_->count(), 4);
  EXPECT_EQ(pages_->Item(4), page);
  EXPECT_TRUE(page->Key().IsEmpty());
  EXPECT_FALSE(pages_->KeyExists(""));
}

TEST_F(PDFPagesOfThree, AddBefore1GivesTheNewFirstPage) {
  const auto page = pages_->Add("", 1);
  EXPECT_EQ(pages_->Item(1), page);
  EXPECT_EQ(KeysOf(*pages_), "-abc");
}

TEST_F(PDFPagesOfThree, AddTakesPlacesByPositionAndByKey) {
  pages_->Add("d", 2);
  EXPECT_EQ(KeysOf(*pages_), "adbc");
  pages_->Add("e", {}, 4);
  EXPECT_EQ(KeysOf(*pages_), "adbce");
  pages_->Add("f", "C");
  EXPECT_EQ(KeysOf(*pages_), "adbfce");
  pages_->Add("g", {}, "A");
  EXPECT_EQ(KeysOf(*pages_), "agdbfce");
}

TEST_F(PDFPagesOfThree, AddChecksBothPlacesThenTheKeyThenThePlace) {
  EXPECT_EQ(AddError("A", 99, 1), Error::kInvalidArgument);
  EXPECT_EQ(AddError("A", 99, {}), Error::kKeyInUse);
  EXPECT_EQ(AddError("new", 99, {}), Error::kSubscriptOutOfRange);
  EXPECT_EQ(AddError("new", {}, "x"), Error::kInvalidArgument);
  EXPECT_EQ(AddError("new", true, {}), Error::kTypeMismatch);
  EXPECT_EQ(AddError("new", {}, Value::Null()), Error::kInvalidNull);
  EXPECT_EQ(AddError("new", 3e9, {}), Error::kOverflow);
  EXPECT_EQ(KeysOf(*pages_), "abc");
  EXPECT_FALSE(pages_->KeyExists("new"));
}

TEST_F(PDFPagesOfThree, AKeyInUseIsNamedWithItsCollection) {
  EXPECT_EQ(ErrorTextOf([&] { pages_->Add("A"); }), "PDFPages.Add: key 'A' is already in use");
  EXPECT_EQ(ErrorTextOf([&] { pages_->Add("\xFF"); }),
            "PDFPages.Add: text is not UTF-8: invalid byte at position 0 (counted from 0)");
}

TEST_F(PDFPagesOfThree, ItemTakesAPositionOrAKeyInAnyCase) {
  EXPECT_EQ(pages_->Item(2), pages_->Item("B"));
  EXPECT_EQ(pages_->Item(2)->Key(), "b");
  EXPECT_EQ(ErrorNumberOf([&] { pages_->Item("2"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { pages_->Item(0); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { pages_->Item(4); }), Error::kSubscriptOutOfRange);
}

TEST_F(PDFPagesOfThree, RemoveTakesTheLastPageToo) {
  pages_->Remove("B");
  EXPECT_EQ(KeysOf(*pages_), "ac");
  pages_->Remove(2);
  pages_->Remove(1);
  EXPECT_EQ(pages_->count(), 0);
  EXPECT_EQ(ErrorNumberOf([&] { pages_->Remove(1); }), Error::kSubscriptOutOfRange);
  const SavedDocument saved = Save(*document_, "empty.pdf");
  EXPECT_EQ(saved.pdf.Object(3), "<< /Type /Pages\n/Kids []\n/Count 0\n>>\n");
}

TEST_F(PDFPagesOfThree, ARemovedPageCanStillBeUsedAndIsNotWritten) {
  const auto page = pages_->Item("b");
  pages_->Remove("b");
  page->DrawText("gone", 72, 700);
  const SavedDocument saved = Save(*document_, "removed.pdf");
  EXPECT_EQ(saved.bytes.find("gone"), std::string::npos);
  EXPECT_EQ(saved.pdf.Object(3), "<< /Type /Pages\n/Kids [ 4 0 R 6 0 R]\n/Count 2\n>>\n");
}

TEST_F(PDFPagesOfThree, ReOrderMovesToAPlaceOrToTheEnd) {
  pages_->ReOrder("A");
  EXPECT_EQ(KeysOf(*pages_), "bca");
  pages_->ReOrder("a", 1);
  EXPECT_EQ(KeysOf(*pages_), "abc");
  pages_->ReOrder("a", {}, 1);
  EXPECT_EQ(KeysOf(*pages_), "bac") << "the place is counted without the page";
  pages_->ReOrder("c", "B");
  EXPECT_EQ(KeysOf(*pages_), "cba");
  pages_->ReOrder("c", {}, "b");
  EXPECT_EQ(KeysOf(*pages_), "bca");
}

TEST_F(PDFPagesOfThree, ReOrderKeepsThePageItsKeyAndItsContent) {
  const auto page = pages_->Item("a");
  pages_->ReOrder("A", {}, 2);
  EXPECT_EQ(pages_->Item("a"), page);
  EXPECT_EQ(pages_->Item(3), page);
  EXPECT_EQ(page->Key(), "a");
}

TEST_F(PDFPagesOfThree, ReOrderOfAnUnknownKeyChangesNothing) {
  pages_->ReOrder("x", 1);
  pages_->ReOrder("", 1);
  pages_->ReOrder("\xFF", 1);
  EXPECT_EQ(KeysOf(*pages_), "abc");
}

// Deliberate: unlike in Add, giving both is no error.
TEST_F(PDFPagesOfThree, DeliberateReOrderIgnoresAfterWhenBeforeIsGiven) {
  pages_->ReOrder("b", 1, 3);
  EXPECT_EQ(KeysOf(*pages_), "bac");
  pages_->ReOrder("b", 2, "no such key");
  EXPECT_EQ(KeysOf(*pages_), "abc");
}

// Deliberate: there are two pages left when the place is looked up.
TEST_F(PDFPagesOfThree, DeliberateReOrderToAPlaceThatDoesNotExistRemovesThePage) {
  const auto page = pages_->Item("a");
  pages_->ReOrder("a", 3);
  EXPECT_EQ(KeysOf(*pages_), "bc");
  EXPECT_FALSE(pages_->KeyExists("a"));
  pages_->ReOrder("b", "b");
  EXPECT_EQ(KeysOf(*pages_), "c") << "the page itself is no place";
  EXPECT_EQ(page->Key(), "a");
}

TEST_F(PDFPagesOfThree, ReOrderToAPlaceThatIsNoTextChangesNothing) {
  pages_->ReOrder("a", "\xFF");
  pages_->ReOrder("a", {}, "\xFF");
  EXPECT_EQ(KeysOf(*pages_), "abc");
}

TEST_F(PDFPagesOfThree, AWalkSeesThePagesAsTheyWereWhenItBegan) {
  std::string seen;
  for (const auto& page : *pages_) {
    seen += page->Key().Utf8();
    pages_->Remove(page->Key());
    pages_->Add(page->Key().Utf8() + "2");
  }
  EXPECT_EQ(seen, "abc");
  EXPECT_EQ(KeysOf(*pages_), "a2b2c2");
}

TEST_F(PDFPagesOfThree, SavesThePagesInTheirOrder) {
  for (const char* key : {"a", "b", "c"}) pages_->Item(key)->DrawText(key, 72, 700);
  pages_->ReOrder("c", 1);
  const SavedDocument saved = Save(*document_, "order.pdf");
  EXPECT_EQ(saved.pdf.Object(3), "<< /Type /Pages\n/Kids [ 4 0 R 6 0 R 8 0 R]\n/Count 3\n>>\n");
  const std::vector<std::string> texts = {"(c) Tj", "(a) Tj", "(b) Tj"};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_NE(saved.pdf.Stream(5 + 2 * i).find(texts[i]), std::string_view::npos);
  }
}

using Subscription = Event<PDFPage&>::Subscription;

TEST_F(PDFPagesOfThree, RemoveRaisesPageRemovedBeforeThePageLeaves) {
  std::string heard;
  const Subscription subscription = pages_->Item("b")->PageRemoved().Subscribe(
      [&](PDFPage& page) { heard += page.Key().Utf8() + ":" + KeysOf(*pages_); });
  pages_->Remove("a");
  EXPECT_EQ(heard, "");
  pages_->Remove(1);
  EXPECT_EQ(heard, "b:bc");
  EXPECT_EQ(KeysOf(*pages_), "c");
}

TEST_F(PDFPagesOfThree, ARemoveThatFailsRaisesNoEvent) {
  bool isHeard = false;
  const Subscription subscription =
      pages_->Item("b")->PageRemoved().Subscribe([&](PDFPage&) { isHeard = true; });
  EXPECT_EQ(ErrorNumberOf([&] { pages_->Remove(4); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { pages_->Remove("x"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([&] { pages_->Remove("x"); }), "PDFPages.Remove: there is no key 'x'");
  pages_->ReOrder("x");
  EXPECT_FALSE(isHeard);
}

// Deliberate: a page is moved by removing it and putting it back.
TEST_F(PDFPagesOfThree, DeliberateReOrderRaisesPageRemoved) {
  std::string heard;
  const Subscription subscription =
      pages_->Item("a")->PageRemoved().Subscribe([&](PDFPage&) { heard += KeysOf(*pages_); });
  pages_->ReOrder("b", 1);
  EXPECT_EQ(heard, "");
  pages_->ReOrder("a");
  EXPECT_EQ(heard, "bac");
  EXPECT_EQ(KeysOf(*pages_), "bca");
}

TEST_F(PDFPagesOfThree, AHandlerThatThrowsDoesNotKeepThePage) {
  const Subscription subscription = pages_->Item("b")->PageRemoved().Subscribe(
      [](PDFPage&) { throw Error::Overflow("the handler's own"); });
  EXPECT_EQ(ErrorTextOf([&] { pages_->Remove("b"); }), "the handler's own");
  EXPECT_EQ(KeysOf(*pages_), "ac");
}

TEST_F(PDFPagesOfThree, AHandlerThatThrowsDoesNotKeepReOrderFromMoving) {
  const Subscription subscription = pages_->Item("a")->PageRemoved().Subscribe(
      [](PDFPage&) { throw Error::Overflow("the handler's own"); });
  pages_->ReOrder("a");
  EXPECT_EQ(KeysOf(*pages_), "bca");
}

TEST_F(PDFPagesOfThree, AHandlerMayRemoveOtherPages) {
  const Subscription subscription =
      pages_->Item("b")->PageRemoved().Subscribe([&](PDFPage&) { pages_->Remove(1); });
  pages_->Remove(2);
  EXPECT_EQ(KeysOf(*pages_), "c") << "b goes, although the second page is another by now";
}

TEST_F(PDFPagesOfThree, AHandlerMayRemoveTheSamePageAndIsNotCalledAgain) {
  int calls = 0;
  const Subscription first = pages_->Item("b")->PageRemoved().Subscribe([&](PDFPage& page) {
    ++calls;
    pages_->Remove(page.Key());
  });
  const Subscription second =
      pages_->Item("b")->PageRemoved().Subscribe([&](PDFPage&) { ++calls; });
  pages_->Remove("b");
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(KeysOf(*pages_), "ac");
}

TEST_F(PDFPagesOfThree, AHandlerMayMoveThePageThatIsRemoved) {
  const Subscription subscription = pages_->Item("a")->PageRemoved().Subscribe(
      [&](PDFPage& page) { pages_->ReOrder(page.Key()); });
  pages_->Remove("a");
  EXPECT_EQ(KeysOf(*pages_), "bc");
}

TEST_F(PDFPagesOfThree, AHandlerMayAddPages) {
  const Subscription subscription =
      pages_->Item("b")->PageRemoved().Subscribe([&](PDFPage&) { pages_->Add("new", 1); });
  pages_->Remove(2);
  EXPECT_EQ(KeysOf(*pages_), "newac");
}

TEST_F(PDFPagesOfThree, AHandlerMayLetGoOfEverything) {
  const std::weak_ptr<PDFPages> watch = pages_;
  Subscription subscription;
  subscription = pages_->Item("b")->PageRemoved().Subscribe([&](PDFPage& page) {
    document_.reset();
    pages_.reset();
    subscription.Reset();
    EXPECT_EQ(page.Key(), "b") << "the page is there until its handlers are done";
  });
  PDFPages& pages = *pages_;
  pages.Remove("b");
  EXPECT_TRUE(watch.expired());
}

TEST_F(PDFPagesOfThree, AHandlerMayLetGoOfEverythingWhileItsPageIsMoved) {
  const std::weak_ptr<PDFPages> watch = pages_;
  const Subscription subscription = pages_->Item("a")->PageRemoved().Subscribe([&](PDFPage&) {
    document_.reset();
    pages_.reset();
  });
  PDFPages& pages = *pages_;
  pages.ReOrder("a");
  EXPECT_TRUE(watch.expired());
}

// The pages of a document and a model of them, compared after every step.
class PagesAndModel {
 public:
  explicit PagesAndModel(Random& random) : random_(random) {}

  void AddOne() {
    const std::string key = model_.RandomKey(random_);
    Argument before;
    Argument after;
    model_.RandomPlaces(random_, before, after);
    std::shared_ptr<PDFPage> page;
    const int error =
        ErrorNumberOf([&] { page = pages_->Add(key, before.AsValue(), after.AsValue()); });
    ASSERT_EQ(error, model_.Add(static_cast<int>(made_.size()), key, before, after));
    if (error != 0) return;
    ASSERT_EQ(page->Key(), key);
    made_.push_back(page);
  }

  void RemoveOne() {
    const Argument index = model_.RandomIndex(random_);
    const int error = ErrorNumberOf([&] { pages_->Remove(index.AsValue()); });
    ASSERT_EQ(error, model_.Remove(index));
  }

  void MoveOne() {
    const std::string key = model_.RandomKey(random_);
    Argument before;
    Argument after;
    model_.RandomPlaces(random_, before, after);
    pages_->ReOrder(key, before.AsValue(), after.AsValue());
    model_.ReOrder(key, before, after);
  }

  void LookAtOne() {
    const Argument index = model_.RandomIndex(random_);
    int item = 0;
    const int expectedError = model_.Item(index, item);
    std::shared_ptr<PDFPage> page;
    ASSERT_EQ(ErrorNumberOf([&] { page = pages_->Item(index.AsValue()); }), expectedError);
    if (page) {
      ASSERT_EQ(page, made_[static_cast<std::size_t>(item)]);
    }
    ASSERT_EQ(pages_->KeyExists(index.AsValue()), expectedError == 0);
    ASSERT_EQ(pages_->count(), static_cast<std::int32_t>(model_.Entries().size()));
  }

  void CompareAll() {
    std::vector<std::shared_ptr<PDFPage>> expected;
    for (const KeyedModel::Entry& entry : model_.Entries()) {
      expected.push_back(made_[static_cast<std::size_t>(entry.item)]);
    }
    std::vector<std::shared_ptr<PDFPage>> found;
    for (const auto& page : *pages_) found.push_back(page);
    ASSERT_EQ(found, expected);
  }

  std::int32_t Count() const { return pages_->count(); }

 private:
  Random& random_;
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFPages> pages_ = document_->Pages();
  KeyedModel model_;
  std::vector<std::shared_ptr<PDFPage>> made_;
};

TEST(PDFPages, DoWhatANaiveListDoes) {
  Random random;
  SCOPED_TRACE(random.Trace());
  PagesAndModel both(random);
  for (const std::int32_t target : {2000, 3, 400, 0}) {
    const bool isGrowing = both.Count() < target;
    for (int step = 0; both.Count() != target; ++step) {
      if (random.Chance(isGrowing ? 75 : 25)) {
        ASSERT_NO_FATAL_FAILURE(both.AddOne());
      } else if (random.Chance(50)) {
        ASSERT_NO_FATAL_FAILURE(both.RemoveOne());
      } else {
        ASSERT_NO_FATAL_FAILURE(both.MoveOne());
      }
      ASSERT_NO_FATAL_FAILURE(both.LookAtOne());
      if (step % 200 == 0) {
        ASSERT_NO_FATAL_FAILURE(both.CompareAll());
      }
    }
    ASSERT_NO_FATAL_FAILURE(both.CompareAll());
  }
}

}  // namespace
}  // namespace folivar::test
