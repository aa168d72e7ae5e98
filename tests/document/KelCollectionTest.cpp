#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/document/KelCollection.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

std::string TextOfItem(const KelCollection& collection, const Value& index) {
  return collection.Item(index).As<Text>()->Utf8();
}

TEST(KelCollection, KeepsValuesOfEveryKindInOrder) {
  KelCollection collection;
  collection.Add(1);
  collection.Add("two");
  collection.Add(3.5);
  collection.Add(Value::Null());
  EXPECT_EQ(collection.Count(), 4);
  EXPECT_EQ(*collection.Item(1).As<std::int64_t>(), 1);
  EXPECT_EQ(TextOfItem(collection, 2), "two");
  EXPECT_EQ(*collection.Item(3).As<double>(), 3.5);
  EXPECT_TRUE(collection.Item(4).IsNull());
}

TEST(KelCollection, GivesAnObjectBackAsTheSameObject) {
  const std::shared_ptr<PDFDocument> document = PDFDocument::Create();
  KelCollection collection;
  collection.Add(document, "d");
  EXPECT_EQ(*collection.Item("D").As<std::shared_ptr<Object>>(), document);
}

TEST(KelCollection, KeepsACopyOfAValue) {
  KelCollection collection;
  Value value("before");
  collection.Add(value, "v");
  value = Value("after");
  EXPECT_EQ(TextOfItem(collection, "v"), "before");
}

TEST(KelCollection, AddsBeforeAndAfter) {
  KelCollection collection;
  collection.Add("b", "b");
  collection.Add("a", "a", "B");
  collection.Add("d", "", {}, 2);
  collection.Add("c", "", {}, "b");
  std::string all;
  collection.ForEach([&](const Value& value) { all += value.As<Text>()->Utf8(); });
  EXPECT_EQ(all, "abcd");
}

TEST(KelCollection, RaisesTheErrorsOfCollections) {
  KelCollection collection;
  collection.Add(1, "a");
  EXPECT_EQ(ErrorNumberOf([&] { collection.Add(2, "A"); }), Error::kKeyInUse);
  EXPECT_EQ(ErrorNumberOf([&] { collection.Add(2, "", 1, 1); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { collection.Add(2, "", 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { collection.Item("b"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { collection.Item(2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { collection.Remove("b"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([&] { collection.Remove(0); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(collection.Count(), 1);
}

TEST(KelCollection, KeyExistsNeverRaises) {
  KelCollection collection;
  collection.Add(1, "a");
  EXPECT_TRUE(collection.KeyExists("A"));
  EXPECT_TRUE(collection.KeyExists(1));
  EXPECT_FALSE(collection.KeyExists("b"));
  EXPECT_FALSE(collection.KeyExists(2));
  EXPECT_FALSE(collection.KeyExists(Value::Null()));
  EXPECT_FALSE(collection.KeyExists(true));
  EXPECT_FALSE(collection.KeyExists(Value()));
}

TEST(KelCollection, RemovesByPositionAndKey) {
  KelCollection collection;
  collection.Add("a", "a");
  collection.Add("b", "b");
  collection.Add("c", "c");
  collection.Remove("B");
  EXPECT_EQ(TextOfItem(collection, 2), "c");
  collection.Remove(1);
  EXPECT_EQ(TextOfItem(collection, 1), "c");
  EXPECT_FALSE(collection.KeyExists("a"));
  EXPECT_EQ(collection.Count(), 1);
}

}  // namespace
}  // namespace folivar::test
