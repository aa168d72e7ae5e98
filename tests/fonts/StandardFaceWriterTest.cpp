#include <gtest/gtest.h>

#include "folivar/file/ObjectNumbers.h"
#include "folivar/fonts/StandardFaceWriter.h"
#include "folivar/fonts/StandardFaces.h"
#include "folivar/fonts/StandardMetrics.h"
#include "tests/support/WrittenObjects.h"

namespace folivar::test {
namespace {

TEST(StandardFaceWriter, WritesOneObject) {
  const auto face = LoadStandardMetrics(FindStandardFace("Times-BoldItalic").value());
  face->m_PDFName = "/F3";
  StandardFaceWriter writer(face);
  EXPECT_EQ(WrittenObjects(writer),
            "1 0 obj\n<< /Type /Font\n/Subtype /Type1\n/Name /F3\n"
            "/BaseFont /Times-BoldItalic\n>>\nendobj\n");
}

TEST(StandardFaceWriter, NumbersTheRecordInEverySave) {
  const auto face = LoadStandardMetrics(FindStandardFace("Courier").value());
  StandardFaceWriter writer(face);
  ObjectNumbers numbers;
  for (const int expected : {1, 2}) {
    writer.NumberObjects(numbers);
    EXPECT_EQ(face->ObjectNumber().Number(), expected);
  }
  EXPECT_EQ(numbers.NextObjectNumber(), 3);
}

}  // namespace
}  // namespace folivar::test
