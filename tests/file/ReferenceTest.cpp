#include <gtest/gtest.h>

#include "folivar/file/Reference.h"

namespace folivar::test {
namespace {

TEST(Reference, IsNoneUntilItHasANumber) {
  Reference reference;
  EXPECT_TRUE(reference.IsNone());
  reference = Reference(7);
  EXPECT_FALSE(reference.IsNone());
  EXPECT_EQ(reference.Number(), 7);
  reference = {};
  EXPECT_TRUE(reference.IsNone());
}

}  // namespace
}  // namespace folivar::test
