#include <gtest/gtest.h>

#include "folivar/base/KeyedName.h"

namespace folivar::test {
namespace {

TEST(KeyedName, AMemberIsCalledByItsClassAndItsKey) {
  EXPECT_EQ(KeyedName("PDFPage", Text("cover")), "PDFPage 'cover'");
  EXPECT_EQ(KeyedName("PDFBookmark", Text(u"Kapitel \u00C4")), "PDFBookmark 'Kapitel \u00C4'");
}

TEST(KeyedName, AMemberWithoutAKeyIsCalledSo) {
  EXPECT_EQ(KeyedName("PDFPage", Text()), "PDFPage without a key");
}

}  // namespace
}  // namespace folivar::test
