#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "tests/support/StrictPdf.h"

namespace folivar::test {
namespace {

// Written by hand, positions counted by hand: the catalog at 15, the pages at 64, the content at
// 100.
constexpr std::string_view kSound =
    "%PDF-1.3\n%\xE2\xE3\xCF\xD3\n"
    "1 0 obj\n<< /Type /Catalog\n/Pages 2 0 R\n>>\nendobj\n"
    "2 0 obj\n<< /Kids [ 3 0 R]\n>>\nendobj\n"
    "3 0 obj\n<< /Length 0000000011 >>\nstream\nq\nendobj\nQ\nendstream\nendobj\n"
    "xref\n0 4\n"
    "0000000000 65535 f \n"
    "0000000015 00000 n \n"
    "0000000064 00000 n \n"
    "0000000100 00000 n \n"
    "trailer\n<< /Size 4\n/Root 1 0 R\n>>\nstartxref\n168\n%%EOF\n";

std::string With(std::string_view old, std::string_view replacement) {
  std::string bytes(kSound);
  const std::size_t place = bytes.find(old);
  EXPECT_NE(place, std::string::npos) << old;
  return bytes.replace(place, old.size(), replacement);
}

// What the reader says of the bytes; empty when it takes them.
std::string ComplaintAbout(std::string bytes) {
  try {
    StrictPdf pdf(std::move(bytes));
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "";
}

void ExpectRefused(std::string bytes, std::string_view complaint) {
  const std::string found = ComplaintAbout(std::move(bytes));
  EXPECT_NE(found.find(complaint), std::string::npos) << "says: " << found;
}

TEST(StrictPdf, TakesASoundFileAndShowsItsObjects) {
  const StrictPdf pdf{std::string(kSound)};
  EXPECT_EQ(pdf.Count(), 3U);
  EXPECT_EQ(pdf.Object(1), "<< /Type /Catalog\n/Pages 2 0 R\n>>\n");
  EXPECT_EQ(pdf.Object(3), "<< /Length 0000000011 >>\nstream\nq\nendobj\nQ\nendstream\n");
  EXPECT_FALSE(pdf.IsStream(2));
  EXPECT_TRUE(pdf.IsStream(3));
  EXPECT_EQ(pdf.Stream(3), "q\nendobj\nQ\n");
}

TEST(StrictPdf, TakesALengthInPlainDigits) {
  std::string bytes = With("/Length 0000000011", "/Length 11");
  bytes.replace(bytes.find("\n168\n"), 5, "\n160\n");
  EXPECT_EQ(ComplaintAbout(bytes), "");
}

TEST(StrictPdf, DoesNotReadReferencesOutOfStrings) {
  EXPECT_EQ(ComplaintAbout(With("/Type /Catalog", "/T (9 0 R(\\)))")), "");
}

TEST(StrictPdf, TakesHexadecimalStrings) {
  EXPECT_EQ(ComplaintAbout(With("/Type /Catalog", "/T <00FF7E> <>")), "");
  EXPECT_EQ(ComplaintAbout(With("/Type /Catalog", "/T [<1234> ]  ")), "");
}

TEST(StrictPdf, RefusesHexadecimalStringsThatAreNotComplete) {
  ExpectRefused(With("/Type /Catalog", "/T <00FF7E0>  "), "half a byte");
  ExpectRefused(With("/Type /Catalog", "/T <00FF7Exy> "), "string without end");
  ExpectRefused(With("/Type /Catalog", "/T <00FF7E    "), "string without end");
}

TEST(StrictPdf, RefusesAnObjectOrAStreamThatIsNotThere) {
  const StrictPdf pdf{std::string(kSound)};
  EXPECT_THROW(pdf.Object(0), std::runtime_error);
  EXPECT_THROW(pdf.Object(4), std::runtime_error);
  EXPECT_THROW(pdf.Stream(1), std::runtime_error);
}

TEST(StrictPdf, RefusesAnotherHeader) {
  ExpectRefused(With("1.3", "1.4"), "byte 0: header");
  ExpectRefused(With("\xD3\n", "\xD3\r"), "byte 0: header");
  ExpectRefused("", "byte 0: header");
}

TEST(StrictPdf, RefusesAWrongOffset) {
  ExpectRefused(With("0000000064", "0000000065"), "entry 2");
  ExpectRefused(With("\n168\n", "\n167\n"), "trailer");
}

TEST(StrictPdf, RefusesATableOfAnotherForm) {
  ExpectRefused(With("00000 n \n", "00000 n\n"), "entry 1");
  ExpectRefused(With("00000 n \n", "00000 n\r\n"), "entry 1");
  ExpectRefused(With("65535 f", "00000 f"), "entry 0");
  ExpectRefused(With("0 4\n", "0 5\n"), "cross-reference table");
  ExpectRefused(With("0000000100 00000 n \n", ""), "entry 3");
}

TEST(StrictPdf, RefusesAWrongLength) {
  ExpectRefused(With("0000000011", "0000000010"), "behind the stream's");
  ExpectRefused(With("0000000011", "0000000012"), "behind the stream's");
  ExpectRefused(With("0000000011", "0000009999"), "reaches beyond the file");
  ExpectRefused(With("0000000011", "00000000011"), "no '/Length'");
  ExpectRefused(With("0000000011", "-000000011"), "no '/Length'");
  ExpectRefused(With("/Length", "/Longth"), "no '/Length'");
}

TEST(StrictPdf, RefusesAByteBetweenObjects) {
  ExpectRefused(With("endobj\n2", "endobj\n\n2"), "object 2");
  ExpectRefused(With("endobj\n2", "endobj\r\n2"), "object 1");
  ExpectRefused(With("endobj\nxref", "endobj\n\nxref"), "object 4");
}

TEST(StrictPdf, RefusesAMissingOrMisplacedObject) {
  ExpectRefused(With("2 0 obj\n<< /Kids [ 3 0 R]\n>>\nendobj\n", ""), "object 2");
  ExpectRefused(With("2 0 obj", "3 0 obj"), "object 2");
  ExpectRefused(With("2 0 obj", "2 1 obj"), "object 2");
  ExpectRefused(With("endobj\n2", "\n2"), "object 1");
}

TEST(StrictPdf, RefusesAReferenceToNothing) {
  ExpectRefused(With("[ 3 0 R]", "[ 4 0 R]"), "reference to object 4");
  ExpectRefused(With("[ 3 0 R]", "[ 0 0 R]"), "reference to object 0");
  ExpectRefused(With("[ 3 0 R]", "[ 3 1 R]"), "a reference is not");
  ExpectRefused(With("[ 3 0 R]", "[ 99999999999 0 R]"), "reference to object");
}

TEST(StrictPdf, RefusesOpenBracketsAndStrings) {
  ExpectRefused(With("[ 3 0 R]", "[ 3 0 R "), "closes nothing");
  ExpectRefused(With("/Pages 2 0 R\n>>", "/Pages 2 0 R\n  "), "not closed");
  ExpectRefused(With("/Catalog", "(Catalog"), "string without end");
  ExpectRefused("%PDF-1.3\n%\xE2\xE3\xCF\xD3\n1 0 obj\n(\\", "string without end");
}

TEST(StrictPdf, RefusesAnotherTrailer) {
  ExpectRefused(With("/Size 4", "/Size 5"), "trailer");
  ExpectRefused(With("/Root 1", "/Root 2"), "trailer");
  ExpectRefused(std::string(kSound) + "\n", "bytes behind the end");
  ExpectRefused(std::string(kSound.substr(0, kSound.size() - 1)), "trailer");
}

}  // namespace
}  // namespace folivar::test
