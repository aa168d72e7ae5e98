#include <gtest/gtest.h>

#include "folivar/file/XObject.h"
#include "folivar/folivar.h"

namespace folivar::test {
namespace {

TEST(XObject, IsNamedByItsKeyElseByItsResourceName) {
  const auto document = PDFDocument::Create();
  EXPECT_EQ(NameOf(*document->Templates()->Add("Logo \u00E9")), "'Logo \u00E9'");
  EXPECT_EQ(NameOf(*document->Templates()->Add()), "/T2");
}

}  // namespace
}  // namespace folivar::test
