#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "folivar/base/Error.h"
#include "folivar/folivar.h"
#include "folivar/fonts/FontMetrics.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

class FontMetricsOfHelvetica : public testing::Test {
 protected:
  std::shared_ptr<PDFDocument> document_ = PDFDocument::Create();
  std::shared_ptr<PDFFont> font_ = document_->Fonts()->Add("Helvetica");
};

TEST_F(FontMetricsOfHelvetica, ScalesTheFaceByTheSize) {
  const FontMetrics metrics(*font_);
  EXPECT_EQ(metrics.Ascender(), 7.18F);
  EXPECT_EQ(metrics.Descender(), -2.07F);
  EXPECT_EQ(metrics.Leading(), 11.56F);
  EXPECT_EQ(metrics.Scaled(667), 6.67F);
  EXPECT_EQ(metrics.Face().m_FontFace, "Helvetica");
}

TEST_F(FontMetricsOfHelvetica, ScalesTheDecorations) {
  const FontMetrics metrics(*font_);
  EXPECT_EQ(metrics.StrikeoutPositionPts(), 718.0F / 3 * 10 / 1000);
  EXPECT_EQ(metrics.StrikeoutSizePts(), 0.5F);
  EXPECT_EQ(metrics.UnderlinePositionPts(), -1.0F);
  EXPECT_EQ(metrics.UnderlineSizePts(), 0.5F);
  EXPECT_EQ(metrics.SubscriptPositionPts(), -1.0F);
  EXPECT_EQ(metrics.SubscriptSizePts(), 6.5F);
  EXPECT_EQ(metrics.SuperscriptPositionPts(), 3.5F);
  EXPECT_EQ(metrics.SuperscriptSizePts(), 6.5F);
}

TEST_F(FontMetricsOfHelvetica, FollowsTheFontsSize) {
  const FontMetrics metrics(*font_);
  font_->SetSize(20);
  EXPECT_EQ(metrics.Ascender(), 14.36F);
  font_->SetSize(0);
  EXPECT_EQ(metrics.Ascender(), 0);
  font_->SetSize(-10);
  EXPECT_EQ(metrics.Ascender(), -7.18F);
}

TEST_F(FontMetricsOfHelvetica, PlainTextHasTheFontsSizeAndNoRise) {
  const FontMetrics metrics(*font_);
  EXPECT_FALSE(metrics.IsRaisedOrLowered());
  EXPECT_EQ(metrics.EffectiveSize(), 10);
  EXPECT_EQ(metrics.Rise(), 0);
}

TEST_F(FontMetricsOfHelvetica, SubscriptIsSmallerAndLower) {
  font_->SetSubscript(true);
  const FontMetrics metrics(*font_);
  EXPECT_TRUE(metrics.IsRaisedOrLowered());
  EXPECT_EQ(metrics.EffectiveSize(), 6.5F);
  EXPECT_EQ(metrics.Rise(), -1);
}

TEST_F(FontMetricsOfHelvetica, SuperscriptIsSmallerAndHigher) {
  font_->SetSuperscript(true);
  const FontMetrics metrics(*font_);
  EXPECT_TRUE(metrics.IsRaisedOrLowered());
  EXPECT_EQ(metrics.EffectiveSize(), 6.5F);
  EXPECT_EQ(metrics.Rise(), 3.5F);
}

TEST_F(FontMetricsOfHelvetica, SubscriptWinsOverSuperscript) {
  font_->SetSubscript(true);
  font_->SetSuperscript(true);
  EXPECT_EQ(FontMetrics(*font_).Rise(), -1);
}

TEST_F(FontMetricsOfHelvetica, UnderlineAndStrikeOutDoNotChangeTheSize) {
  font_->SetUnderline(true);
  font_->SetStrikeOut(true);
  const FontMetrics metrics(*font_);
  EXPECT_FALSE(metrics.IsRaisedOrLowered());
  EXPECT_EQ(metrics.EffectiveSize(), 10);
}

TEST_F(FontMetricsOfHelvetica, MultipliesBeforeItDivides) {
  // 718 * 1e30 / 1000 in single precision: the product is rounded, then the quotient.
  font_->SetSize(1e30F);
  const float product = 718.0F * 1e30F;
  EXPECT_EQ(FontMetrics(*font_).Ascender(), product / 1000);
}

TEST_F(FontMetricsOfHelvetica, Raises6WhenTheProductIsBeyondASingle) {
  const FontMetrics metrics(*font_);
  // 718 * 1e36 is beyond a single, though a thousandth of it would not be.
  font_->SetSize(1e36F);
  EXPECT_EQ(ErrorNumberOf([&] { metrics.Ascender(); }), Error::kOverflow);
  EXPECT_EQ(ErrorNumberOf([&] { metrics.Leading(); }), Error::kOverflow);
  font_->SetSize(-1e36F);
  EXPECT_EQ(ErrorNumberOf([&] { metrics.Ascender(); }), Error::kOverflow);
  font_->SetSize(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(ErrorNumberOf([&] { metrics.Ascender(); }), Error::kOverflow);
  font_->SetSize(std::numeric_limits<float>::infinity());
  EXPECT_EQ(ErrorNumberOf([&] { metrics.Ascender(); }), Error::kOverflow);
}

TEST_F(FontMetricsOfHelvetica, ClonesHaveTheSameFormat) {
  EXPECT_TRUE(IsSameFormat(*font_, *font_));
  EXPECT_TRUE(IsSameFormat(*font_->Clone(), *font_->Clone()));
  EXPECT_TRUE(IsSameFormat(*font_, *document_->Fonts()->Add("helvetica")));
}

TEST_F(FontMetricsOfHelvetica, EveryDifferenceMakesAnotherFormat) {
  const auto differsAfter = [&](void (*change)(PDFFont&)) {
    const auto clone = font_->Clone();
    change(*clone);
    return !IsSameFormat(*font_, *clone) && !IsSameFormat(*clone, *font_);
  };
  EXPECT_TRUE(differsAfter([](PDFFont& font) { font.SetSize(10.5F); }));
  EXPECT_TRUE(differsAfter([](PDFFont& font) { font.SetUnderline(true); }));
  EXPECT_TRUE(differsAfter([](PDFFont& font) { font.SetStrikeOut(true); }));
  EXPECT_TRUE(differsAfter([](PDFFont& font) { font.SetSubscript(true); }));
  EXPECT_TRUE(differsAfter([](PDFFont& font) { font.SetSuperscript(true); }));
  EXPECT_FALSE(IsSameFormat(*font_, *document_->Fonts()->Add("Courier")));
}

}  // namespace
}  // namespace folivar::test
