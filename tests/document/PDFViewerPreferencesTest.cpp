#include <gtest/gtest.h>

#include "folivar/base/Error.h"
#include "folivar/document/PDFViewerPreferences.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"

namespace folivar::test {
namespace {

TEST(PDFViewerPreferences, StartsWithNothingChosen) {
  const auto document = PDFDocument::Create();
  const auto preferences = document->ViewerPreferences();
  EXPECT_EQ(preferences->PageLayout(), plsUserDefault);
  EXPECT_EQ(preferences->PageMode(), pmsUserDefault);
  EXPECT_EQ(preferences->NonFullScreenPageMode(), pmsUserDefault);
  EXPECT_FALSE(preferences->HideToolbar());
  EXPECT_FALSE(preferences->HideMenubar());
  EXPECT_FALSE(preferences->HideWindowUI());
  EXPECT_FALSE(preferences->FitWindow());
  EXPECT_FALSE(preferences->CenterWindow());
}

TEST(PDFViewerPreferences, IsTheSameObjectEachTime) {
  const auto document = PDFDocument::Create();
  EXPECT_EQ(document->ViewerPreferences(), document->ViewerPreferences());
}

TEST(PDFViewerPreferences, AnyValueIsKept) {
  const auto document = PDFDocument::Create();
  const auto preferences = document->ViewerPreferences();
  preferences->SetPageLayout(static_cast<PDFPageLayoutStyle>(-7));
  preferences->SetPageMode(static_cast<PDFPageModeStyle>(1000));
  preferences->SetNonFullScreenPageMode(static_cast<PDFPageModeStyle>(5));
  EXPECT_EQ(preferences->PageLayout(), -7);
  EXPECT_EQ(preferences->PageMode(), 1000);
  EXPECT_EQ(preferences->NonFullScreenPageMode(), 5);
}

TEST(PDFViewerPreferences, FullScreenIsNoModeToFallBackTo) {
  const auto document = PDFDocument::Create();
  const auto preferences = document->ViewerPreferences();
  preferences->SetNonFullScreenPageMode(pmsUseNone);
  EXPECT_EQ(preferences->NonFullScreenPageMode(), pmsUseNone);
  preferences->SetNonFullScreenPageMode(pmsFullScreen);
  EXPECT_EQ(preferences->NonFullScreenPageMode(), pmsUserDefault);
}

TEST(PDFViewerPreferences, LayoutAndModeNeedTheDocument) {
  auto document = PDFDocument::Create();
  const auto preferences = document->ViewerPreferences();
  document.reset();
  EXPECT_EQ(ErrorNumberOf([&] { preferences->PageLayout(); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorNumberOf([&] { preferences->SetPageMode(pmsUseNone); }), Error::kObjectNotSet);
  EXPECT_EQ(ErrorTextOf([&] { preferences->SetPageMode(pmsUseNone); }),
            "PDFViewerPreferences.PageMode: the document is gone");
  preferences->SetFitWindow(true);
  EXPECT_TRUE(preferences->FitWindow());
}

}  // namespace
}  // namespace folivar::test
