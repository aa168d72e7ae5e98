#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/document/KelCollection.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/KeyedModel.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

// Items that cannot be copied: the list moves them only.
using Item = std::unique_ptr<int>;
using List = KelCollection<Item>;

void Add(List& list, int item, const char* key = "", const Value& before = {},
         const Value& after = {}) {
  list.Add(std::make_unique<int>(item), key, before, after);
}

std::vector<int> ItemsOf(const List& list) {
  std::vector<int> items;
  list.ForEach([&](const Item& item) { items.push_back(*item); });
  return items;
}

using Items = std::vector<int>;

class KelCollectionOfThree : public testing::Test {
 protected:
  KelCollectionOfThree() {
    Add(list_, 1, "a");
    Add(list_, 2);
    Add(list_, 3, "c");
  }

  int AddError(const char* key, const Value& before, const Value& after) {
    return ErrorNumberOf([&] { Add(list_, 9, key, before, after); });
  }

  List list_{"PDFThings"};
};

TEST_F(KelCollectionOfThree, FindsByPositionFrom1) {
  EXPECT_EQ(*list_.Item(1), 1);
  EXPECT_EQ(*list_.Item(3), 3);
  EXPECT_EQ(*list_.Item(2.5), 2) << "halves to even";
  EXPECT_EQ(*list_.Item(1.5), 2);
}

TEST_F(KelCollectionOfThree, FindsByKeyWithoutRegardToCase) {
  EXPECT_EQ(*list_.Item("a"), 1);
  EXPECT_EQ(*list_.Item("A"), 1);
  EXPECT_EQ(*list_.Item(u"C"), 3);
}

TEST_F(KelCollectionOfThree, KeysBeyondAsciiCompareWithoutRegardToCase) {
  Add(list_, 4, "\u00C9T\u00C9");
  EXPECT_EQ(*list_.Item("\u00E9t\u00E9"), 4);
  EXPECT_EQ(AddError("\u00E9T\u00E9", {}, {}), Error::kKeyInUse);
}

TEST_F(KelCollectionOfThree, ATextIsAKeyAndNeverAPosition) {
  EXPECT_EQ(ErrorNumberOf([&] { list_.Item("1"); }), Error::kInvalidArgument);
  Add(list_, 4, "1");
  EXPECT_EQ(*list_.Item("1"), 4);
  EXPECT_EQ(*list_.Item(1), 1);
}

TEST_F(KelCollectionOfThree, AddsBeforeAndAfterPositionsAndKeys) {
  Add(list_, 4, "", 1);
  EXPECT_EQ(ItemsOf(list_), (Items{4, 1, 2, 3}));
  Add(list_, 5, "", {}, 4);
  EXPECT_EQ(ItemsOf(list_), (Items{4, 1, 2, 3, 5}));
  Add(list_, 6, "", "C");
  EXPECT_EQ(ItemsOf(list_), (Items{4, 1, 2, 6, 3, 5}));
  Add(list_, 7, "", {}, "A");
  EXPECT_EQ(ItemsOf(list_), (Items{4, 1, 7, 2, 6, 3, 5}));
}

TEST_F(KelCollectionOfThree, ManyMayBeWithoutAKeyAndNoneIsFoundByTheEmptyOne) {
  Add(list_, 4, "");
  EXPECT_EQ(list_.Count(), 4U);
  EXPECT_FALSE(list_.KeyExists(""));
  EXPECT_EQ(ErrorNumberOf([&] { list_.Item(""); }), Error::kInvalidArgument);
}

TEST_F(KelCollectionOfThree, AddRaises5WhenBothPlacesAreGivenWhateverElseIsWrong) {
  EXPECT_EQ(AddError("", 1, 2), Error::kInvalidArgument);
  EXPECT_EQ(AddError("a", 1, 2), Error::kInvalidArgument);
  EXPECT_EQ(AddError("a", 99, Value::Null()), Error::kInvalidArgument);
  EXPECT_EQ(AddError("", Value::Null(), true), Error::kInvalidArgument);
}

TEST_F(KelCollectionOfThree, AddRaises457ForAKeyInUseBeforeItLooksAtThePlace) {
  EXPECT_EQ(AddError("A", {}, {}), Error::kKeyInUse);
  EXPECT_EQ(AddError("A", 99, {}), Error::kKeyInUse);
  EXPECT_EQ(AddError("A", {}, "no such key"), Error::kKeyInUse);
  EXPECT_EQ(AddError("A", Value::Null(), {}), Error::kKeyInUse);
}

TEST_F(KelCollectionOfThree, AddRaisesForAPlaceThatNamesNoEntry) {
  EXPECT_EQ(AddError("", "no such key", {}), Error::kInvalidArgument);
  EXPECT_EQ(AddError("", {}, ""), Error::kInvalidArgument);
  EXPECT_EQ(AddError("", 0, {}), Error::kSubscriptOutOfRange);
  EXPECT_EQ(AddError("", 4, {}), Error::kSubscriptOutOfRange);
  EXPECT_EQ(AddError("", {}, -1), Error::kSubscriptOutOfRange);
  EXPECT_EQ(AddError("", {}, 3.5), Error::kSubscriptOutOfRange);
  EXPECT_EQ(AddError("", 1e10, {}), Error::kOverflow);
  EXPECT_EQ(AddError("", true, {}), Error::kTypeMismatch);
  EXPECT_EQ(AddError("", {}, Value::Empty()), Error::kTypeMismatch);
  EXPECT_EQ(AddError("", {}, Value::Null()), Error::kInvalidNull);
}

TEST_F(KelCollectionOfThree, AnAddThatRaisesLeavesTheListAsItWas) {
  for (const Value& place : {Value(0), Value(4), Value("x"), Value(true), Value::Null()}) {
    EXPECT_NE(AddError("new", place, {}), 0);
    EXPECT_NE(AddError("new", {}, place), 0);
  }
  EXPECT_NE(AddError("new", 1, 1), 0);
  EXPECT_NE(AddError("a", {}, {}), 0);
  EXPECT_NE(AddError("\xFF", {}, {}), 0);
  EXPECT_EQ(ItemsOf(list_), (Items{1, 2, 3}));
  EXPECT_FALSE(list_.KeyExists("new"));
}

TEST_F(KelCollectionOfThree, RemoveGivesTheItemAndFreesItsKey) {
  EXPECT_EQ(*list_.Remove("A"), 1);
  EXPECT_EQ(ItemsOf(list_), (Items{2, 3}));
  EXPECT_FALSE(list_.KeyExists("a"));
  EXPECT_EQ(*list_.Item(1), 2) << "positions are counted anew";
  Add(list_, 4, "a");
  EXPECT_EQ(*list_.Remove(1), 2);
  EXPECT_EQ(*list_.Remove(1), 3);
  EXPECT_FALSE(list_.KeyExists("c"));
  EXPECT_EQ(*list_.Remove("a"), 4);
  EXPECT_EQ(list_.Count(), 0U);
}

TEST(KelCollection, KeepsValuesOfEveryKindInOrder) {
  KelCollection<Value> values("values");
  values.Add(1);
  values.Add("two");
  values.Add(3.5);
  values.Add(Value::Null());
  EXPECT_EQ(values.Count(), 4U);
  EXPECT_EQ(*values.Item(1).As<std::int64_t>(), 1);
  EXPECT_EQ(*values.Item(2).As<Text>(), "two");
  EXPECT_EQ(*values.Item(3).As<double>(), 3.5);
  EXPECT_TRUE(values.Item(4).IsNull());
}

TEST(KelCollection, GivesAnObjectBackAsTheSameObject) {
  const std::shared_ptr<PDFDocument> document = PDFDocument::Create();
  KelCollection<std::shared_ptr<PDFDocument>> documents("documents");
  documents.Add(document, "d");
  EXPECT_EQ(documents.Item("D"), document);
}

TEST(KelCollection, KeepsACopyOfAValue) {
  KelCollection<Value> values("values");
  Value value("before");
  values.Add(value, "v");
  value = Value("after");
  EXPECT_EQ(*values.Item("v").As<Text>(), "before");
}

TEST(KelCollection, RemoveItemFindsTheItemWhereverItIs) {
  KelCollection<int> list("list");
  for (int item = 0; item < 2000; ++item) list.Add(item, "k" + std::to_string(item), {}, {});
  list.RemoveItem(1500, 1501);
  list.RemoveItem(1501, "K1501");
  list.RemoveItem(700, 1);
  list.RemoveItem(701, "k1");
  list.RemoveItem(702, 5000);
  list.RemoveItem(703, "no such key");
  EXPECT_EQ(list.Count(), 1994U);
  for (const int gone : {1500, 1501, 700, 701, 702, 703}) {
    EXPECT_FALSE(list.KeyExists("k" + std::to_string(gone)));
    list.RemoveItem(gone, 1);
  }
  EXPECT_EQ(list.Count(), 1994U);
  EXPECT_EQ(list.Item(1), 0);
}

TEST_F(KelCollectionOfThree, ItemAndRemoveRaise) {
  const auto expectError = [&](const Value& index, int number) {
    EXPECT_EQ(ErrorNumberOf([&] { list_.Item(index); }), number);
    EXPECT_EQ(ErrorNumberOf([&] { list_.Remove(index); }), number);
    EXPECT_FALSE(list_.KeyExists(index));
  };
  expectError("b", Error::kInvalidArgument);
  expectError(0, Error::kSubscriptOutOfRange);
  expectError(4, Error::kSubscriptOutOfRange);
  expectError(-1, Error::kSubscriptOutOfRange);
  expectError(0.5, Error::kSubscriptOutOfRange);
  expectError(1e10, Error::kOverflow);
  expectError(false, Error::kTypeMismatch);
  expectError(Value(), Error::kTypeMismatch);
  expectError(Value::Empty(), Error::kTypeMismatch);
  expectError(Value::Host(1), Error::kTypeMismatch);
  expectError(Value::Null(), Error::kInvalidNull);
  EXPECT_EQ(list_.Count(), 3U);
}

TEST(KelCollection, RemovesAnItemWhereverItIs) {
  KelCollection<int> list("numbers");
  const auto itemsAfter = [&](int item, const Value& likely) {
    list.RemoveItem(item, likely);
    std::vector<int> items;
    list.ForEach([&](int each) { items.push_back(each); });
    return items;
  };
  for (int item = 1; item <= 6; ++item) list.Add(item, item == 4 ? "d" : "", {}, {});
  EXPECT_EQ(itemsAfter(2, 2), (Items{1, 3, 4, 5, 6})) << "at the likely place";
  EXPECT_EQ(itemsAfter(5, 1), (Items{1, 3, 4, 6})) << "elsewhere";
  EXPECT_EQ(itemsAfter(6, 9), (Items{1, 3, 4})) << "the likely place does not exist";
  EXPECT_EQ(itemsAfter(4, "D"), (Items{1, 3}));
  EXPECT_FALSE(list.KeyExists("d"));
  EXPECT_EQ(itemsAfter(7, 1), (Items{1, 3})) << "no entry has it";
  EXPECT_EQ(list.Count(), 2U);
}

TEST_F(KelCollectionOfThree, KeyExistsNeverRaises) {
  EXPECT_TRUE(list_.KeyExists("A"));
  EXPECT_TRUE(list_.KeyExists(3));
  EXPECT_TRUE(list_.KeyExists(3.2));
}

TEST_F(KelCollectionOfThree, ErrorTextsNameWhatAndWhere) {
  EXPECT_EQ(ErrorTextOf([&] { Add(list_, 4, "A"); }), "PDFThings.Add: key 'A' is already in use");
  EXPECT_EQ(ErrorTextOf([&] { list_.Item("\u00E9"); }), "PDFThings.Item: there is no key '\u00E9'");
  const std::string outside = ErrorTextOf([&] { list_.Item(4); });
  EXPECT_NE(outside.find("4"), std::string::npos) << outside;
  EXPECT_NE(outside.find("1 to 3"), std::string::npos) << outside;
  EXPECT_NE(outside.find("PDFThings"), std::string::npos) << outside;
  for (const Value& index : {Value(true), Value::Null(), Value(1e10)}) {
    const std::string text = ErrorTextOf([&] { list_.Item(index); });
    EXPECT_NE(text.find("PDFThings"), std::string::npos) << text;
  }
}

TEST(KelCollection, AnEmptyListHasNothing) {
  const List list("PDFThings");
  EXPECT_EQ(list.Count(), 0U);
  EXPECT_EQ(ErrorNumberOf([&] { list.Item(1); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { list.Item("a"); }), Error::kInvalidArgument);
  EXPECT_FALSE(list.KeyExists(1));
}

// A list and its model, compared after every step.
class ListAndModel {
 public:
  explicit ListAndModel(Random& random) : random_(random) {}

  void AddOne() {
    const std::string key = model_.RandomKey(random_);
    Argument before;
    Argument after;
    model_.RandomPlaces(random_, before, after);
    const int item = nextItem_++;
    const int error = ErrorNumberOf(
        [&] { list_.Add(std::make_unique<int>(item), key, before.AsValue(), after.AsValue()); });
    ASSERT_EQ(error, model_.Add(item, key, before, after));
  }

  void RemoveOne() {
    const Argument index = model_.RandomIndex(random_);
    int expected = 0;
    const int expectedError = model_.Item(index, expected);
    int found = 0;
    ASSERT_EQ(ErrorNumberOf([&] { found = *list_.Remove(index.AsValue()); }), expectedError);
    ASSERT_EQ(found, expected);
    ASSERT_EQ(model_.Remove(index), expectedError);
  }

  void LookAtOne() {
    const Argument index = model_.RandomIndex(random_);
    int expected = 0;
    const int expectedError = model_.Item(index, expected);
    int found = 0;
    ASSERT_EQ(ErrorNumberOf([&] { found = *list_.Item(index.AsValue()); }), expectedError);
    ASSERT_EQ(found, expected);
    ASSERT_EQ(list_.KeyExists(index.AsValue()), expectedError == 0);
    ASSERT_EQ(list_.Count(), model_.Entries().size());
  }

  void CompareAll() {
    Items expected;
    for (const KeyedModel::Entry& entry : model_.Entries()) expected.push_back(entry.item);
    ASSERT_EQ(ItemsOf(list_), expected);
  }

  std::size_t Count() const { return list_.Count(); }

 private:
  Random& random_;
  List list_{"PDFThings"};
  KeyedModel model_;
  int nextItem_ = 1;
};

TEST(KelCollection, DoesWhatANaiveListDoes) {
  Random random;
  SCOPED_TRACE(random.Trace());
  ListAndModel both(random);
  // Up to some thousands, down to few, up again and down to nothing.
  for (const std::size_t target : {3000U, 5U, 1500U, 0U}) {
    const bool isGrowing = both.Count() < target;
    for (int step = 0; both.Count() != target; ++step) {
      if (random.Chance(isGrowing ? 75 : 25)) {
        ASSERT_NO_FATAL_FAILURE(both.AddOne());
      } else {
        ASSERT_NO_FATAL_FAILURE(both.RemoveOne());
      }
      ASSERT_NO_FATAL_FAILURE(both.LookAtOne());
      if (step % 200 == 0) {
        ASSERT_NO_FATAL_FAILURE(both.CompareAll());
      }
    }
    ASSERT_NO_FATAL_FAILURE(both.CompareAll());
  }
}

// Where one block becomes two, at every place of it.
TEST(KelCollection, InsertsAnywhereIntoAFullBlock) {
  constexpr int kBlock = 512;
  for (int place = 1; place <= kBlock; ++place) {
    List list("list");
    Items expected;
    for (int i = 0; i < kBlock; ++i) {
      Add(list, i);
      expected.push_back(i);
    }
    Add(list, -1, "new", place);
    expected.insert(expected.begin() + (place - 1), -1);
    ASSERT_EQ(ItemsOf(list), expected) << place;
    ASSERT_EQ(*list.Item(place), -1);
    ASSERT_EQ(*list.Remove("new"), -1);
    expected.erase(expected.begin() + (place - 1));
    ASSERT_EQ(ItemsOf(list), expected) << place;
  }
}

// Every way to fill many blocks: at the end, at the front, and each time behind the first.
TEST(KelCollection, KeepsTheOrderOfManyEntries) {
  constexpr int kCount = 20'000;
  List back("back");
  List front("front");
  List second("second");
  for (int i = 0; i < kCount; ++i) {
    Add(back, i);
    if (i == 0) {
      Add(front, i);
      Add(second, i);
    } else {
      Add(front, i, "", 1);
      Add(second, i, "", {}, 1);
    }
  }
  const Items rising = ItemsOf(back);
  const Items falling = ItemsOf(front);
  const Items others = ItemsOf(second);
  ASSERT_EQ(rising.size(), static_cast<std::size_t>(kCount));
  ASSERT_EQ(falling.size(), static_cast<std::size_t>(kCount));
  ASSERT_EQ(others.size(), static_cast<std::size_t>(kCount));
  EXPECT_EQ(others[0], 0);
  for (int i = 0; i < kCount; ++i) {
    const auto at = static_cast<std::size_t>(i);
    ASSERT_EQ(rising[at], i);
    ASSERT_EQ(falling[at], kCount - 1 - i);
    if (i > 0) {
      ASSERT_EQ(others[at], kCount - i);
    }
    if (i % 97 == 0) {
      ASSERT_EQ(*front.Item(i + 1), kCount - 1 - i);
    }
  }
}

}  // namespace
}  // namespace folivar::test
