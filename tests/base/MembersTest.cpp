#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/base/Members.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

class Thing final : public Object {};

using Row = std::vector<Members::Member>;

Row All(const Members& members) {
  Row all;
  members.ForEach([&](Object& member) { all.push_back(member.shared_from_this()); });
  return all;
}

// "a" at 1, one without a key at 2, "c" at 3.
class MembersOfThree : public testing::Test {
 protected:
  MembersOfThree() {
    members_.Add(first_, "a", {}, {});
    members_.Add(second_, "", {}, {});
    members_.Add(third_, "c", {}, {});
  }

  Members::Member first_ = std::make_shared<Thing>();
  Members::Member second_ = std::make_shared<Thing>();
  Members::Member third_ = std::make_shared<Thing>();
  Members members_{Internal(), "PDFThings"};
};

TEST(Members, AreNoneAtFirst) {
  const Members members(Internal(), "PDFThings");
  EXPECT_EQ(members.Count(), 0U);
  EXPECT_EQ(All(members), Row());
}

TEST_F(MembersOfThree, AMemberIsFoundByItsPositionAndWhateverTheCaseOfItsKey) {
  EXPECT_EQ(members_.Count(), 3U);
  EXPECT_EQ(members_.Item(2), second_);
  EXPECT_EQ(members_.Item("C"), third_);
  EXPECT_TRUE(members_.KeyExists("A"));
  EXPECT_FALSE(members_.KeyExists("b"));
  EXPECT_FALSE(members_.KeyExists(4));
}

TEST_F(MembersOfThree, AMemberIsAddedAtItsPlace) {
  const Members::Member member = std::make_shared<Thing>();
  members_.Add(member, "x", "C", {});
  EXPECT_EQ(All(members_), (Row{first_, second_, member, third_}));
  const Members::Member last = std::make_shared<Thing>();
  members_.Add(last, "", {}, 1);
  EXPECT_EQ(All(members_), (Row{first_, last, second_, member, third_}));
}

TEST_F(MembersOfThree, ErrorsNameTheCollection) {
  EXPECT_EQ(ErrorNumberOf([&] { members_.Add(second_, "A", {}, {}); }), Error::kKeyInUse);
  EXPECT_EQ(ErrorTextOf([&] { members_.Add(second_, "A", {}, {}); }),
            "PDFThings.Add: key 'A' is already in use");
  EXPECT_EQ(ErrorNumberOf([&] { members_.Item("b"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([&] { members_.Item("b"); }), "PDFThings.Item: there is no key 'b'");
  EXPECT_EQ(ErrorNumberOf([&] { members_.Remove(4); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(All(members_), (Row{first_, second_, third_}));
}

TEST_F(MembersOfThree, ARemovedMemberIsLetGoWithItsKey) {
  members_.Remove("A");
  EXPECT_EQ(All(members_), (Row{second_, third_}));
  EXPECT_FALSE(members_.KeyExists("a"));
  EXPECT_EQ(first_.use_count(), 1);
}

TEST_F(MembersOfThree, AMemberIsTakenOutWhereverItStands) {
  members_.RemoveMember(second_, 2);
  EXPECT_EQ(All(members_), (Row{first_, third_})) << "at the likely place";
  members_.RemoveMember(third_, "a");
  EXPECT_EQ(All(members_), (Row{first_})) << "elsewhere";
  members_.RemoveMember(third_, 1);
  EXPECT_EQ(All(members_), (Row{first_})) << "it stands nowhere any more";
}

TEST_F(MembersOfThree, AllAreThoseOfTheMoment) {
  const Row all = All(members_);
  members_.Remove(1);
  EXPECT_EQ(all, (Row{first_, second_, third_}));
}

TEST_F(MembersOfThree, AVisitSeesEachMemberInOrder) {
  std::vector<const Object*> seen;
  members_.ForEach([&](Object& member) { seen.push_back(&member); });
  EXPECT_EQ(seen, (std::vector<const Object*>{first_.get(), second_.get(), third_.get()}));
}

TEST_F(MembersOfThree, AVisitPassesOnWhatIsThrown) {
  int visits = 0;
  EXPECT_EQ(ErrorNumberOf([&] {
              members_.ForEach([&](Object&) {
                ++visits;
                throw Error::Overflow("too large");
              });
            }),
            Error::kOverflow);
  EXPECT_EQ(visits, 1);
}

}  // namespace
}  // namespace folivar::test
