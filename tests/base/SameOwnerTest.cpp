#include <gtest/gtest.h>

#include <memory>

#include "folivar/base/SameOwner.h"

namespace folivar::test {
namespace {

using Pointer = std::weak_ptr<int>;

TEST(SameOwner, PointersToTheSameObjectAreTheSame) {
  const auto object = std::make_shared<int>(1);
  EXPECT_TRUE(AreSame(Pointer(object), Pointer(object)));
}

TEST(SameOwner, EqualObjectsAreNotTheSame) {
  const auto one = std::make_shared<int>(1);
  const auto other = std::make_shared<int>(1);
  EXPECT_FALSE(AreSame(Pointer(one), Pointer(other)));
  EXPECT_FALSE(AreSame(Pointer(one), Pointer()));
  EXPECT_FALSE(AreSame(Pointer(), Pointer(one)));
}

TEST(SameOwner, AnObjectThatWentAwayIsStillTheSame) {
  auto one = std::make_shared<int>(1);
  auto other = std::make_shared<int>(1);
  const Pointer first = one;
  const Pointer second = one;
  const Pointer third = other;
  one.reset();
  EXPECT_TRUE(AreSame(first, second));
  EXPECT_FALSE(AreSame(first, third));
  other.reset();
  EXPECT_FALSE(AreSame(first, third)) << "both are gone, but were two";
}

}  // namespace
}  // namespace folivar::test
