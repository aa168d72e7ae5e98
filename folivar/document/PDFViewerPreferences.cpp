#include "folivar/document/PDFViewerPreferences.h"

#include <utility>

#include "folivar/base/Error.h"
#include "folivar/document/PDFCatalog.h"

namespace folivar {

PDFViewerPreferences::PDFViewerPreferences(const Internal&, std::weak_ptr<PDFCatalog> catalog)
    : catalog_(std::move(catalog)) {}

PDFPageLayoutStyle PDFViewerPreferences::PageLayout() const { return Catalog()->PageLayout(); }

void PDFViewerPreferences::SetPageLayout(PDFPageLayoutStyle layout) {
  Catalog()->SetPageLayout(layout);
}

PDFPageModeStyle PDFViewerPreferences::PageMode() const { return Catalog()->PageMode(); }

void PDFViewerPreferences::SetPageMode(PDFPageModeStyle mode) { Catalog()->SetPageMode(mode); }

void PDFViewerPreferences::SetNonFullScreenPageMode(PDFPageModeStyle mode) {
  nonFullScreenPageMode_ = mode == pmsFullScreen ? pmsUserDefault : mode;
}

std::shared_ptr<PDFCatalog> PDFViewerPreferences::Catalog() const {
  if (auto catalog = catalog_.lock()) return catalog;
  throw Error::ObjectNotSet("The document of these PDFViewerPreferences is gone");
}

}  // namespace folivar
