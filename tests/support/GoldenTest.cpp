#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/support/Golden.h"

namespace folivar::test {
namespace {

TEST(Golden, EqualBytesPass) {
  ExpectGolden("support/three-lines.txt", "first line\nsecond line\nthird line\n");
}

TEST(Golden, ADifferenceShowsItsLineOfBothSides) {
  EXPECT_NONFATAL_FAILURE(
      ExpectGolden("support/three-lines.txt", "first line\nsecond \xE9ine\nthird line\n"),
      "line 2\n  expected: second line\n  found:    second \\xE9ine\n");
}

TEST(Golden, AMissingOrAnAddedEndIsADifference) {
  EXPECT_NONFATAL_FAILURE(ExpectGolden("support/three-lines.txt", "first line\n"),
                          "expected: second line\n  found:    (the end)");
  EXPECT_NONFATAL_FAILURE(
      ExpectGolden("support/three-lines.txt", "first line\nsecond line\nthird line\nmore"),
      "expected: (the end)\n  found:    more");
}

TEST(Golden, AMissingFileFails) {
  EXPECT_NONFATAL_FAILURE(ExpectGolden("support/no-such-file.txt", ""), "is missing");
}

}  // namespace
}  // namespace folivar::test
