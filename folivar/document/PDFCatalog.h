#pragma once

#include <memory>

#include "folivar/base/Object.h"
#include "folivar/document/PDFViewerPreferences.h"
#include "folivar/file/Reference.h"

namespace folivar {

class Internal;
class ObjectNumbers;
class PDFOutline;
class PDFPages;
class PDFText;
class SaveFile;

// The document catalog, always object 1: refers to the outline and the page tree and tells the
// reader how to open the document. Made with the document.
class PDFCatalog final : public Object {
 public:
  PDFCatalog(std::shared_ptr<PDFOutline> outline, std::shared_ptr<PDFPages> pages);

  Reference ObjectNumber() const { return object_; }

  PDFPageLayoutStyle PageLayout() const { return pageLayout_; }
  void SetPageLayout(PDFPageLayoutStyle layout) { pageLayout_ = layout; }
  PDFPageModeStyle PageMode() const { return pageMode_; }
  void SetPageMode(PDFPageModeStyle mode) { pageMode_ = mode; }

  // The same object each time.
  const std::shared_ptr<PDFViewerPreferences>& ViewerPreferences();

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file);

 private:
  void AppendPreferences(PDFText& text);

  std::shared_ptr<PDFOutline> outline_;
  std::shared_ptr<PDFPages> pages_;
  std::shared_ptr<PDFViewerPreferences> preferences_;
  Reference object_;
  PDFPageLayoutStyle pageLayout_ = plsUserDefault;
  PDFPageModeStyle pageMode_ = pmsUserDefault;
};

}  // namespace folivar
