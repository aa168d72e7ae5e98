#include <gtest/gtest.h>

#include "folivar/base/Internal.h"
#include "folivar/file/XObject.h"
#include "folivar/folivar.h"

namespace folivar::test {
namespace {

TEST(XObject, IsNamedByItsKeyElseByItsResourceName) {
  const auto document = PDFDocument::Create();
  EXPECT_EQ(document->Templates()->Add("Logo \u00E9")->NameInErrors(Internal()), "'Logo \u00E9'");
  EXPECT_EQ(document->Templates()->Add()->NameInErrors(Internal()), "/T2");
}

}  // namespace
}  // namespace folivar::test
