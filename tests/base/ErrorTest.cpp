#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "folivar/base/Error.h"

namespace folivar::test {
namespace {

TEST(Error, MakersGiveTheNumbersOfAutomation) {
  EXPECT_EQ(Error::InvalidArgument("").Number(), 5);
  EXPECT_EQ(Error::Overflow("").Number(), 6);
  EXPECT_EQ(Error::SubscriptOutOfRange("").Number(), 9);
  EXPECT_EQ(Error::DivisionByZero("").Number(), 11);
  EXPECT_EQ(Error::TypeMismatch("").Number(), 13);
  EXPECT_EQ(Error::BadFileName("").Number(), 52);
  EXPECT_EQ(Error::FileNotFound("").Number(), 53);
  EXPECT_EQ(Error::DiskFull("").Number(), 61);
  EXPECT_EQ(Error::InputPastEnd("").Number(), 62);
  EXPECT_EQ(Error::PermissionDenied("").Number(), 70);
  EXPECT_EQ(Error::PathFileAccess("").Number(), 75);
  EXPECT_EQ(Error::PathNotFound("").Number(), 76);
  EXPECT_EQ(Error::ObjectNotSet("").Number(), 91);
  EXPECT_EQ(Error::InvalidNull("").Number(), 94);
  EXPECT_EQ(Error::ActionNotSupported("").Number(), 445);
  EXPECT_EQ(Error::KeyInUse("").Number(), 457);
  EXPECT_EQ(Error::UnknownImageType("").Number(), -2147220504);
}

TEST(Error, CarriesItsText) {
  EXPECT_STREQ(Error::Overflow("caf\u00E9 is too large").what(), "caf\u00E9 is too large");
  EXPECT_STREQ(Error(1234, "own").what(), "own");
  EXPECT_EQ(Error(1234, "own").Number(), 1234);
}

TEST(Error, IsCaughtAsAStandardException) {
  try {
    throw Error::PathNotFound("text");
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "text");
  }
}

TEST(Error, ACopyKeepsNumberAndText) {
  const Error original = Error::KeyInUse("text");
  const Error copy = original;
  EXPECT_EQ(copy.Number(), 457);
  EXPECT_STREQ(copy.what(), "text");
}

}  // namespace
}  // namespace folivar::test
