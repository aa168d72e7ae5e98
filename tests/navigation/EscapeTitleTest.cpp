#include <gtest/gtest.h>

#include "folivar/base/Error.h"
#include "folivar/navigation/EscapeTitle.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

TEST(EscapeTitle, LeavesPlainTextAsItIs) {
  EXPECT_EQ(EscapeTitle(""), "");
  EXPECT_EQ(EscapeTitle("1.2 Plain, with a tab\tin it"), "1.2 Plain, with a tab\tin it");
  EXPECT_EQ(EscapeTitle(u8"Stra\u00DFe, \u00E9t\u00E9"), u8"Stra\u00DFe, \u00E9t\u00E9");
}

TEST(EscapeTitle, EscapesWhatAStringTakesForItsOwn) {
  EXPECT_EQ(EscapeTitle("a(b\\c)"), "a\\(b\\\\c\\)");
  EXPECT_EQ(EscapeTitle(":-("), ":-\\(");
  EXPECT_EQ(EscapeTitle("one\rtwo\nthree\r\n"), "one\\rtwo\\nthree\\r\\n");
}

TEST(EscapeTitle, SaysOtherwiseWhatTitlesHaveAtOtherBytes) {
  EXPECT_EQ(EscapeTitle(u"1\u20132 \u20AC"), "1\\2052 \\240");
  EXPECT_EQ(EscapeTitle(u"\u201Cquoted\u201D"), "\\215quoted\\216");
  EXPECT_EQ(EscapeTitle(u"\uFB01"), "\\223");
  EXPECT_EQ(EscapeTitle(u"12\u00A0kg"), "12 kg");
}

TEST(EscapeTitle, SaysInUtf16WhatOneByteCannotHold) {
  EXPECT_EQ(EscapeTitle(u"\u0416"), "\\376\\377\\004\\026");
  EXPECT_EQ(EscapeTitle(u"A\u20AC\u0416"), "\\376\\377\\000\\101\\040\\254\\004\\026");
  EXPECT_EQ(EscapeTitle(u"\U0001F600"), "\\376\\377\\330\\075\\336\\000");
  EXPECT_EQ(EscapeTitle(u"soft\u00AD").Utf8().substr(0, 8), "\\376\\377");
}

TEST(EscapeTitle, KeepsTextFromLookingLikeAByteOrderMark) {
  EXPECT_EQ(EscapeTitle(u"\u00FE\u00FF"), "\\376\\377\\000\\376\\000\\377");
  EXPECT_EQ(EscapeTitle(u"\u00EF\u00BB\u00BF"), "\\376\\377\\000\\357\\000\\273\\000\\277");
  EXPECT_EQ(EscapeTitle(u"a\u00FE\u00FF"), u"a\u00FE\u00FF");
}

TEST(EscapeTitle, TextThatIsNotUtf8Raises5) {
  EXPECT_EQ(ErrorNumberOf([] { EscapeTitle("\xFF"); }), Error::kInvalidArgument);
}

}  // namespace
}  // namespace folivar::test
