#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "folivar/folivar.h"
#include "tests/support/Pixels.h"
#include "tests/support/SavedDocument.h"
#include "tests/support/TestFiles.h"
#include "tests/support/Tools.h"

namespace folivar::test {
namespace {

TEST(Pixels, ReadColourGreyAndBlackAndWhite) {
  const Pixels colours{2, 1, "rgbRGB"};
  EXPECT_EQ(ReadPnm("P6\n2 1\n255\nrgbRGB"), colours);
  EXPECT_EQ(ReadPnm("P6 # made by hand\n# 9 9\n2\t1 255 rgbRGB"), colours);
  EXPECT_EQ(ReadPnm(PpmOf(colours)), colours);
  EXPECT_EQ(ReadPnm("P5\n2 1\n255\naz"), (Pixels{2, 1, "aaazzz"}));
  // A bit that is set is black; a row fills whole bytes.
  const std::string black(3, '\0');
  const std::string white(3, '\xFF');
  EXPECT_EQ(ReadPnm("P4\n2 2\n\x7F\x80"), (Pixels{2, 2, white + black + black + white}));
  EXPECT_EQ(ReadPnm("P4\n9 1\n\x80\x80").At(8, 0), black);
  EXPECT_EQ(colours.At(1, 0), "RGB");
}

TEST(Pixels, RefuseWhatIsNoPicture) {
  for (const char* bytes :
       {"", "P6", "P3\n1 1\n255\n1 2 3", "P6\n2 1\n255\nrgb", "BM", "P6\n1 1\n"}) {
    EXPECT_THROW(ReadPnm(bytes), std::exception) << bytes;
  }
}

TEST(Pixels, AreReducedToTheMeansOfSquares) {
  const Pixels pixels{5, 3, "abccdeabcabcxyzabccdeabcabdxyzxyzxyzxyzxyzxyz"};
  EXPECT_EQ(Reduced(pixels, 2), (Pixels{2, 1, "bcdabc"}));
  EXPECT_EQ(Reduced(pixels, 1), pixels);
}

TEST(Pixels, DifferByTheirFarthestByte) {
  EXPECT_EQ(LargestDifference({1, 1, "abc"}, {1, 1, "abc"}), 0);
  EXPECT_EQ(LargestDifference({1, 1, "abc"}, {1, 1, "bbz"}), 'z' - 'c');
  EXPECT_EQ(LargestDifference({1, 1, std::string(3, '\xFF')}, {1, 1, std::string(3, '\0')}), 255);
  EXPECT_EQ(LargestDifference({1, 1, "abc"}, {2, 1, "abcabc"}), 256);
}

// By a file that netpbm and poppler know better than we do.
TEST(Pixels, AreTakenOutOfAPdfFile) {
  const auto document = PDFDocument::Create();
  const auto image = document->Images()->Add();
  const auto jpeg = DataPath("images/gradient.jpg");
  image->SetFileName(jpeg.u8string());
  document->Pages()->Add()->DrawImage(image, 0, 0);
  const SavedDocument saved = Save(*document, "picture.pdf", Check::kForm);
  const Pixels decoded = ReadPnm(test::Run({"djpeg", "-pnm", jpeg}).out);
  ASSERT_EQ(EmbeddedPixels(saved.path).size(), 1U);
  EXPECT_LE(LargestDifference(EmbeddedPixels(saved.path)[0], decoded), 2);
  ASSERT_EQ(EmbeddedFiles(saved.path).size(), 1U);
  EXPECT_EQ(EmbeddedFiles(saved.path)[0], ReadBytes(jpeg));
}

}  // namespace
}  // namespace folivar::test
