#include <gtest/gtest.h>

#include <array>
#include <ios>
#include <sstream>
#include <string>
#include <utility>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Error.h"
#include "tests/support/Content.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

TEST(CaseFold, FoldsLettersBeyondAscii) {
  const std::array<std::pair<const char*, const char*>, 10> pairs = {{
      {"ABC xyz 123", "abc XYZ 123"},
      {"\u00C9t\u00C9", "\u00E9T\u00E9"},              // French
      {"\u00C4\u00D6\u00DC", "\u00E4\u00F6\u00FC"},    // German
      {"\u0141\u00F3d\u017A", "\u0142\u00D3D\u0179"},  // Polish
      {"\u0178", "\u00FF"},                            // y with diaeresis
      {"\u0391\u0392\u03A9", "\u03B1\u03B2\u03C9"},    // Greek
      {"\u03A3\u03C3", "\u03C2\u03C2"},                // all three sigmas
      {"\u041C\u043E\u0441\u043A\u0412\u0410", "\u043C\u041E\u0421\u041A\u0432\u0430"},  // Cyrillic
      {"\u0401\u0419", "\u0451\u0439"},  // Cyrillic with marks
      {"\uFF21", "\uFF41"},              // fullwidth
  }};
  for (const auto& [a, b] : pairs) {
    EXPECT_EQ(FoldCase(a), FoldCase(b)) << a << " " << b;
  }
}

TEST(CaseFold, TellsDifferentLettersApart) {
  EXPECT_NE(FoldCase("e"), FoldCase("\u00E9"));
  EXPECT_NE(FoldCase("@"), FoldCase("`"));
  EXPECT_NE(FoldCase("["), FoldCase("{"));
  EXPECT_NE(FoldCase("\u00D7"), FoldCase("\u00F7"));  // multiplication and division sign
  EXPECT_NE(FoldCase("ss"), FoldCase("\u00DF"));
  EXPECT_NE(FoldCase("a"), FoldCase("ab"));
}

// Perl's own folding (Unicode's full one) is the judge. Where it gives several characters, the
// one-to-one folding is the lower case letter, if that is one character.
constexpr const char* kFoldingByPerl = R"(
  use feature qw(fc unicode_strings);
  no warnings;
  for my $unit (0 .. 0xD7FF, 0xE000 .. 0xFFFF) {
    my $character = chr $unit;
    my ($folded) = grep { length == 1 } fc $character, lc $character, $character;
    printf "%x %x\n", $unit, ord $folded;
  })";

TEST(CaseFold, FoldsTheWholeBasicPlaneAsPerlDoes) {
  const ToolResult perl = test::Run({"perl", "-e", kFoldingByPerl});
  ASSERT_EQ(perl.status, 0) << perl.err;
  std::istringstream rows(perl.out);
  int count = 0;
  int changed = 0;
  for (unsigned unit = 0, folded = 0; rows >> std::hex >> unit >> folded; ++count) {
    EXPECT_EQ(static_cast<unsigned>(FoldCase(static_cast<char16_t>(unit))), folded)
        << std::hex << unit;
    if (unit != folded) ++changed;
  }
  EXPECT_EQ(count, 0xD800 + 0x2000);
  EXPECT_GT(changed, 1000);
}

TEST(CaseFold, LeavesSurrogates) {
  for (unsigned unit = 0xD800; unit <= 0xDFFF; ++unit) {
    EXPECT_EQ(FoldCase(static_cast<char16_t>(unit)), unit);
  }
}

TEST(CaseFold, TakesUtf8AndUtf16Alike) {
  EXPECT_EQ(FoldCase("\u00C9\u20AC"), u"\u00E9\u20AC");
  EXPECT_EQ(FoldCase(u"\u00C9\u20AC"), u"\u00E9\u20AC");
  EXPECT_EQ(FoldCase(""), u"");
}

TEST(CaseFold, FindsAStartWithoutRegardToCase) {
  EXPECT_TRUE(StartsWithIgnoringCase("HELVETICA-Bold", "helvetica"));
  EXPECT_TRUE(StartsWithIgnoringCase("\u00C9t\u00E9", "\u00E9T"));
  EXPECT_TRUE(StartsWithIgnoringCase("abc", ""));
  EXPECT_FALSE(StartsWithIgnoringCase("abc", "abcd"));
  EXPECT_FALSE(StartsWithIgnoringCase("xabc", "abc"));
}

TEST(CaseFold, ComparesWithoutRegardToCase) {
  EXPECT_EQ(CompareIgnoringCase("aBc", "AbC"), 0);
  EXPECT_LT(CompareIgnoringCase("a", "B"), 0);
  EXPECT_LT(CompareIgnoringCase("A", "b"), 0);
  EXPECT_GT(CompareIgnoringCase("b", "A"), 0);
  EXPECT_LT(CompareIgnoringCase("ab", "ABC"), 0);
  EXPECT_LT(CompareIgnoringCase("_", "a"), 0) << "letters are compared as small ones";
  EXPECT_LT(CompareIgnoringCase("_", "A"), 0);
}

TEST(CaseFold, Raises5ForWhatIsNotUtf8) {
  EXPECT_EQ(ErrorNumberOf([] { FoldCase("a\xFF"); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([] { CompareIgnoringCase("a", "\xFF"); }), Error::kInvalidArgument);
}

}  // namespace
}  // namespace folivar::test
