#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "folivar/base/Error.h"
#include "folivar/file/ObjectNumbers.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

TEST(ObjectNumbers, CountsFrom1) {
  ObjectNumbers numbers;
  EXPECT_EQ(numbers.NextObjectNumber(), 1);
  EXPECT_EQ(numbers.Take().Number(), 1);
  EXPECT_EQ(numbers.Take().Number(), 2);
  EXPECT_EQ(numbers.NextObjectNumber(), 3);
}

TEST(ObjectNumbers, CountsFromAnyNumber) {
  ObjectNumbers numbers(40);
  EXPECT_EQ(numbers.Take().Number(), 40);
  EXPECT_EQ(numbers.NextObjectNumber(), 41);
}

TEST(ObjectNumbers, Raises6WhenTheNextNumberWouldNotFit) {
  ObjectNumbers numbers(kLargest - 1);
  EXPECT_EQ(numbers.Take().Number(), kLargest - 1);
  EXPECT_EQ(ErrorNumberOf([&] { numbers.Take(); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { numbers.Take(); }), Error::kOverflow);
  EXPECT_EQ(numbers.NextObjectNumber(), kLargest);
}

}  // namespace
}  // namespace folivar::test
