#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/base/MemberList.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

struct Thing final : Object {
  explicit Thing(std::string letter) : name(std::move(letter)) {}

  std::string name;
};

// A collection as the object model has them: each thing is named as its key.
class Things final : public MemberList<Thing> {
 public:
  Things() : MemberList(Internal(), "PDFThings") {}

  std::shared_ptr<Thing> Add(const std::string& key) {
    auto thing = std::make_shared<Thing>(key);
    members_.Add(thing, key, {}, {});
    return thing;
  }
  void Remove(const Value& indexOrKey) { members_.Remove(indexOrKey); }
  void ReOrder(TextView key, const Value& before = {}, const Value& after = {}) {
    MoveMember(key, before, after, [this](const Value& name) {
      Remove(name);
      if (onRemove) onRemove();
    });
  }

  std::function<void()> onRemove;

  std::string Visited() const {
    std::string names;
    ForEach([&](Thing& thing) { names += thing.name; });
    return names;
  }
};

std::string NamesOf(const Things& things) {
  std::string names;
  for (const auto& thing : things) names += thing->name;
  return names;
}

class MemberListOfThree : public testing::Test {
 protected:
  MemberListOfThree() {
    for (const char* key : {"a", "b", "c"}) things_.Add(key);
  }

  Things things_;
};

TEST(MemberList, IsEmptyAtFirst) {
  const Things things;
  EXPECT_EQ(things.count(), 0);
  EXPECT_EQ(NamesOf(things), "");
  EXPECT_FALSE(things.KeyExists(1));
}

TEST_F(MemberListOfThree, AMemberIsFoundByItsPositionFrom1) {
  EXPECT_EQ(things_.count(), 3);
  EXPECT_EQ(things_.Item(1)->name, "a");
  EXPECT_EQ(things_.Item(3)->name, "c");
  EXPECT_EQ(things_.Item(1.5)->name, "b") << "halves to even";
  EXPECT_EQ(things_.Item(2.5)->name, "b");
}

TEST_F(MemberListOfThree, AMemberIsFoundWhateverTheCaseOfItsKey) {
  const auto thing = things_.Add("\u00C9t\u00E9");
  EXPECT_EQ(things_.Item("\u00E9T\u00C9"), thing);
  EXPECT_EQ(things_.Item("B")->name, "b");
}

TEST_F(MemberListOfThree, ItemRaises) {
  const auto numberFor = [&](const Value& indexOrKey) {
    return ErrorNumberOf([&] { things_.Item(indexOrKey); });
  };
  EXPECT_EQ(numberFor("x"), Error::kInvalidArgument);
  EXPECT_EQ(numberFor("1"), Error::kInvalidArgument) << "a text is a key";
  EXPECT_EQ(numberFor(0), Error::kSubscriptOutOfRange);
  EXPECT_EQ(numberFor(4), Error::kSubscriptOutOfRange);
  EXPECT_EQ(numberFor(true), Error::kTypeMismatch);
  EXPECT_EQ(numberFor({}), Error::kTypeMismatch);
  EXPECT_EQ(numberFor(Value::Null()), Error::kInvalidNull);
  EXPECT_EQ(numberFor(3e9), Error::kOverflow);
  EXPECT_EQ(ErrorTextOf([&] { things_.Item("x"); }), "PDFThings.Item: there is no key 'x'");
}

TEST_F(MemberListOfThree, KeyExistsTellsWhetherItemWouldSucceed) {
  EXPECT_TRUE(things_.KeyExists("A"));
  EXPECT_TRUE(things_.KeyExists(3));
  EXPECT_FALSE(things_.KeyExists("x"));
  EXPECT_FALSE(things_.KeyExists(4));
  EXPECT_FALSE(things_.KeyExists(true));
  EXPECT_FALSE(things_.KeyExists(Value::Null()));
  EXPECT_FALSE(things_.KeyExists("\xFF")) << "what is not UTF-8 is no key";
}

TEST_F(MemberListOfThree, AWalkSeesTheMembersAsTheyWereWhenItBegan) {
  std::string seen;
  for (const auto& thing : things_) {
    seen += thing->name;
    things_.Remove(thing->name);
    things_.Add(thing->name + "2");
  }
  EXPECT_EQ(seen, "abc");
  EXPECT_EQ(NamesOf(things_), "a2b2c2");
}

TEST_F(MemberListOfThree, AWalkEndsBehindTheLastMember) {
  auto walk = things_.begin();
  EXPECT_EQ((*walk)->name, "a");
  EXPECT_EQ(walk->get(), things_.Item(1).get());
  ++walk;
  EXPECT_EQ((*walk)->name, "b");
  walk++;
  EXPECT_EQ((*walk)->name, "c");
  EXPECT_FALSE(walk == things_.end());
  ++walk;
  EXPECT_TRUE(walk == things_.end());
}

TEST_F(MemberListOfThree, AVisitSeesEachMemberInOrder) { EXPECT_EQ(things_.Visited(), "abc"); }

TEST_F(MemberListOfThree, AMemberMovesToAPlaceOrToTheEnd) {
  const auto thing = things_.Item("a");
  things_.ReOrder("A");
  EXPECT_EQ(NamesOf(things_), "bca");
  things_.ReOrder("a", 1);
  EXPECT_EQ(NamesOf(things_), "abc");
  things_.ReOrder("a", {}, "B");
  EXPECT_EQ(NamesOf(things_), "bac");
  EXPECT_EQ(things_.Item("a"), thing);
}

TEST_F(MemberListOfThree, WhatCannotBeMovedChangesNothing) {
  things_.ReOrder("x", 1);
  things_.ReOrder("", 1);
  things_.ReOrder("\xFF", 1);
  EXPECT_EQ(NamesOf(things_), "abc");
}

TEST_F(MemberListOfThree, AMoveGoesByWhatItWasGivenWhateverHandlersDoToThat) {
  std::string key = "a";
  Value before = 2;
  Value after = "c";
  things_.onRemove = [&] {
    key = "x";
    before = 1;
    after = "b";
  };
  const auto thing = things_.Item("a");
  things_.ReOrder(key, before);
  EXPECT_EQ(NamesOf(things_), "bac");
  key = "a";
  after = "c";
  things_.ReOrder(key, {}, after);
  EXPECT_EQ(NamesOf(things_), "bca");
  EXPECT_EQ(things_.Item("a"), thing);
}

// Deliberate: unlike in Add, giving both is no error.
TEST_F(MemberListOfThree, DeliberateAMoveIgnoresAfterWhenBeforeIsGiven) {
  things_.ReOrder("b", 1, 3);
  EXPECT_EQ(NamesOf(things_), "bac");
  things_.ReOrder("b", 2, "no such key");
  EXPECT_EQ(NamesOf(things_), "abc");
}

// Deliberate: there are two members left when the place is looked up.
TEST_F(MemberListOfThree, DeliberateAMemberMovedToAPlaceThatDoesNotExistStaysRemoved) {
  things_.ReOrder("a", 3);
  EXPECT_EQ(NamesOf(things_), "bc");
  EXPECT_FALSE(things_.KeyExists("a"));
}

}  // namespace
}  // namespace folivar::test
