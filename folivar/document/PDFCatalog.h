#pragma once

#include <cstdint>
#include <memory>

#include "folivar/base/Object.h"
#include "folivar/document/PDFViewerPreferences.h"
#include "folivar/file/ObjectWriter.h"

namespace folivar {

class PDFOutline;
class PDFPages;
class PDFText;

// The document catalog, always object 1: refers to the outline and the page tree and tells the
// reader how to open the document. Made with the document.
class PDFCatalog final : public Object, public ObjectWriter {
 public:
  PDFCatalog(std::shared_ptr<PDFOutline> outline, std::shared_ptr<PDFPages> pages);

  std::int32_t ObjectNumber() const { return objectNumber_; }

  PDFPageLayoutStyle PageLayout() const { return pageLayout_; }
  void SetPageLayout(PDFPageLayoutStyle layout) { pageLayout_ = layout; }
  PDFPageModeStyle PageMode() const { return pageMode_; }
  void SetPageMode(PDFPageModeStyle mode) { pageMode_ = mode; }

  // The same object each time.
  const std::shared_ptr<PDFViewerPreferences>& ViewerPreferences();

  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

 private:
  void AppendPreferences(PDFText& text);

  std::shared_ptr<PDFOutline> outline_;
  std::shared_ptr<PDFPages> pages_;
  std::shared_ptr<PDFViewerPreferences> preferences_;
  std::int32_t objectNumber_ = 0;
  PDFPageLayoutStyle pageLayout_ = plsUserDefault;
  PDFPageModeStyle pageMode_ = pmsUserDefault;
};

}  // namespace folivar
