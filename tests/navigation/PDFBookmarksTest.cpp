#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/navigation/PDFBookmarks.h"
#include "tests/support/Content.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

class PDFBookmarksTest : public testing::Test {
 protected:
  std::string Keys() const {
    std::string keys;
    for (const auto& bookmark : *bookmarks_) {
      keys += bookmark->Key().IsEmpty() ? "-" : bookmark->Key().Utf8();
    }
    return keys;
  }

  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFBookmarks> bookmarks_ = document_->Bookmarks();
};

TEST_F(PDFBookmarksTest, AreTheSameObjectEachTimeAndEmptyAtFirst) {
  EXPECT_EQ(document_->Bookmarks(), bookmarks_);
  EXPECT_EQ(bookmarks_->count(), 0);
}

TEST_F(PDFBookmarksTest, AddPutsABookmarkAtAPlace) {
  const auto first = bookmarks_->Add("a");
  bookmarks_->Add();
  bookmarks_->Add("c", 1);
  bookmarks_->Add("d", {}, "A");
  EXPECT_EQ(Keys(), "cad-");
  EXPECT_EQ(bookmarks_->Item("A"), first);
  EXPECT_EQ(bookmarks_->count(), 4);
  EXPECT_FALSE(bookmarks_->KeyExists(""));
}

TEST_F(PDFBookmarksTest, KeysAreThoseOfOneLevel) {
  const auto first = bookmarks_->Add("a");
  EXPECT_EQ(ErrorTextOf([&] { bookmarks_->Add("A"); }),
            "PDFBookmarks.Add: key 'A' is already in use");
  EXPECT_NE(first->SubBookmarks()->Add("a"), first);
}

TEST_F(PDFBookmarksTest, PlacesThatNameNoBookmarkRaise) {
  bookmarks_->Add("a");
  EXPECT_EQ(ErrorNumberOf([&] { bookmarks_->Add("b", 1, 1); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { bookmarks_->Add("b", 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { bookmarks_->Item("x"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { bookmarks_->Remove(2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(bookmarks_->count(), 1);
}

TEST_F(PDFBookmarksTest, ReOrderMovesABookmarkWithThoseBelowIt) {
  bookmarks_->Add("a")->SubBookmarks()->Add("below");
  bookmarks_->Add("b");
  bookmarks_->Add("c");
  bookmarks_->ReOrder("A");
  EXPECT_EQ(Keys(), "bca");
  EXPECT_TRUE(bookmarks_->Item("a")->SubBookmarks()->KeyExists("below"));
  bookmarks_->ReOrder("x", 1);
  EXPECT_EQ(Keys(), "bca");
}

TEST_F(PDFBookmarksTest, DeliberateReOrderIgnoresAfterWhenBothPlacesAreGiven) {
  for (const char* key : {"a", "b", "c"}) bookmarks_->Add(key);
  bookmarks_->ReOrder("c", 1, 2);
  EXPECT_EQ(Keys(), "cab");
}

TEST_F(PDFBookmarksTest, DeliberateReOrderToAPlaceThatDoesNotExistRemovesTheBookmark) {
  for (const char* key : {"a", "b", "c"}) bookmarks_->Add(key);
  bookmarks_->ReOrder("a", 3);
  EXPECT_EQ(Keys(), "bc") << "without it there are two places";
  bookmarks_->ReOrder("b", {}, "b");
  EXPECT_EQ(Keys(), "c") << "the bookmark itself is no place";
}

TEST_F(PDFBookmarksTest, ARemovedSubtreeIsNotWrittenAndStaysUsable) {
  const auto page = document_->Pages()->Add();
  const auto kept = bookmarks_->Add("kept");
  const auto below = kept->SubBookmarks()->Add();
  below->SetTitle("below");
  below->Destination()->SetPage(page);
  bookmarks_->Add()->SetTitle("stays");
  Save(*document_, "before.pdf", Check::kForm);
  bookmarks_->Remove("kept");

  const SavedDocument saved = Save(*document_, "removed.pdf");
  EXPECT_EQ(saved.bytes.find("below"), std::string::npos);
  EXPECT_EQ(saved.pdf.Object(3), "<< /Title (stays)\n/Parent 2 0 R\n>>\n");
  EXPECT_EQ(kept->SubBookmarks()->Item(1), below);
  kept->SubBookmarks()->Add("more")->SetTitle("more");
  EXPECT_EQ(kept->SubBookmarks()->count(), 2);
  EXPECT_EQ(below->Destination()->Page(), page);
  document_->Pages()->Remove(1);
  EXPECT_EQ(below->Destination()->Page(), nullptr);
}

TEST_F(PDFBookmarksTest, OutliveTheirDocument) {
  const auto kept = bookmarks_->Add();
  kept->Destination()->SetPage(document_->Pages()->Add());
  document_.reset();
  EXPECT_EQ(kept->Destination()->Page(), nullptr);
  bookmarks_->Add()->SubBookmarks()->Add();
  EXPECT_EQ(bookmarks_->count(), 2);
}

// One below the other, the topmost first.
std::vector<std::weak_ptr<PDFBookmark>> Nest(PDFBookmarks& top, int depth) {
  std::vector<std::weak_ptr<PDFBookmark>> chain;
  std::shared_ptr<PDFBookmark> last = top.Add();
  chain.push_back(last);
  for (int i = 1; i < depth; ++i) {
    last->SetExpanded(true);
    last = last->SubBookmarks()->Add();
    chain.push_back(last);
  }
  return chain;
}

constexpr int kDeep = 100000;

TEST_F(PDFBookmarksTest, DeepOnesAreSavedAndEnd) {
  const auto chain = Nest(*bookmarks_, kDeep);
  const SavedDocument saved = Save(*document_, "deep.pdf", Check::kForm);
  EXPECT_EQ(saved.pdf.Object(2),
            "<< /Type /Outlines\n/First 3 0 R\n/Last 3 0 R\n/Count 100000\n>>\n");
  EXPECT_EQ(saved.pdf.Object(3),
            "<< /Title ()\n/Parent 2 0 R\n/First 4 0 R\n/Last 4 0 R\n/Count 99999>>\n");
  EXPECT_EQ(saved.pdf.Object(100002), "<< /Title ()\n/Parent 100001 0 R\n>>\n");
  document_.reset();
  bookmarks_.reset();
  EXPECT_TRUE(chain.front().expired());
  EXPECT_TRUE(chain.back().expired());
}

TEST_F(PDFBookmarksTest, DeepOnesEndFromTheTop) {
  const auto chain = Nest(*bookmarks_, kDeep);
  bookmarks_->Remove(1);
  EXPECT_TRUE(chain.front().expired());
  EXPECT_TRUE(chain.back().expired());
}

TEST_F(PDFBookmarksTest, DeepOnesEndFromTheMiddle) {
  const auto chain = Nest(*bookmarks_, kDeep);
  auto middle = chain[kDeep / 2].lock();
  auto collection = chain[kDeep / 4].lock()->SubBookmarks();
  bookmarks_->Remove(1);
  EXPECT_TRUE(chain.front().expired());
  EXPECT_TRUE(chain[kDeep / 4].expired());
  EXPECT_FALSE(chain[kDeep / 4 + 1].expired()) << "its collection is held";
  middle.reset();
  EXPECT_FALSE(chain.back().expired());
  collection->Item(1)->SubBookmarks()->Remove(1);
  EXPECT_TRUE(chain[kDeep / 4 + 2].expired());
  EXPECT_TRUE(chain.back().expired());
  EXPECT_EQ(collection->count(), 1);
}

TEST_F(PDFBookmarksTest, OfADeepChainWhatIsHeldStays) {
  const auto chain = Nest(*bookmarks_, kDeep);
  auto held = chain[kDeep / 2].lock();
  bookmarks_->Remove(1);
  EXPECT_TRUE(chain[kDeep / 2 - 1].expired());
  EXPECT_EQ(held->SubBookmarks()->Item(1), chain[kDeep / 2 + 1].lock());
  EXPECT_FALSE(chain.back().expired());
  held.reset();
  EXPECT_TRUE(chain.back().expired());
}

// Wide and deep at once: each of a chain has a sibling with a chain of its own.
TEST_F(PDFBookmarksTest, DeepOnesWithDeepSiblingsEnd) {
  std::vector<std::weak_ptr<PDFBookmark>> ends;
  PDFBookmarks* level = bookmarks_.get();
  for (int i = 0; i < 300; ++i) {
    ends.push_back(Nest(*level, 300).back());
    level = level->Add()->SubBookmarks().get();
  }
  Save(*document_, "bushy.pdf", Check::kForm);
  bookmarks_->Remove(2);
  EXPECT_FALSE(ends.front().expired());
  bookmarks_->Remove(1);
  for (const auto& end : ends) EXPECT_TRUE(end.expired());
}

}  // namespace
}  // namespace folivar::test
