#include <gtest/gtest.h>

#include "folivar/base/Error.h"
#include "folivar/base/MemberKey.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

TEST(MemberKey, IsEmptyWithoutAKey) {
  EXPECT_EQ(MemberKey(TextView()).AsText(), "");
  EXPECT_EQ(MemberKey(u"").AsText(), "");
}

TEST(MemberKey, KeepsTheKeyAsItIs) {
  EXPECT_EQ(MemberKey("Seite \u00C4").AsText(), u"Seite \u00C4");
  EXPECT_EQ(MemberKey(u"1").AsText(), "1");
}

TEST(MemberKey, IsUtf8) {
  EXPECT_EQ(ErrorNumberOf([] { const MemberKey key("\xFF"); }), Error::kInvalidArgument);
}

TEST(MemberKey, TakesNoMoreThanAPointer) { EXPECT_EQ(sizeof(MemberKey), sizeof(void*)); }

}  // namespace
}  // namespace folivar::test
