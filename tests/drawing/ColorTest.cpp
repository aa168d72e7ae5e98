#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "folivar/base/Error.h"
#include "folivar/drawing/Color.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

static_assert(Rgb(0x1F, 0x4E, 0x5F) == 0x5F4E1F, "red is in the low byte");
static_assert(Rgb(0, 0, 0) == 0);
static_assert(Rgb(255, 255, 255) == 0xFFFFFF);

TEST(Color, AShareOutsideAByteRaises5) {
  EXPECT_EQ(ErrorNumberOf([] { Rgb(256, 0, 0); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorNumberOf([] { Rgb(0, -1, 0); }), Error::kInvalidArgument);
  EXPECT_EQ(ErrorTextOf([] { Rgb(0, 0, 300); }),
            "Rgb: a share of 300 in a colour is not from 0 to 255");
}

TEST(Color, GrayHasThreeEqualShares) {
  EXPECT_EQ(Gray(0), 0);
  EXPECT_EQ(Gray(1), 0xFFFFFF);
  EXPECT_EQ(Gray(0.2), 0x333333);
  EXPECT_EQ(Gray(0.5), 0x808080) << "127.5, to even";
}

TEST(Color, GrayIsWhatAGraphicsStateStores) {
  const auto state = PDFDocument::Create()->Pages()->Add()->GraphicsState();
  for (int level = 0; level <= 100; ++level) {
    const float gray = static_cast<float>(level) / 100;
    state->SetFillGrayColor(gray);
    EXPECT_EQ(Gray(level / 100.0), state->FillColor()) << level;
  }
}

TEST(Color, WhatIsNoGrayLevelRaises5) {
  for (const double level : {-0.01, 1.01, std::numeric_limits<double>::infinity(), std::nan("")}) {
    EXPECT_EQ(ErrorNumberOf([&] { Gray(level); }), Error::kInvalidArgument) << level;
  }
  EXPECT_EQ(ErrorTextOf([] { Gray(2); }), "Gray: a gray level of 2 is not from 0 to 1");
}

}  // namespace
}  // namespace folivar::test
