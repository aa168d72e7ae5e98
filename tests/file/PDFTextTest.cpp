#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/Error.h"
#include "folivar/file/PDFText.h"
#include "tests/support/Content.h"
#include "tests/support/ManyBytes.h"

namespace folivar::test {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

template <class... Parts>
std::string Appended(const Parts&... parts) {
  PDFText text;
  text.Append(parts...);
  return std::string(text.Bytes());
}

TEST(PDFText, IsEmptyAtFirst) {
  const PDFText text;
  EXPECT_EQ(text.Size(), 0U);
  EXPECT_EQ(text.Bytes(), "");
}

TEST(PDFText, AppendsBytesAsTheyAre) {
  EXPECT_EQ(Appended("/Type ", std::string("/Page"), std::string_view("\n\0\xFF", 3)),
            std::string_view("/Type /Page\n\0\xFF", 14));
  EXPECT_EQ(Appended(""), "");
  EXPECT_EQ(Appended(std::string_view()), "");
}

TEST(PDFText, AppendsWholeNumbersInPlainDecimal) {
  for (const std::int32_t number : {0, 9, 10, 99, 100, 999, 1000, 9999, 10000, 99999, 100000,
                                    1234567, 99999999, 100000000, kLargest, -1, -10, kSmallest}) {
    EXPECT_EQ(Appended(number), std::to_string(number));
  }
  EXPECT_EQ(Appended(std::uint32_t{4294967295U}), "4294967295");
  EXPECT_EQ(Appended(std::int16_t{-32768}, " ", std::uint8_t{255}), "-32768 255");
}

TEST(PDFText, AppendsEveryNumberOfDigits) {
  for (std::uint32_t number = 0; number < 120'000; ++number) {
    ASSERT_EQ(Appended(number), std::to_string(number));
  }
}

TEST(PDFText, AppendsRealsWithTheirBlank) {
  EXPECT_EQ(Appended("/MediaBox [ 0 0 ", Real{612}, " ", Real{792.5}, "]"),
            "/MediaBox [ 0 0 612  792.5 ]");
}

TEST(PDFText, AppendsReferences) {
  EXPECT_EQ(Appended(Reference{7}), "7 0 R");
  EXPECT_EQ(Appended(Reference{kLargest}), "2147483647 0 R");
}

TEST(PDFText, AppendsTenDigits) {
  EXPECT_EQ(Appended(TenDigits{0}), "0000000000");
  EXPECT_EQ(Appended(TenDigits{15}), "0000000015");
  EXPECT_EQ(Appended(TenDigits{4294967296}), "4294967296");
  EXPECT_EQ(Appended(TenDigits{9999999999}), "9999999999");
  EXPECT_EQ(Appended(TenDigits{1000000001}), "1000000001");
}

TEST(PDFText, EscapesBackslashesAndParentheses) {
  EXPECT_EQ(Appended(Escaped{"a(b)\\c"}), "a\\(b\\)\\\\c");
  EXPECT_EQ(Appended(Escaped{"((("}), "\\(\\(\\(");
  EXPECT_EQ(Appended(Escaped{"plain\n\r\t[]<>/%\xE9"}), "plain\n\r\t[]<>/%\xE9");
  EXPECT_EQ(Appended(Escaped{""}), "");
}

TEST(PDFText, WritesWhatWouldEndANameInHex) {
  EXPECT_EQ(Appended(Name{"LiberationSans,Bold"}), "LiberationSans,Bold");
  EXPECT_EQ(Appended(Name{"CGTimes(W1)"}), "CGTimes#28W1#29");
  EXPECT_EQ(Appended(Name{"#%()/<>[]{}"}), "#23#25#28#29#2F#3C#3E#5B#5D#7B#7D");
  EXPECT_EQ(Appended(Name{std::string_view("a\0\t\n b", 6)}), "a#00#09#0A#20b");
  EXPECT_EQ(Appended(Name{"M\xFCller"}), "M\xFCller");
  EXPECT_EQ(Appended(Name{""}), "");
}

TEST(PDFText, WritesATextAsBytesOfTheCodePage) {
  EXPECT_EQ(Appended(Ansi{u"plain \u00E9"}), "plain \xE9");
  EXPECT_EQ(Appended(Ansi{u"\u20AC(\u0416"}), "\x80(?");
  EXPECT_EQ(Appended(Ansi{u""}), "");
}

TEST(PDFText, AppendsAllPartsOrNone) {
  PDFText text;
  text.Append("before");
  EXPECT_EQ(ErrorNumberOf([&] { text.Append("a ", Real{1}, Real{2147483648.0}, "b"); }),
            Error::kOverflow);
  EXPECT_EQ(text.Bytes(), "before");
  EXPECT_EQ(ErrorNumberOf([&] { text.Append(Real{std::numeric_limits<double>::quiet_NaN()}); }),
            Error::kOverflow);
  EXPECT_EQ(text.Bytes(), "before");
  text.Append("after");
  EXPECT_EQ(text.Bytes(), "beforeafter");
}

TEST(PDFText, GrowsByPiecesOfAnySize) {
  PDFText text;
  std::string expected;
  for (std::size_t size = 0; size < 1500; ++size) {
    const std::string piece(size, static_cast<char>('a' + size % 26));
    text.Append(piece, Real{static_cast<double>(size)});
    expected += piece + std::to_string(size) + " ";
    ASSERT_EQ(text.Size(), expected.size());
  }
  EXPECT_EQ(text.Bytes(), expected);
}

TEST(PDFText, Raises6BeyondTheLargestSizeAndKeepsWhatItHas) {
  const ManyBytes many(std::size_t{1} << 31);
  PDFText text;
  EXPECT_EQ(ErrorNumberOf([&] { text.Append(many.View()); }), Error::kOverflow);
  EXPECT_EQ(text.Size(), 0U);
  text.Append("x");
  EXPECT_EQ(ErrorNumberOf([&] { text.Append(many.View().substr(1)); }), Error::kOverflow);
  EXPECT_EQ(text.Bytes(), "x");
}

TEST(PDFText, MovesItsBytes) {
  PDFText text;
  text.Append("one");
  PDFText moved(std::move(text));
  EXPECT_EQ(moved.Bytes(), "one");
  PDFText other;
  other.Append("two");
  other = std::move(moved);
  EXPECT_EQ(other.Bytes(), "one");
  other.Append(" more");
  EXPECT_EQ(other.Bytes(), "one more");
}

TEST(PDFText, TruncatesToAnEarlierSize) {
  PDFText text;
  text.Append("one two");
  text.Truncate(100);
  EXPECT_EQ(text.Bytes(), "one two");
  text.Truncate(3);
  EXPECT_EQ(text.Bytes(), "one");
  text.Append("!");
  EXPECT_EQ(text.Bytes(), "one!");
  text.Truncate(0);
  EXPECT_EQ(text.Size(), 0U);
}

TEST(PDFTextPiece, TakesBackWhatWasNotKept) {
  PDFText text;
  text.Append("start ");
  {
    const PDFTextPiece piece(text);
    text.Append("gone ");
    text.Append("gone too");
  }
  EXPECT_EQ(text.Bytes(), "start ");
  {
    PDFTextPiece piece(text);
    text.Append("kept");
    piece.Keep();
  }
  EXPECT_EQ(text.Bytes(), "start kept");
}

TEST(PDFTextPiece, TakesBackWhenAnErrorPasses) {
  PDFText text;
  text.Append("start ");
  EXPECT_EQ(ErrorNumberOf([&] {
              PDFTextPiece piece(text);
              text.Append("gone ");
              text.Append(Real{1e300});
              piece.Keep();
            }),
            Error::kOverflow);
  EXPECT_EQ(text.Bytes(), "start ");
}

}  // namespace
}  // namespace folivar::test
