#include <gtest/gtest.h>

#include <vector>

#include "folivar/base/RingLink.h"

namespace folivar::test {
namespace {

// The links of a ring, from one on.
std::vector<const RingLink*> RingFrom(const RingLink& first) {
  std::vector<const RingLink*> links = {&first};
  for (const RingLink* link = &first.Next(); link != &first; link = &link->Next()) {
    links.push_back(link);
  }
  return links;
}

using Links = std::vector<const RingLink*>;

TEST(RingLink, IsAloneAtFirst) {
  const RingLink link;
  EXPECT_TRUE(link.IsAlone());
  EXPECT_EQ(RingFrom(link), Links{&link});
}

TEST(RingLink, JoinsBeforeAnother) {
  RingLink a;
  RingLink b;
  RingLink c;
  c.JoinBefore(a);
  b.JoinBefore(c);
  EXPECT_EQ(RingFrom(a), (Links{&a, &b, &c}));
  EXPECT_EQ(RingFrom(b), (Links{&b, &c, &a}));
  EXPECT_FALSE(a.IsAlone());
}

TEST(RingLink, WhoLeavesIsAloneAndTheOthersStayTogether) {
  RingLink a;
  RingLink b;
  RingLink c;
  b.JoinBefore(a);
  c.JoinBefore(a);
  b.Leave();
  EXPECT_TRUE(b.IsAlone());
  EXPECT_EQ(RingFrom(a), (Links{&a, &c}));
  c.Leave();
  EXPECT_TRUE(a.IsAlone());
  a.Leave();
  EXPECT_TRUE(a.IsAlone());
}

}  // namespace
}  // namespace folivar::test
