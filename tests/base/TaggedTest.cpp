#include <gtest/gtest.h>

#include <any>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Tagged.h"
#include "folivar/folivar.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

class Thing final : public Tagged {};

TEST(Tagged, HasAnEmptyTagAtFirst) {
  EXPECT_TRUE(Thing().Tag().IsEmpty());
  const auto document = PDFDocument::Create();
  EXPECT_TRUE(document->Pages()->Add()->Tag().IsEmpty());
  EXPECT_TRUE(document->Templates()->Add()->Tag().IsEmpty());
}

TEST(Tagged, ATagHoldsAnything) {
  Thing thing;
  thing.SetTag(42);
  EXPECT_EQ(*thing.Tag().As<std::int64_t>(), 42);
  thing.SetTag("text");
  EXPECT_EQ(*thing.Tag().As<Text>(), "text");
  const auto other = std::make_shared<Thing>();
  thing.SetTag(other);
  EXPECT_EQ(*thing.Tag().As<std::shared_ptr<Object>>(), other);
  thing.SetTag(Value::Host(std::string("my own")));
  EXPECT_EQ(std::any_cast<std::string>(*thing.Tag().As<std::any>()), "my own");
  thing.SetTag(Value::Null());
  EXPECT_TRUE(thing.Tag().IsNull());
  thing.SetTag(Value::Empty());
  EXPECT_TRUE(thing.Tag().IsEmpty());
}

TEST(Tagged, ATagMayBeSetFromItself) {
  Thing thing;
  thing.SetTag("text");
  thing.SetTag(thing.Tag());
  EXPECT_EQ(*thing.Tag().As<Text>(), "text");
}

TEST(Tagged, ATagKeepsItsObject) {
  std::weak_ptr<Object> kept;
  {
    Thing thing;
    const auto other = std::make_shared<Thing>();
    kept = other;
    thing.SetTag(other);
    EXPECT_EQ(other.use_count(), 2);
  }
  EXPECT_TRUE(kept.expired());
}

// Long enough to use up any call stack.
constexpr int kLongChain = 300000;

TEST(Tagged, AChainOfAnyLengthMayEnd) {
  auto last = std::make_shared<Thing>();
  const std::weak_ptr<Object> first = last;
  for (int i = 0; i < kLongChain; ++i) {
    auto next = std::make_shared<Thing>();
    next->SetTag(std::move(last));
    last = std::move(next);
  }
  last.reset();
  EXPECT_TRUE(first.expired());
}

TEST(Tagged, AChainThroughValuesOfTheHostMayEnd) {
  auto last = std::make_shared<Thing>();
  const std::weak_ptr<Object> first = last;
  for (int i = 0; i < kLongChain; ++i) {
    auto next = std::make_shared<Thing>();
    next->SetTag(Value::Host(std::move(last)));
    last = std::move(next);
  }
  last->SetTag({});
  EXPECT_TRUE(first.expired());
}

TEST(Tagged, AChainOfPagesMayEnd) {
  const auto document = PDFDocument::Create();
  std::shared_ptr<PDFPage> last;
  for (int i = 0; i < 30000; ++i) {
    const auto page = document->Pages()->Add();
    page->SetTag(std::move(last));
    document->Pages()->Remove(1);
    last = page;
  }
  const std::weak_ptr<Object> newest = last;
  last.reset();
  EXPECT_TRUE(newest.expired());
}

TEST(Tagged, AChainOfDocumentsThroughTheirPagesMayEnd) {
  auto last = PDFDocument::Create();
  const std::weak_ptr<Object> first = last;
  for (int i = 0; i < 5000; ++i) {
    auto next = PDFDocument::Create();
    next->Pages()->Add()->SetTag(std::move(last));
    last = std::move(next);
  }
  last.reset();
  EXPECT_TRUE(first.expired());
}

TEST(Tagged, TagsOfBranchesAllEnd) {
  std::vector<std::weak_ptr<Object>> leaves;
  const auto root = std::make_shared<Thing>();
  for (int branch = 0; branch < 3; ++branch) {
    const auto document = PDFDocument::Create();
    for (int leaf = 0; leaf < 2; ++leaf) {
      const auto thing = std::make_shared<Thing>();
      leaves.push_back(thing);
      document->Pages()->Add()->SetTag(thing);
    }
    document->SetTag(root->Tag());
    root->SetTag(document);
  }
  root->SetTag(0);
  for (const auto& leaf : leaves) EXPECT_TRUE(leaf.expired());
}

TEST(Tagged, ATagIsNeverWritten) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  const auto drawn = document->Templates()->Add();
  page->DrawTemplate(drawn);
  const std::string before = Save(*document, "untagged.pdf", Check::kForm).bytes;
  page->SetTag("text");
  drawn->SetTag(42);
  EXPECT_EQ(Save(*document, "tagged.pdf", Check::kForm).bytes, before);
}

}  // namespace
}  // namespace folivar::test
