#include "folivar/document/PDFViewerPreferences.h"

#include <utility>

#include "folivar/base/Error.h"
#include "folivar/document/PDFCatalog.h"

namespace folivar {

PDFViewerPreferences::PDFViewerPreferences(const Internal&, std::weak_ptr<PDFCatalog> catalog)
    : catalog_(std::move(catalog)) {}

PDFPageLayoutStyle PDFViewerPreferences::PageLayout() const {
  return Catalog("PDFViewerPreferences.PageLayout")->PageLayout();
}

void PDFViewerPreferences::SetPageLayout(PDFPageLayoutStyle layout) {
  Catalog("PDFViewerPreferences.PageLayout")->SetPageLayout(layout);
}

PDFPageModeStyle PDFViewerPreferences::PageMode() const {
  return Catalog("PDFViewerPreferences.PageMode")->PageMode();
}

void PDFViewerPreferences::SetPageMode(PDFPageModeStyle mode) {
  Catalog("PDFViewerPreferences.PageMode")->SetPageMode(mode);
}

void PDFViewerPreferences::SetNonFullScreenPageMode(PDFPageModeStyle mode) {
  nonFullScreenPageMode_ = mode == pmsFullScreen ? pmsUserDefault : mode;
}

std::shared_ptr<PDFCatalog> PDFViewerPreferences::Catalog(const char* member) const {
  if (auto catalog = catalog_.lock()) return catalog;
  throw Error::ObjectNotSet("the document is gone").WithMember(member);
}

}  // namespace folivar
