#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/document/Global.h"
#include "folivar/file/PDFText.h"
#include "tests/support/Content.h"
#include "tests/support/ExactReal.h"
#include "tests/support/Random.h"
#include "tests/support/Reals.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

// FormatReal's answer, empty for error 6.
std::string RealOrNothing(double x) {
  std::string text;
  const int error = ErrorNumberOf([&] { text = FormatReal(x); });
  EXPECT_EQ(error, text.empty() ? 6 : 0) << x;
  return text;
}

TEST(FormatReal, WritesAtMostFourDecimalsAndOneBlank) {
  EXPECT_EQ(FormatReal(0), "0 ");
  EXPECT_EQ(FormatReal(612), "612 ");
  EXPECT_EQ(FormatReal(0.5), "0.5 ");
  EXPECT_EQ(FormatReal(0.05), "0.05 ");
  EXPECT_EQ(FormatReal(0.0001), "0.0001 ");
  EXPECT_EQ(FormatReal(1.23456), "1.2346 ");
  EXPECT_EQ(FormatReal(2.00001), "2 ");
  EXPECT_EQ(FormatReal(0.99996), "1 ");
  EXPECT_EQ(FormatReal(-3.25), "-3.25 ");
  EXPECT_EQ(FormatReal(-0.5), "-0.5 ");
  EXPECT_EQ(FormatReal(0.1 + 0.2), "0.3 ");
}

TEST(FormatReal, KeepsZerosInsideTheFractionAndDropsThoseAtItsEnd) {
  EXPECT_EQ(FormatReal(10.1), "10.1 ");
  EXPECT_EQ(FormatReal(10.01), "10.01 ");
  EXPECT_EQ(FormatReal(10.001), "10.001 ");
  EXPECT_EQ(FormatReal(10.0101), "10.0101 ");
  EXPECT_EQ(FormatReal(10.101), "10.101 ");
  EXPECT_EQ(FormatReal(10.12), "10.12 ");
}

TEST(FormatReal, KeepsZerosAtTheEndOfTheWholePart) {
  EXPECT_EQ(FormatReal(10), "10 ");
  EXPECT_EQ(FormatReal(1000000), "1000000 ");
  EXPECT_EQ(FormatReal(2000000000), "2000000000 ");
}

TEST(FormatReal, NeverWritesANegativeZero) {
  EXPECT_EQ(FormatReal(-0.0), "0 ");
  EXPECT_EQ(FormatReal(-0.00001), "0 ");
  EXPECT_EQ(FormatReal(-0.00004), "0 ");
  EXPECT_EQ(FormatReal(-0.00005), "-0.0001 ");  // the double lies beyond the half
  EXPECT_EQ(FormatReal(-std::numeric_limits<double>::denorm_min()), "0 ");
}

TEST(FormatReal, RoundsExactTiesToTheEvenDigit) {
  EXPECT_EQ(FormatReal(0.03125), "0.0312 ");
  EXPECT_EQ(FormatReal(0.09375), "0.0938 ");
  EXPECT_EQ(FormatReal(0.15625), "0.1562 ");
  EXPECT_EQ(FormatReal(0.21875), "0.2188 ");
  EXPECT_EQ(FormatReal(-0.03125), "-0.0312 ");
  EXPECT_EQ(FormatReal(-0.09375), "-0.0938 ");
  EXPECT_EQ(FormatReal(1.96875), "1.9688 ");
  EXPECT_EQ(FormatReal(2147483646.03125), "2147483646.0312 ");
}

TEST(FormatReal, RoundsTheDoublesBesideATieToTheirOwnSides) {
  EXPECT_EQ(FormatReal(std::nextafter(0.03125, 1)), "0.0313 ");
  EXPECT_EQ(FormatReal(std::nextafter(0.03125, 0)), "0.0312 ");
  EXPECT_EQ(FormatReal(std::nextafter(0.09375, 1)), "0.0938 ");
  EXPECT_EQ(FormatReal(std::nextafter(0.09375, 0)), "0.0937 ");
}

// What looks like a tie in decimals is none: the double lies beside it.
TEST(FormatReal, RoundsDecimalHalvesByTheirExactValue) {
  EXPECT_EQ(FormatReal(0.00005), "0.0001 ");  // 0.0000500000000000000023...
  EXPECT_EQ(FormatReal(0.00015), "0.0001 ");  // 0.0001499999999999999868...
  EXPECT_EQ(FormatReal(1.00005), "1.0001 ");  // 1.0000500000000001055...
  EXPECT_EQ(FormatReal(2.00005), "2 ");       // 2.0000499999999998834...
}

TEST(FormatReal, AFloatAndItsDoubleGiveTheSameText) {
  EXPECT_EQ(FormatReal(0.1F), "0.1 ");
  EXPECT_EQ(FormatReal(11.56F), "11.56 ");
  EXPECT_EQ(FormatReal(16777216.0F), "16777216 ");
}

TEST(FormatReal, Raises6From2To31On) {
  EXPECT_EQ(RealOrNothing(2147483647), "2147483647 ");
  EXPECT_EQ(RealOrNothing(-2147483647), "-2147483647 ");
  EXPECT_EQ(RealOrNothing(2147483647.9999), "2147483647.9999 ");
  EXPECT_EQ(RealOrNothing(-2147483647.9999), "-2147483647.9999 ");
  EXPECT_EQ(RealOrNothing(2147483647.99996), "") << "rounds to 2^31";
  EXPECT_EQ(RealOrNothing(-2147483647.99996), "");
  EXPECT_EQ(RealOrNothing(std::nextafter(2147483648.0, 0)), "");
  EXPECT_EQ(RealOrNothing(2147483648.0), "");
  EXPECT_EQ(RealOrNothing(-2147483648.0), "");
  EXPECT_EQ(RealOrNothing(2147483520.0F), "2147483520 ") << "the largest float below 2^31";
  EXPECT_EQ(RealOrNothing(4294967296.0), "");
  EXPECT_EQ(RealOrNothing(1e300), "");
  EXPECT_EQ(RealOrNothing(-1e300), "");
}

TEST(FormatReal, Raises6ForWhatIsNotFinite) {
  EXPECT_EQ(ErrorNumberOf([] { FormatReal(kNotANumber); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { FormatReal(-kNotANumber); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { FormatReal(kInfinity); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { FormatReal(-kInfinity); }), Error::kOverflow);
}

// A sample of what FormatRealExhaustiveTest does with millions of values.
TEST(FormatReal, AgreesWithAnExactModel) {
  Random random;
  SCOPED_TRACE(random.Trace());
  const auto expectExact = [](double x) {
    ASSERT_EQ(RealOrNothing(x), ExactReal(x)) << std::hexfloat << x;
    ASSERT_EQ(RealOrNothing(-x), ExactReal(-x)) << std::hexfloat << -x;
  };
  for (int i = 0; i < 20'000; ++i) {
    const double number = static_cast<double>(random.Below(20'000'000));
    ASSERT_NO_FATAL_FAILURE(expectExact(number / 10000));
    ASSERT_NO_FATAL_FAILURE(expectExact((number + 0.5) / 10000));
    ASSERT_NO_FATAL_FAILURE(expectExact(static_cast<float>((number + 0.5) / 10000)));
    ASSERT_NO_FATAL_FAILURE(expectExact(number / 32));
    ASSERT_NO_FATAL_FAILURE(expectExact(std::bit_cast<double>(random.Bits())));
    ASSERT_NO_FATAL_FAILURE(
        expectExact(std::bit_cast<float>(static_cast<std::uint32_t>(random.Bits()))));
    // Below 2^33, every magnitude as often as any other.
    ASSERT_NO_FATAL_FAILURE(expectExact(std::ldexp(static_cast<double>(random.Bits() >> 11),
                                                   -20 - static_cast<int>(random.Below(60)))));
  }
}

TEST(FormatReal, LongestRealFillsItsRoomExactly) {
  std::array<char, kLongestReal> out{};
  EXPECT_EQ(folivar::FormatReal(out.data(), -2147483647.9999), out.data() + out.size());
  EXPECT_EQ(std::string(out.data(), out.size()), "-2147483647.9999 ");
}

TEST(FormatReal, WritesNothingWhenItRaises) {
  std::array<char, kLongestReal> out;
  out.fill('x');
  for (const double x : {-2147483648.0, kNotANumber, kInfinity}) {
    EXPECT_EQ(ErrorNumberOf([&] { folivar::FormatReal(out.data(), x); }), Error::kOverflow);
  }
  EXPECT_EQ(std::string(out.data(), out.size()), std::string(kLongestReal, 'x'));
}

TEST(MaxOfMinOf, CompareNumbers) {
  EXPECT_EQ(MaxOf(1, 2), 2);
  EXPECT_EQ(MaxOf(2, 1), 2);
  EXPECT_EQ(MaxOf(-1.5F, -2.5F), -1.5F);
  EXPECT_EQ(MinOf(1, 2), 1);
  EXPECT_EQ(MinOf(2, 1), 1);
  EXPECT_EQ(MinOf(-1.5F, -2.5F), -2.5F);
}

TEST(MaxOfMinOf, ATieOfNumbersGivesTheFirst) {
  EXPECT_TRUE(std::signbit(MaxOf(-0.0, 0.0)));
  EXPECT_FALSE(std::signbit(MaxOf(0.0, -0.0)));
  EXPECT_TRUE(std::signbit(MinOf(-0.0, 0.0)));
  EXPECT_FALSE(std::signbit(MinOf(0.0, -0.0)));
}

TEST(MaxOfMinOf, CompareTextsWithoutRegardToCase) {
  const Text apple("apple");
  const Text bear("BEAR");
  const Text cat("cat");
  EXPECT_EQ(MaxOf(apple, bear), "BEAR");
  EXPECT_EQ(MaxOf(cat, bear), "cat");
  EXPECT_EQ(MinOf(bear, apple), "apple");
  EXPECT_EQ(MinOf(bear, cat), "BEAR");
}

TEST(MaxOfMinOf, ATieOfTextsGivesTheFirst) {
  const Text small("\u00E9t\u00E9");
  const Text large("\u00C9T\u00C9");
  EXPECT_EQ(&MaxOf(small, large), &small);
  EXPECT_EQ(&MaxOf(large, small), &large);
  EXPECT_EQ(&MinOf(small, large), &small);
  EXPECT_EQ(&MinOf(large, small), &large);
}

TEST(FindLastInRange, FindsTheLastOccurrence) {
  EXPECT_EQ(FindLastInRange("a.b.c", ".", 1, 0), 4);
  EXPECT_EQ(FindLastInRange("a.b.c", ".", 1, 3), 2);
  EXPECT_EQ(FindLastInRange("picture.old.JPG", ".jpg", 1, 0), 12);
  EXPECT_EQ(FindLastInRange("abcabc", "bc", 2, 0), 5);
  EXPECT_EQ(FindLastInRange("abcabc", "bc", 2, 5), 2) << "the later one reaches beyond the stop";
}

TEST(FindLastInRange, TakesAnyStopBeyondTheEndAsTheEndAndAnyStartBelow1As1) {
  EXPECT_EQ(FindLastInRange("a.b.c", ".", -5, 0), 4);
  EXPECT_EQ(FindLastInRange("a.b.c", ".", 0, 999), 4);
}

// Deliberate: one below the start stands for "not found".
TEST(FindLastInRange, DeliberateNotFoundIsOneBelowTheStart) {
  EXPECT_EQ(FindLastInRange("abc", ".", 1, 0), 0);
  EXPECT_EQ(FindLastInRange("abc", ".", 3, 0), 2);
  EXPECT_EQ(FindLastInRange("abc", ".", -3, 0), 0);
  EXPECT_EQ(FindLastInRange("", ".", 1, 0), 0);
  EXPECT_EQ(FindLastInRange("abc", "c", 9, 0), 8) << "a start beyond the end";
  EXPECT_EQ(FindLastInRange("abc", "a", 3, 1), 2) << "a stop before the start";
}

// Compares letter by letter.
std::int16_t NaiveFindLast(const std::string& s, const std::string& find, int start, int stop) {
  const int length = static_cast<int>(s.size());
  const int size = static_cast<int>(find.size());
  if (stop == 0 || stop > length) stop = length;
  if (start < 1) start = 1;
  for (int place = stop - size + 1; place >= start; --place) {
    bool isEqual = true;
    for (int i = 0; i < size; ++i) {
      const char a = s[static_cast<std::size_t>(place - 1 + i)];
      const char b = find[static_cast<std::size_t>(i)];
      isEqual = isEqual && (a | 0x20) == (b | 0x20);
    }
    if (isEqual) return static_cast<std::int16_t>(place);
  }
  return static_cast<std::int16_t>(start - 1);
}

TEST(FindLastInRange, AgreesWithANaiveSearch) {
  const std::array<std::string, 6> texts = {"", "a", "aB", "AbaB", "bbAAb", "aabAaBb"};
  const std::array<std::string, 5> wanted = {"a", "B", "ab", "AA", "bab"};
  for (const std::string& s : texts) {
    for (const std::string& find : wanted) {
      for (std::int16_t start = -2; start < 10; ++start) {
        for (std::int16_t stop = -2; stop < 10; ++stop) {
          EXPECT_EQ(FindLastInRange(s, find, start, stop), NaiveFindLast(s, find, start, stop))
              << "'" << s << "' '" << find << "' " << start << " " << stop;
        }
      }
    }
  }
}

TEST(FileExists, IsTrueForFilesAndFolders) {
  const auto path = OutputPath("na\u00EFve.txt");
  EXPECT_FALSE(FileExists(path.u8string()));
  WriteBytes(path, "");
  EXPECT_TRUE(FileExists(path.u8string()));
  EXPECT_TRUE(FileExists(path.parent_path().u8string()));
}

TEST(FileExists, IsFalseForWhatIsNoPath) {
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists("\xFF"));
  EXPECT_FALSE(FileExists(std::string(100'000, 'a')));
  EXPECT_FALSE(FileExists(OutputPath("no-such-folder/file").u8string()));
}

TEST(FileExists, TakesThePathAsItStands) {
  const auto folder = OutputPath("pattern");
  std::filesystem::create_directory(folder);
  WriteBytes(folder / "file.txt", "");
  EXPECT_FALSE(FileExists((folder / "*.txt").u8string()));
  EXPECT_FALSE(FileExists((folder / "file.???").u8string()));
}

TEST(CeilDiv, Raises6ForAQuotientThatDoesNotFit) {
  EXPECT_EQ(ErrorNumberOf([] { CeilDiv(std::numeric_limits<std::int64_t>::min(), -1); }),
            Error::kOverflow);
}

TEST(CeilDiv, IsTheQuotientRoundedUp) {
  EXPECT_EQ(CeilDiv(0, 8), 0);
  EXPECT_EQ(CeilDiv(1, 8), 1);
  EXPECT_EQ(CeilDiv(7, 8), 1);
  EXPECT_EQ(CeilDiv(8, 8), 1);
  EXPECT_EQ(CeilDiv(9, 8), 2);
  EXPECT_EQ(CeilDiv(std::numeric_limits<std::int64_t>::max(), 2), std::int64_t{1} << 62);
}

// The quotient is truncated toward zero before 1 is added.
TEST(CeilDiv, AddsOneForARemainderOfEitherSign) {
  EXPECT_EQ(CeilDiv(-8, 2), -4);
  EXPECT_EQ(CeilDiv(-7, 2), -2);
  EXPECT_EQ(CeilDiv(7, -2), -2);
  EXPECT_EQ(CeilDiv(-7, -2), 4);
  EXPECT_EQ(CeilDiv(-1, 8), 1);
}

TEST(CeilDiv, Raises11ForADivisorOf0) {
  EXPECT_EQ(ErrorNumberOf([] { CeilDiv(1, 0); }), Error::kDivisionByZero);
  EXPECT_EQ(ErrorNumberOf([] { CeilDiv(0, 0); }), Error::kDivisionByZero);
}

std::string Written(const ColorOp& set) {
  PDFText text;
  text.Append(set);
  return std::string(text.Bytes());
}

TEST(ColorOps, WriteSharesOfRedGreenAndBlue) {
  EXPECT_EQ(Written(StrokeColorOp(0)), "0 0 0 RG\n");
  EXPECT_EQ(Written(StrokeColorOp(0x0000FF)), "1 0 0 RG\n");
  EXPECT_EQ(Written(StrokeColorOp(0x00FF00)), "0 1 0 RG\n");
  EXPECT_EQ(Written(StrokeColorOp(0xFF0000)), "0 0 1 RG\n");
  EXPECT_EQ(Written(FillColorOp(0x0000FF)), "1 0 0 rg\n");
  EXPECT_EQ(Written(FillColorOp(0x808080)), "0.502 0.502 0.502 rg\n");
  EXPECT_EQ(Written(FillColorOp(0x030201)), "0.0039 0.0078 0.0118 rg\n");
}

TEST(ColorOps, IgnoreTheTopByte) {
  EXPECT_EQ(Written(StrokeColorOp(0x7F0000FF)), "1 0 0 RG\n");
  EXPECT_EQ(Written(StrokeColorOp(-1)), "1 1 1 RG\n");
  EXPECT_EQ(Written(FillColorOp(std::numeric_limits<std::int32_t>::min())), "0 0 0 rg\n");
}

TEST(ColorOps, DivideEveryByteBy255) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string share = ExactReal(byte / 255.0);
    EXPECT_EQ(Written(StrokeColorOp(byte)), share + "0 0 RG\n");
    EXPECT_EQ(Written(FillColorOp(byte << 8)), "0 " + share + "0 rg\n");
    EXPECT_EQ(Written(FillColorOp(byte << 16)), "0 0 " + share + "rg\n");
  }
}

TEST(PdfBool, HasNoBlank) {
  EXPECT_EQ(PdfBool(true), "true");
  EXPECT_EQ(PdfBool(false), "false");
}

std::vector<Text> TextsOf(const std::vector<std::string>& strings) {
  return {strings.begin(), strings.end()};
}

std::vector<std::string> StringsOf(const std::vector<Text>& texts) {
  std::vector<std::string> strings;
  for (const Text& text : texts) strings.push_back(text.Utf8());
  return strings;
}

std::vector<std::string> Sorted(const std::vector<std::string>& strings, std::int32_t lo = -1,
                                std::int32_t hi = 0) {
  std::vector<Text> texts = TextsOf(strings);
  SortStrings(texts, lo, hi);
  return StringsOf(texts);
}

std::string Lower(std::string text) {
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + 32);
  }
  return text;
}

// The sort as it is described, step by step.
void NaiveSort(std::vector<std::string>& strings, int lo, int hi) {
  if (hi <= 0) return;
  const auto at = [&](int index) -> std::string& {
    return strings.at(static_cast<std::size_t>(index));
  };
  const int sum = lo + hi;
  int middle = sum / 2;
  if (sum % 2 == 1 && middle % 2 == 1) ++middle;  // halves to even
  const std::string pivot = Lower(at(middle));
  int i = lo;
  int j = hi;
  while (i <= j) {
    while (Lower(at(i)) < pivot && i < hi) ++i;
    while (Lower(at(j)) > pivot && j > lo) --j;
    if (i <= j) {
      std::swap(at(i), at(j));
      ++i;
      --j;
    }
  }
  if (lo < j) NaiveSort(strings, lo, j);
  if (i < hi) NaiveSort(strings, i, hi);
}

TEST(SortStrings, SortsWithoutRegardToCase) {
  EXPECT_EQ(Sorted({"pear", "Apple", "fig", "BANANA", "apricot"}),
            (std::vector<std::string>{"Apple", "apricot", "BANANA", "fig", "pear"}));
  EXPECT_EQ(Sorted({"\u00C9b", "\u00E9a", "z"}),
            (std::vector<std::string>{"z", "\u00E9a", "\u00C9b"}));
}

TEST(SortStrings, SortsTheGivenRangeOnly) {
  EXPECT_EQ(Sorted({"e", "d", "c", "b", "a"}, 1, 3),
            (std::vector<std::string>{"e", "b", "c", "d", "a"}));
  EXPECT_EQ(Sorted({"e", "d", "c"}, 0, 1), (std::vector<std::string>{"d", "e", "c"}));
  EXPECT_EQ(Sorted({"e", "d", "c"}, 2, 2), (std::vector<std::string>{"e", "d", "c"}));
}

TEST(SortStrings, DoesNothingForAHighEndOf0OrBelow) {
  EXPECT_EQ(Sorted({"b", "a"}, 0, 0), (std::vector<std::string>{"b", "a"}));
  EXPECT_EQ(Sorted({"b", "a"}, 1, -1), (std::vector<std::string>{"b", "a"}));
  EXPECT_EQ(Sorted({"b", "a"}, 99, -5), (std::vector<std::string>{"b", "a"}));
}

TEST(SortStrings, ALowEndOfMinus1IsTheWholeVectorWhateverTheHighEnd) {
  EXPECT_EQ(Sorted({"c", "b", "a"}, -1, 1), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(Sorted({}, -1, 0), std::vector<std::string>{});
  EXPECT_EQ(Sorted({"a"}, -1, 0), std::vector<std::string>{"a"});
}

TEST(SortStrings, Raises9ForAPlaceOutsideTheVectorAndSortsNothing) {
  std::vector<Text> texts = TextsOf({"c", "b", "a"});
  EXPECT_EQ(ErrorNumberOf([&] { SortStrings(texts, 0, 3); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { SortStrings(texts, 3, 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { SortStrings(texts, -2, 2); }), Error::kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { SortStrings(texts, 0, 2'000'000'000); }),
            Error::kSubscriptOutOfRange);
  EXPECT_EQ(StringsOf(texts), (std::vector<std::string>{"c", "b", "a"}));
}

// Equal strings show which pivot was taken and what was swapped.
TEST(SortStrings, ArrangesAsTheDescribedQuicksortAndAsStdSort) {
  Random random;
  SCOPED_TRACE(random.Trace());
  for (int round = 0; round < 500; ++round) {
    std::vector<std::string> strings(1 + random.Below(60));
    for (std::string& string : strings) {
      for (std::size_t size = random.Below(3); size > 0; --size) string += "abAB"[random.Below(4)];
    }
    const auto lo = static_cast<std::int32_t>(random.Below(strings.size()));
    const auto hi = static_cast<std::int32_t>(random.Below(strings.size()));
    if (lo <= hi) {
      std::vector<std::string> expected = strings;
      NaiveSort(expected, lo, hi);
      EXPECT_EQ(Sorted(strings, lo, hi), expected);
    }
    std::vector<std::string> all = strings;
    NaiveSort(all, 0, static_cast<int>(all.size()) - 1);
    const std::vector<std::string> sorted = Sorted(strings);
    EXPECT_EQ(sorted, all);

    const auto isBefore = [](const std::string& a, const std::string& b) {
      return Lower(a) < Lower(b);
    };
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end(), isBefore));
    EXPECT_TRUE(std::is_permutation(sorted.begin(), sorted.end(), strings.begin(), strings.end()));
  }
}

TEST(SortStrings, SortsManyEqualAndManySortedStrings) {
  std::vector<std::string> equal(50'000, "same");
  EXPECT_EQ(Sorted(equal), equal);
  std::vector<std::string> rising;
  for (int i = 100'000; i < 150'000; ++i) rising.push_back(std::to_string(i));
  EXPECT_EQ(Sorted(rising), rising);
  std::vector<std::string> falling(rising.rbegin(), rising.rend());
  EXPECT_EQ(Sorted(falling), rising);
}

}  // namespace
}  // namespace folivar::test
