#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "folivar/document/PDFCatalog.h"
#include "folivar/folivar.h"
#include "tests/support/SavedDocument.h"

namespace folivar::test {
namespace {

constexpr const char* kBegin = "<< /Type /Catalog\n/Outlines 2 0 R\n/Pages 3 0 R\n";

std::string CatalogWith(const std::function<void(PDFViewerPreferences&)>& prefer) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add();
  prefer(*document->ViewerPreferences());
  return std::string(Save(*document, "catalog.pdf", Check::kForm).pdf.Object(1));
}

TEST(PDFCatalog, DefaultsWriteFourLines) {
  EXPECT_EQ(CatalogWith([](PDFViewerPreferences&) {}), std::string(kBegin) + ">>\n");
}

TEST(PDFCatalog, PageLayouts) {
  const auto layout = [](int value) {
    return CatalogWith([value](PDFViewerPreferences& preferences) {
      preferences.SetPageLayout(static_cast<PDFPageLayoutStyle>(value));
    });
  };
  const std::string begin = kBegin;
  EXPECT_EQ(layout(plsUserDefault), begin + ">>\n");
  EXPECT_EQ(layout(plsSinglePage), begin + "/PageLayout /SinglePage\n>>\n");
  EXPECT_EQ(layout(plsOneColumn), begin + "/PageLayout /OneColumn\n>>\n");
  EXPECT_EQ(layout(plsTwoColumnLeft), begin + "/PageLayout /TwoColumnLeft\n>>\n");
  EXPECT_EQ(layout(plsTwoColumnRight), begin + "/PageLayout /TwoColumnRight\n>>\n");
  EXPECT_EQ(layout(5), begin + ">>\n");
  EXPECT_EQ(layout(-1), begin + ">>\n");
}

TEST(PDFCatalog, PageModes) {
  const auto mode = [](int value) {
    return CatalogWith([value](PDFViewerPreferences& preferences) {
      preferences.SetPageMode(static_cast<PDFPageModeStyle>(value));
    });
  };
  const std::string begin = kBegin;
  EXPECT_EQ(mode(pmsUserDefault), begin + ">>\n");
  EXPECT_EQ(mode(pmsUseNone), begin + "/PageMode /UseNone\n>>\n");
  EXPECT_EQ(mode(pmsUseOutlines), begin + "/PageMode /UseOutlines\n>>\n");
  EXPECT_EQ(mode(pmsUseThumbs), begin + "/PageMode /UseThumbs\n>>\n");
  EXPECT_EQ(mode(pmsFullScreen), begin + "/PageMode /FullScreen\n>>\n");
  EXPECT_EQ(mode(99), begin + ">>\n");
}

TEST(PDFCatalog, OnlyTrueFlagsAreWrittenInTheirOrder) {
  const std::string begin = std::string(kBegin);
  EXPECT_EQ(CatalogWith([](PDFViewerPreferences& preferences) { preferences.SetFitWindow(true); }),
            begin + "/ViewerPreferences <<\n/FitWindow true\n>>\n>>\n");
  EXPECT_EQ(CatalogWith([](PDFViewerPreferences& preferences) {
              preferences.SetNonFullScreenPageMode(pmsUseOutlines);
              preferences.SetCenterWindow(true);
              preferences.SetFitWindow(true);
              preferences.SetHideWindowUI(true);
              preferences.SetHideMenubar(true);
              preferences.SetHideToolbar(true);
              preferences.SetPageMode(pmsFullScreen);
              preferences.SetPageLayout(plsOneColumn);
            }),
            begin +
                "/PageLayout /OneColumn\n/PageMode /FullScreen\n/ViewerPreferences <<\n"
                "/HideToolbar true\n/HideMenubar true\n/HideWindowUI true\n/FitWindow true\n"
                "/CenterWindow true\n/NonFullScreenPageMode /UseOutlines\n>>\n>>\n");
}

TEST(PDFCatalog, NonFullScreenPageModes) {
  const auto mode = [](PDFPageModeStyle value) {
    return CatalogWith([value](PDFViewerPreferences& preferences) {
      preferences.SetNonFullScreenPageMode(value);
    });
  };
  const std::string begin = kBegin;
  EXPECT_EQ(mode(pmsUseNone), begin + ">>\n");
  EXPECT_EQ(mode(pmsUseThumbs),
            begin + "/ViewerPreferences <<\n/NonFullScreenPageMode /UseThumbs\n>>\n>>\n");
  EXPECT_EQ(mode(pmsFullScreen), begin + ">>\n");
}

}  // namespace
}  // namespace folivar::test
