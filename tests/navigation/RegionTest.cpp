#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "folivar/base/Error.h"
#include "folivar/base/Internal.h"
#include "folivar/navigation/PDFHyperLink.h"
#include "folivar/navigation/PDFLinkDestination.h"
#include "folivar/navigation/Region.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

PDFHyperLink AnyRegion() { return {Internal(), TextView()}; }

// Left, bottom, right, top.
std::array<float, 4> EdgesOf(const Region<PDFHyperLink>& region) {
  return {region.Left(), region.Bottom(), region.Right(), region.Top()};
}
using Edges = std::array<float, 4>;

TEST(Region, IsEmptyAtTheOriginAtFirst) { EXPECT_EQ(EdgesOf(AnyRegion()), (Edges{0, 0, 0, 0})); }

TEST(Region, EdgesAreKeptAsTheyAre) {
  PDFHyperLink region = AnyRegion();
  region.SetLeft(40);
  region.SetBottom(30);
  region.SetRight(20);
  region.SetTop(-10);
  EXPECT_EQ(EdgesOf(region), (Edges{40, 30, 20, -10}));
  EXPECT_EQ(region.Width(), -20);
  EXPECT_EQ(region.Height(), -40);
}

TEST(Region, SetRegionMeasuresFromLeftAndBottom) {
  PDFHyperLink region = AnyRegion();
  region.SetRegion(10, 20, 100, 50);
  EXPECT_EQ(EdgesOf(region), (Edges{10, 20, 110, 70}));
  EXPECT_EQ(region.Width(), 100);
  EXPECT_EQ(region.Height(), 50);
}

TEST(Region, NegativeMeasuresSwapTheEdges) {
  PDFHyperLink region = AnyRegion();
  region.SetRegion(100, 200, -50, -20);
  EXPECT_EQ(EdgesOf(region), (Edges{50, 180, 100, 200}));
  region.SetRegion(100, 200, 0, -20);
  EXPECT_EQ(EdgesOf(region), (Edges{100, 180, 100, 200}));
}

TEST(Region, WidthKeepsTheLeftEdge) {
  PDFHyperLink region = AnyRegion();
  region.SetLeft(100);
  region.SetRight(300);
  region.SetWidth(30);
  EXPECT_EQ(EdgesOf(region), (Edges{100, 0, 130, 0}));
  region.SetWidth(-30);
  EXPECT_EQ(EdgesOf(region), (Edges{70, 0, 100, 0}));
  region.SetWidth(0);
  EXPECT_EQ(EdgesOf(region), (Edges{70, 0, 70, 0}));
}

// Deliberate: downwards from the top, unlike SetRegion.
TEST(Region, DeliberateHeightIsMeasuredDownwardsFromTheTop) {
  PDFHyperLink region = AnyRegion();
  region.SetTop(700);
  region.SetHeight(100);
  EXPECT_EQ(EdgesOf(region), (Edges{0, 600, 0, 700}));
  EXPECT_EQ(region.Height(), 100);
  region.SetHeight(-50);
  EXPECT_EQ(EdgesOf(region), (Edges{0, 700, 0, 750}));
  region.SetHeight(0);
  EXPECT_EQ(EdgesOf(region), (Edges{0, 750, 0, 750}));
}

TEST(Region, SumsAreRoundedToSingles) {
  PDFHyperLink region = AnyRegion();
  region.SetRegion(16777216, 0.1F, 1, 0.2F);
  EXPECT_EQ(region.Right(), 16777216) << "2^24 and 1 is half way, and goes to the even one";
  EXPECT_EQ(region.Top(), 0.1F + 0.2F);
}

TEST(Region, SumsBeyondASingleRaise6AndChangeNothing) {
  PDFHyperLink region = AnyRegion();
  region.SetRegion(kLargest, -kLargest, 0, 0);
  const Edges before = EdgesOf(region);
  EXPECT_EQ(
      ErrorTextOf([&] { region.SetWidth(kLargest); }),
      "PDFHyperLink.Width: PDFHyperLink without a key: a sum of coordinates is beyond a single");
  EXPECT_EQ(ErrorNumberOf([&] { region.SetRegion(0, kLargest, 1, kLargest); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { region.SetHeight(kLargest); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { region.SetWidth(std::numeric_limits<float>::quiet_NaN()); }),
            Error::kOverflow);
  EXPECT_EQ(EdgesOf(region), before);
  region.SetLeft(-kLargest);
  region.SetTop(kLargest);
  EXPECT_EQ(ErrorNumberOf([&] { region.Width(); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { region.Height(); }), Error::kOverflow);
}

TEST(Region, ErrorsNameTheObjectThatItIsAPartOf) {
  PDFLinkDestination destination{Internal()};
  EXPECT_EQ(ErrorTextOf([&] { destination.SetRegion(kLargest, 0, kLargest); }),
            "PDFLinkDestination.SetRegion: a sum of coordinates is beyond a single");
  PDFHyperLink keyed(Internal(), "next");
  keyed.SetLeft(-kLargest);
  keyed.SetRight(kLargest);
  EXPECT_EQ(ErrorTextOf([&] { keyed.Width(); }),
            "PDFHyperLink.Width: PDFHyperLink 'next': a sum of coordinates is beyond a single");
  PDFHyperLink link = AnyRegion();
  EXPECT_EQ(ErrorTextOf([&] { link.SetRegion(kLargest, 0, kLargest, 0); }),
            "PDFHyperLink.SetRegion: PDFHyperLink without a key: a sum of coordinates is beyond a "
            "single");
}

}  // namespace
}  // namespace folivar::test
