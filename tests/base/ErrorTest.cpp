#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "folivar/base/Error.h"

namespace folivar::test {
namespace {

void ExpectNumber(const Error& error, std::int32_t name, std::int32_t number) {
  EXPECT_EQ(error.Number(), number);
  EXPECT_EQ(name, number);
}

TEST(Error, MakersAndNamesGiveTheNumbersOfAutomation) {
  ExpectNumber(Error::UnknownImageType(""), Error::kUnknownImageType, -2147220504);
  ExpectNumber(Error::InvalidArgument(""), Error::kInvalidArgument, 5);
  ExpectNumber(Error::Overflow(""), Error::kOverflow, 6);
  ExpectNumber(Error::SubscriptOutOfRange(""), Error::kSubscriptOutOfRange, 9);
  ExpectNumber(Error::DivisionByZero(""), Error::kDivisionByZero, 11);
  ExpectNumber(Error::TypeMismatch(""), Error::kTypeMismatch, 13);
  ExpectNumber(Error::BadFileName(""), Error::kBadFileName, 52);
  ExpectNumber(Error::FileNotFound(""), Error::kFileNotFound, 53);
  ExpectNumber(Error::DiskFull(""), Error::kDiskFull, 61);
  ExpectNumber(Error::InputPastEnd(""), Error::kInputPastEnd, 62);
  ExpectNumber(Error::PermissionDenied(""), Error::kPermissionDenied, 70);
  ExpectNumber(Error::PathFileAccess(""), Error::kPathFileAccess, 75);
  ExpectNumber(Error::PathNotFound(""), Error::kPathNotFound, 76);
  ExpectNumber(Error::ObjectNotSet(""), Error::kObjectNotSet, 91);
  ExpectNumber(Error::InvalidNull(""), Error::kInvalidNull, 94);
  ExpectNumber(Error::InvalidFileFormat(""), Error::kInvalidFileFormat, 321);
  ExpectNumber(Error::ActionNotSupported(""), Error::kActionNotSupported, 445);
  ExpectNumber(Error::KeyInUse(""), Error::kKeyInUse, 457);
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
  EXPECT_EQ(copy.Number(), Error::kKeyInUse);
  EXPECT_STREQ(copy.what(), "text");
}

}  // namespace
}  // namespace folivar::test
