#include <gtest/gtest.h>

#include <any>
#include <cstdint>
#include <memory>
#include <string>

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
