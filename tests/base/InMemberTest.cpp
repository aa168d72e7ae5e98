#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>

#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

[[noreturn]] void Fail() { throw Error::Overflow("too large"); }

TEST(InMember, PutsTheMemberInFront) {
  EXPECT_EQ(ErrorTextOf([] { InMember("PDFPage.DrawLine", Fail); }), "PDFPage.DrawLine: too large");
  EXPECT_EQ(ErrorTextOf([] { InMember("PDFPage", "DrawLine", Fail); }),
            "PDFPage.DrawLine: too large");
  EXPECT_EQ(ErrorNumberOf([] { InMember("PDFPage.DrawLine", Fail); }), Error::kOverflow);
}

TEST(InMember, GivesWhatTheActionGives) {
  int value = 1;
  const auto reference = [&]() -> int& { return value; };
  static_assert(std::is_same_v<decltype(InMember("A.B", reference)), int&>);
  EXPECT_EQ(&InMember("A.B", reference), &value);
  EXPECT_EQ(&InMember("A", "B", reference), &value);
  EXPECT_EQ(&OfObject([] { return "page"; }, reference), &value);
}

TEST(InMember, LetsOtherExceptionsPassAsTheyAre) {
  const auto fail = [] { throw std::invalid_argument("the host's own"); };
  EXPECT_THROW(InMember("A.B", fail), std::invalid_argument);
  EXPECT_THROW(OfObject([] { return "page"; }, fail), std::invalid_argument);
}

TEST(OfObject, SaysWhichObjectBehindTheMember) {
  const auto fail = [] { OfObject([] { return std::string("PDFPage 'cover'"); }, Fail); };
  EXPECT_EQ(ErrorTextOf(fail), "PDFPage 'cover': too large");
  EXPECT_EQ(ErrorTextOf([&] { InMember("PDFDocument.SavePDFFile", fail); }),
            "PDFDocument.SavePDFFile: PDFPage 'cover': too large");
}

TEST(InMemberOf, TellsTheMemberAndItsObject) {
  const auto name = [] { return std::string("PDFTextBox 'note'"); };
  EXPECT_EQ(ErrorTextOf([&] { InMemberOf(name, "PDFTextBox.Width", Fail); }),
            "PDFTextBox.Width: PDFTextBox 'note': too large");
  EXPECT_EQ(InMemberOf(name, "PDFTextBox.Width", [] { return 7; }), 7);
}

TEST(OfObject, MakesTheNameOnlyForAFailure) {
  int made = 0;
  const auto name = [&] {
    ++made;
    return "page";
  };
  OfObject(name, [] {});
  EXPECT_EQ(made, 0);
  EXPECT_EQ(ErrorTextOf([&] { OfObject(name, Fail); }), "page: too large");
  EXPECT_EQ(made, 1);
}

}  // namespace
}  // namespace folivar::test
