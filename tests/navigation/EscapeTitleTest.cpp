#include <gtest/gtest.h>

#include "folivar/navigation/EscapeTitle.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

TEST(EscapeTitle, LeavesPlainTextAsItIs) {
  EXPECT_EQ(EscapeTitle(""), "");
  EXPECT_EQ(EscapeTitle("1.2 Plain, with a tab\tand\na line end"),
            "1.2 Plain, with a tab\tand\na line end");
  EXPECT_EQ(EscapeTitle(u8"Stra\u00DFe, \u00E9t\u00E9"), u8"Stra\u00DFe, \u00E9t\u00E9");
}

TEST(EscapeTitle, EscapesWhatAStringTakesForItsOwn) {
  EXPECT_EQ(EscapeTitle("a(b\\c)"), "a\\(b\\\\c\\)");
  EXPECT_EQ(EscapeTitle(":-("), ":-\\(");
  EXPECT_EQ(EscapeTitle("one\rtwo"), "one\\rtwo");
}

TEST(EscapeTitle, SaysOtherwiseWhatTitlesHaveAtOtherBytes) {
  EXPECT_EQ(EscapeTitle(u"1\u20132 \u20AC"), "1\\2052 \\240");
  EXPECT_EQ(EscapeTitle(u"\u201Cquoted\u201D"), "\\215quoted\\216");
  EXPECT_EQ(EscapeTitle(u"\uFB01"), "\\223");
  EXPECT_EQ(EscapeTitle(u"12\u00A0kg"), "12 kg");
}

TEST(EscapeTitle, LeavesWhatNothingCanHold) { EXPECT_EQ(EscapeTitle(u"\u0416"), u"\u0416"); }

TEST(EscapeTitle, TextThatIsNotUtf8Raises5) {
  EXPECT_EQ(ErrorNumberOf([] { EscapeTitle("\xFF"); }), 5);
}

}  // namespace
}  // namespace folivar::test
