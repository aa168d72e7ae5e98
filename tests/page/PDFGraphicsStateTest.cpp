#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/page/PDFGraphicsState.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

std::string After(const std::function<void(PDFGraphicsState&)>& change) {
  return ContentAfter([&](PDFPage& page) { change(*page.GraphicsState()); });
}

TEST(PDFGraphicsState, StartsBlackAndSolidAndWritesNothing) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              EXPECT_EQ(state.StrokeColor(), 0);
              EXPECT_EQ(state.FillColor(), 0);
              EXPECT_EQ(state.LineWidth(), 1);
              EXPECT_EQ(state.LineDashOn(), 1);
              EXPECT_EQ(state.LineDashOff(), 0);
            }),
            "");
}

TEST(PDFGraphicsState, ColoursHaveRedInTheLowByte) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetFillColor(0x0000FF);
              state.SetStrokeColor(0xFF8000);
              state.SetFillColor(0x808080);
            }),
            "1 0 0 rg\n0 0.502 1 RG\n0.502 0.502 0.502 rg\n");
}

TEST(PDFGraphicsState, TopByteOfAColourIsKeptButNotWritten) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetFillColor(-1);
              EXPECT_EQ(state.FillColor(), -1);
              state.SetStrokeColor(0x7F0000FF);
              EXPECT_EQ(state.StrokeColor(), 0x7F0000FF);
            }),
            "1 1 1 rg\n1 0 0 RG\n");
}

// Every component against the quotient rounded by hand: n / 255 has no ties at four decimals.
TEST(PDFGraphicsState, EveryComponentIsItsShareOf255) {
  for (int n = 0; n <= 255; ++n) {
    const int tenThousandths = (n * 20000 + 255) / 510;
    std::string expected = std::to_string(tenThousandths / 10000);
    if (tenThousandths % 10000 != 0) {
      std::string decimals = std::to_string(10000 + tenThousandths % 10000).substr(1);
      decimals.erase(decimals.find_last_not_of('0') + 1);
      expected += "." + decimals;
    }
    EXPECT_EQ(After([&](PDFGraphicsState& state) { state.SetFillColor(n << 8); }),
              "0 " + expected + " 0 rg\n");
  }
}

TEST(PDFGraphicsState, SameColourTwiceIsWrittenTwice) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetFillColor(0);
              state.SetFillColor(0);
            }),
            "0 0 0 rg\n0 0 0 rg\n");
}

TEST(PDFGraphicsState, GrayLevelIsStoredAsAColour) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetFillGrayColor(0.25F);  // 63.75 is stored as 64
              EXPECT_EQ(state.FillColor(), 0x404040);
              state.SetFillGrayColor(1);
              EXPECT_EQ(state.FillColor(), 0xFFFFFF);
            }),
            "0.25 g\n1 g\n");
}

// The singles nearest to 0.3 and 0.9 are a little above 0.3 and below 0.9: times 255 they are
// 76.500003 and 229.499994. Rounded to singles, the products would be 76.5 and 229.5, and the
// levels 76 and 230.
TEST(PDFGraphicsState, GrayLevelsAreMultipliedInDoublePrecision) {
  After([](PDFGraphicsState& state) {
    state.SetFillGrayColor(0.3F);
    EXPECT_EQ(state.FillColor(), 0x4D4D4D);  // 77
    state.SetFillGrayColor(0.9F);
    EXPECT_EQ(state.FillColor(), 0xE5E5E5);  // 229
  });
}

// 127.5 is rounded to the even 128.
TEST(PDFGraphicsState, DeliberateStrokeGrayIsStoredAsTheFillColour) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetStrokeColor(0x123456);
              state.SetStrokeGrayColor(0.5F);
              EXPECT_EQ(state.FillColor(), 128 + 128 * 256 + 128 * 65536);
              EXPECT_EQ(state.StrokeColor(), 0x123456);
            }),
            "0.3373 0.2039 0.0706 RG\n0.5 G\n");
}

TEST(PDFGraphicsState, GrayLevelOutsideZeroToOneIsIgnored) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              for (const float gray : {1.5F, -0.1F, kInfinity, kNotANumber}) {
                state.SetFillGrayColor(gray);
                state.SetStrokeGrayColor(gray);
              }
              EXPECT_EQ(state.FillColor(), 0);
            }),
            "");
}

TEST(PDFGraphicsState, LineWidthAndDashAreWrittenAndRead) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetLineWidth(2);
              state.SetLineDashPattern(3, 2);
              EXPECT_EQ(state.LineWidth(), 2);
              EXPECT_EQ(state.LineDashOn(), 3);
              EXPECT_EQ(state.LineDashOff(), 2);
            }),
            "2  w\n[3 2 ] 0 d\n");
}

TEST(PDFGraphicsState, WhatCannotBeWrittenIsNotStored) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              EXPECT_EQ(ErrorNumberOf([&] { state.SetLineWidth(kInfinity); }), Error::kOverflow);
              EXPECT_EQ(state.LineWidth(), 1);
              EXPECT_EQ(ErrorNumberOf([&] { state.SetLineDashPattern(5, kNotANumber); }),
                        Error::kOverflow);
              EXPECT_EQ(state.LineDashOn(), 1);
              EXPECT_EQ(ErrorNumberOf([&] { state.Translate(0, 2147483648.0F); }),
                        Error::kOverflow);
              EXPECT_EQ(ErrorNumberOf([&] { state.Rotate(kInfinity); }), Error::kOverflow);
              EXPECT_EQ(ErrorNumberOf([&] { state.Skew(0, kNotANumber); }), Error::kOverflow);
              EXPECT_EQ(ErrorTextOf([&] { state.SetLineWidth(kInfinity); }),
                        "PDFGraphicsState.LineWidth: a value of inf cannot be written: PDF numbers "
                        "are below 2^31");
            }),
            "");
}

TEST(PDFGraphicsState, DeliberatePushEmptiesWhatTheGettersReport) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.SetLineWidth(4);
              state.SetFillColor(7);
              state.Push();
              EXPECT_EQ(state.LineWidth(), 0);
              EXPECT_EQ(state.LineDashOn(), 0);
              EXPECT_EQ(state.FillColor(), 0);
              state.SetLineWidth(9);
              EXPECT_FALSE(state.Pop());
              EXPECT_EQ(state.LineWidth(), 4);
              EXPECT_EQ(state.FillColor(), 7);
              EXPECT_EQ(state.LineDashOn(), 1);
            }),
            "4  w\n0.0275 0 0 rg\nq\n9  w\nQ\n");
}

TEST(PDFGraphicsState, DeliberatePopAnswersFalse) {
  After([](PDFGraphicsState& state) {
    state.Push();
    state.Push();
    EXPECT_FALSE(state.Pop());
    EXPECT_FALSE(state.Pop());
  });
}

TEST(PDFGraphicsState, PopWithoutPushRaisesAndAppendsNothing) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              EXPECT_EQ(ErrorTextOf([&] { state.Pop(); }),
                        "PDFGraphicsState.Pop: the stack is empty");
              EXPECT_EQ(ErrorNumberOf([&] { state.Pop(); }), Error::kSubscriptOutOfRange);
              state.Push();
              state.Pop();
              EXPECT_EQ(ErrorNumberOf([&] { state.Pop(); }), Error::kSubscriptOutOfRange);
            }),
            "q\nQ\n");
}

TEST(PDFGraphicsState, PushWithoutPopIsNotCorrected) {
  EXPECT_EQ(After([](PDFGraphicsState& state) { state.Push(); }), "q\n");
}

TEST(PDFGraphicsState, TransformationsAreWritten) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.Translate(10, 20);
              state.ScaleXY(2, 3);
              state.SetTransformationMatrix(1, 0.5F, -0.25F, 1, 100, 0);
            }),
            "1 0 0 1 10 20  cm\n2 0 0 3  0 0 cm\n1 0.5 -0.25 1 100 0 cm\n");
}

TEST(PDFGraphicsState, RotationsAreCounterClockwise) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.Rotate(90);
              state.Rotate(30);
              state.Rotate(-45);
              state.Rotate(0);
            }),
            "0 1 -1 0 0 0 cm\n0.866 0.5 -0.5 0.866 0 0 cm\n"
            "0.7071 -0.7071 0.7071 0.7071 0 0 cm\n1 0 0 1 0 0 cm\n");
}

// The tangent of 90 degrees is that of the single nearest to pi / 2, 1.57079637050628662109375, for
// which 1 / (pi / 2 - x) gives -22877332.4289 and more decimals than are written.
TEST(PDFGraphicsState, SkewWritesTangents) {
  EXPECT_EQ(After([](PDFGraphicsState& state) {
              state.Skew(45, 0);
              state.Skew(0, -30);
              state.Skew(90, 0);
            }),
            "1 1 0 1 0 0 cm\n1 0 -0.5774 1 0 0 cm\n1 -22877332.4289 0 1 0 0 cm\n");
}

TEST(PDFGraphicsState, IsTheSameObjectEachTimeAndOutlivesItsPage) {
  auto document = PDFDocument::Create();
  auto page = document->Pages()->Add();
  const auto state = page->GraphicsState();
  EXPECT_EQ(state, page->GraphicsState());
  page.reset();
  document.reset();
  state->SetLineWidth(3);
  EXPECT_EQ(state->LineWidth(), 3);
}

}  // namespace
}  // namespace folivar::test
