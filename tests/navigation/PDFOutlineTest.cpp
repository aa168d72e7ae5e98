#include <gtest/gtest.h>

#include "folivar/folivar.h"
#include "folivar/navigation/PDFOutline.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

TEST(PDFOutline, IsWrittenWithNothingBelowIt) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add();
  const SavedDocument saved = Save(*document, "outline.pdf");
  EXPECT_EQ(saved.pdf.Object(2), "<< /Type /Outlines\n>>\n");
}

}  // namespace
}  // namespace folivar::test
