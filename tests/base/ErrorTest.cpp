#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "folivar/base/Error.h"

namespace folivar::test {
namespace {

void ExpectNumber(const Error& error, std::int32_t name, std::int32_t number) {
  EXPECT_EQ(error.Number(), number);
  EXPECT_EQ(name, number);
}

TEST(Error, MakersAndNamesGiveTheNumbersOfAutomation) {
  ExpectNumber(Error::UnknownImageType("", ""), Error::kUnknownImageType, -2147220504);
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

TEST(Error, OfACauseAloneHasNoMemberAndNoObject) {
  const Error error = Error::Overflow("caf\u00E9 is too large");
  EXPECT_STREQ(error.what(), "caf\u00E9 is too large");
  EXPECT_EQ(error.Cause(), "caf\u00E9 is too large");
  EXPECT_EQ(error.Member(), "");
  EXPECT_EQ(error.Object(), "");
}

TEST(Error, ItsTextGoesOnBehindANul) {
  using std::string_literals::operator""s;
  EXPECT_STREQ(Error::InvalidArgument("key 'a\0b\0' is in use"s).what(),
               "key 'a\\0b\\0' is in use");
  const Error error = Error::UnknownImageType("\0.gif"s, "a\0b"s);
  EXPECT_STREQ(error.what(), "\\0.gif (a\\0b)");
  EXPECT_STREQ(error.Description(), "\\0.gif");
  EXPECT_STREQ(Error::DiskFull("no room").WithObject("file '\0'"s).what(), "file '\\0': no room");
}

TEST(Error, AnObjectIsToldOnce) {
  const Error error = Error::Overflow("too wide").WithObject("PDFTextBox 'note'");
  EXPECT_EQ(error.WithObject("PDFTextBox 'note'").Object(), "PDFTextBox 'note'");
}

TEST(Error, MayHaveANumberOfItsOwn) {
  EXPECT_EQ(Error(1234, "own").Number(), 1234);
  EXPECT_STREQ(Error(1234, "own").what(), "own");
}

TEST(Error, ItsTextIsMemberObjectAndCause) {
  const Error cause = Error::DiskFull("no room");
  EXPECT_STREQ(cause.WithMember("PDFDocument.SavePDFFile").what(),
               "PDFDocument.SavePDFFile: no room");
  EXPECT_STREQ(cause.WithObject("file 'a.pdf'").what(), "file 'a.pdf': no room");
  const Error whole = cause.WithObject("file 'a.pdf'").WithMember("PDFDocument.SavePDFFile");
  EXPECT_STREQ(whole.what(), "PDFDocument.SavePDFFile: file 'a.pdf': no room");
  EXPECT_EQ(whole.Number(), Error::kDiskFull);
  EXPECT_EQ(whole.Member(), "PDFDocument.SavePDFFile");
  EXPECT_EQ(whole.Object(), "file 'a.pdf'");
  EXPECT_EQ(whole.Cause(), "no room");
}

TEST(Error, OfMembersTheOuterOneStays) {
  const Error error = Error::Overflow("too large").WithMember("A.Inner").WithMember("B.Outer");
  EXPECT_EQ(error.Member(), "B.Outer");
  EXPECT_STREQ(error.what(), "B.Outer: too large");
}

TEST(Error, AnObjectInAnObjectIsAPartOfIt) {
  const Error error = Error::Overflow("too large").WithObject("Destination").WithObject("link 'a'");
  EXPECT_EQ(error.Object(), "Destination of link 'a'");
}

TEST(Error, TheDescriptionOfAnUnknownImageStandsAlone) {
  const Error error = Error::UnknownImageType("Error: Image type unknown for a.gif.", "no reader")
                          .WithObject("file 'a.gif'")
                          .WithMember("PDFImage.FileName");
  EXPECT_STREQ(error.Description(), "Error: Image type unknown for a.gif.");
  EXPECT_STREQ(error.what(), "Error: Image type unknown for a.gif. (no reader)");
  EXPECT_EQ(error.Cause(), "no reader");
  EXPECT_EQ(error.Member(), "PDFImage.FileName");
  EXPECT_EQ(error.Object(), "file 'a.gif'");
}

TEST(Error, OtherDescriptionsAreAllTheWords) {
  const Error error = Error::Overflow("too large").WithMember("A.B");
  EXPECT_STREQ(error.Description(), "A.B: too large");
}

TEST(Error, IsCaughtAsAStandardException) {
  try {
    throw Error::PathNotFound("text");
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "text");
  }
}

// Or catching one by value could end the program.
static_assert(std::is_nothrow_copy_constructible_v<Error>);
static_assert(std::is_nothrow_copy_assignable_v<Error>);

TEST(Error, ACopyKeepsEverythingWhenTheOriginalIsGone) {
  auto original = std::make_unique<Error>(Error::KeyInUse("text").WithMember("A.B"));
  const Error copy = *original;
  Error assigned = Error::Overflow("other");
  assigned = *original;
  original.reset();
  for (const Error& error : {copy, assigned}) {
    EXPECT_EQ(error.Number(), Error::kKeyInUse);
    EXPECT_EQ(error.Member(), "A.B");
    EXPECT_STREQ(error.what(), "A.B: text");
  }
}

}  // namespace
}  // namespace folivar::test
