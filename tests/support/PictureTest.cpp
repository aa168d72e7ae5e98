#include <gtest/gtest.h>

#include <string>

#include "folivar/folivar.h"
#include "tests/support/Picture.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

TEST(Picture, IsTheFirstPageInColour) {
  const auto document = PDFDocument::Create();
  const auto page = document->Pages()->Add();
  page->SetPageExtents(8, 4);
  page->GraphicsState()->SetFillColor(0x0000FF);
  page->DrawRect(-1, -1, 9, 9, Paint::kFill);
  document->Pages()->Add();
  const auto path = OutputPath("red.pdf");
  document->SavePDFFile(path.u8string());
  Pixels red{4, 2};
  for (int dot = 0; dot < 4 * 2; ++dot) red.rgb += {'\xFF', '\0', '\0'};
  std::string programs;
  for (const Picture& picture : PicturesOf(path, 36)) {
    programs += picture.program + " ";
    EXPECT_EQ(picture.pixels, red) << picture.program;
  }
  EXPECT_EQ(programs, "mutool pdftoppm gs ");
}

}  // namespace
}  // namespace folivar::test
